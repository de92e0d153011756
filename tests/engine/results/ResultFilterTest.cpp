#include "results/ResultFilter.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

const QDateTime kNow(QDate(2026, 1, 1), QTime(12, 0), Qt::UTC);

ResultItem named(const char *name, QStringList tags = {})
{
    ResultItem item;
    item.path = QStringLiteral("/m/") + QString::fromUtf8(name);
    item.setTagList(std::move(tags));
    item.modified = kNow.toSecsSinceEpoch();
    return item;
}

// The names left visible after filtering `items` by name (or another key).
class FilterTest : public ::testing::Test
{
protected:
    void load(const QList<ResultItem> &items)
    {
        SearchRequest request;
        request.searchInFolderURLs = {QStringLiteral("/m")};
        model.setResults(items, request);
        model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("URL.path")});
    }
    std::string visible(int op, const char *text, const char *key = "URL.path.lastPathComponent")
    {
        FilterCriteria criteria;
        criteria.criterionKey = QString::fromUtf8(key);
        criteria.stringOperator = op;
        criteria.text = QString::fromUtf8(text);
        error = filter(model, criteria, kNow);
        return shown();
    }
    std::string shown() const
    {
        QStringList names;
        for (const ResultItem *i : model.mainItems())
            names.append(i->name());
        return names.join(u' ').toStdString();
    }
    ResultModel model;
    QString error;
};

TEST_F(FilterTest, TextOperatorsFoldCaseAndDiacritics)
{
    load({named("RESUME.pdf"), named("a cat.jpg"), named("cat-2"), named("category"), named("red fox"),
          named("bluebird"), named("Ärger")});
    EXPECT_EQ(visible(Contains, "résumé"), "RESUME.pdf");
    EXPECT_EQ(visible(ContainsWholeWord, "cat"), "a cat.jpg cat-2");
    EXPECT_EQ(visible(BeginsWith, "CAT"), "cat-2 category");
    EXPECT_EQ(visible(EndsWith, ".JPG"), "a cat.jpg");
    EXPECT_EQ(visible(Equals, "arger"), "Ärger");
    EXPECT_EQ(visible(ContainsAnyWord, "red, blue"), "bluebird red fox");
    EXPECT_EQ(visible(ContainsAnyWholeWord, "red, blue"), "red fox");
    EXPECT_EQ(visible(ContainsWholeWord + kNegated, "cat"), "Ärger bluebird category red fox RESUME.pdf");
    EXPECT_EQ(visible(Contains, ""), "a cat.jpg Ärger bluebird cat-2 category red fox RESUME.pdf");
}

TEST_F(FilterTest, RegularExpressionsIgnoreCaseUseUnicodeWordsAndReportErrors)
{
    load({named("IMG_001.jpg"), named("café"), named("caf.txt")});
    EXPECT_EQ(visible(MatchesRegex, "^img_\\d+"), "IMG_001.jpg");
    EXPECT_EQ(visible(MatchesRegex, "\\bcaf\\b"), "caf.txt"); // é is a letter, so no boundary
    EXPECT_TRUE(error.isEmpty());
    EXPECT_EQ(visible(MatchesRegex, "(unclosed"), "");
    EXPECT_FALSE(error.isEmpty());
    EXPECT_EQ(visible(MatchesRegex + kNegated, "(unclosed"), "caf.txt café IMG_001.jpg");
    EXPECT_EQ(visible(MatchesRegex + kNegated, "jpg$"), "caf.txt café");
    EXPECT_TRUE(error.isEmpty());
}

TEST_F(FilterTest, TagsAreCutAtTheirLineFeedAndNegationPassesOnAnyOtherValue)
{
    load({named("red-blue", {QStringLiteral("Red\n6"), QStringLiteral("Blue\n4")}),
          named("red", {QStringLiteral("Red\n6")}), named("plain-red", {QStringLiteral("red")}),
          named("untagged")});
    EXPECT_EQ(visible(Equals, "Red", "tagList"), "plain-red red red-blue");
    EXPECT_EQ(visible(Equals + kNegated, "Red", "tagList"), "red-blue");
    EXPECT_EQ(visible(Equals + kNegated, "", "tagList"), "plain-red red red-blue"); // tagged items only
    EXPECT_EQ(visible(Contains + kNegated, "", "tagList"), "plain-red red red-blue untagged");
    EXPECT_EQ(visible(Contains, "6", "tagList"), ""); // the colour number is not part of the tag
}

TEST_F(FilterTest, DateThresholdsInUnitsHideItemsWithoutTheDate)
{
    QList<ResultItem> items = {named("old"), named("recent"), named("undated")};
    items[0].modified = kNow.toSecsSinceEpoch() - 1'209'601;
    items[1].modified = kNow.toSecsSinceEpoch() - 1'209'599;
    items[0].created = items[0].modified;
    items[1].created = items[1].modified;
    load(items);
    FilterCriteria criteria;
    criteria.dateOperator = 1; // older than
    criteria.dateNumber = 2;
    criteria.dateUnit = 1; // weeks
    filter(model, criteria, kNow);
    EXPECT_EQ(shown(), "old");
    criteria.dateOperator = 0;
    filter(model, criteria, kNow);
    EXPECT_EQ(shown(), "recent undated");
    criteria.dateKey = QStringLiteral("created");
    filter(model, criteria, kNow);
    EXPECT_EQ(shown(), "recent");
    criteria.dateNumber = 0;
    filter(model, criteria, kNow);
    EXPECT_EQ(shown(), "old recent undated");
    EXPECT_FALSE(model.mainItemsHidden().size());
}

TEST_F(FilterTest, NeverCumulativeKeepsVisibleSelectionAndSavesItsSettings)
{
    load({named("alpha"), named("beta"), named("gamma")});
    model.select(ResultList::Top, model.mainItems());
    model.hide({model.mainItems()[0]}, model.mainItems().mid(1), true);
    EXPECT_EQ(visible(Contains, "a"), "alpha beta gamma");
    EXPECT_FALSE(model.hiddenBecauseOfAutomaticallySelect());
    EXPECT_EQ(model.selectedItems(ResultList::Top).size(), 1); // the one selected item that stayed visible
    model.select(ResultList::Top, model.mainItems());
    EXPECT_EQ(visible(Contains, "et"), "beta");
    EXPECT_EQ(model.selectedItems(ResultList::Top).size(), 1);
    EXPECT_EQ(visible(Contains, "mm"), "gamma");
    EXPECT_EQ(model.mainItemsHidden().size(), 2);
    EXPECT_EQ(model.mainItemsIncludingHiddenSorted().size(), 3);

    FilterCriteria criteria;
    criteria.criterionKey = QStringLiteral("tagList");
    criteria.stringOperator = 14;
    criteria.text = QStringLiteral("not saved");
    criteria.dateUnit = 3;
    const QVariantMap saved = filterSettings(criteria);
    EXPECT_EQ(saved.size(), 5);
    EXPECT_EQ(saved.value(QStringLiteral("filterStringCriterion")).toString(), QStringLiteral("tagList"));
    const FilterCriteria restored = filterCriteriaFromSettings(saved);
    EXPECT_EQ(restored.stringOperator, 14);
    EXPECT_EQ(restored.dateUnit, 3);
    EXPECT_TRUE(restored.text.isEmpty());
}

TEST(ContainsFullWordString, LaterOccurrencesAreTriedWhenTheFirstIsNotDelimited)
{
    EXPECT_TRUE(containsFullWordString(u"concat cat", u"cat"));
    EXPECT_TRUE(containsFullWordString(u"cat", u"cat"));
    EXPECT_FALSE(containsFullWordString(u"cats category", u"cat"));
    EXPECT_TRUE(containsFullWordString(u"(cat)", u"cat"));
    EXPECT_FALSE(containsFullWordString(u"x", u"cat"));
}

} // namespace
