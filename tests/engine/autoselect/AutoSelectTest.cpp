#include "autoselect/AutomaticSelection.h"
#include "results/ResultFilter.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

struct Copy {
    const char *path;
    int group;
    qint64 modified = 0;
    QStringList tags = {};
};

class AutoSelectTest : public ::testing::Test
{
protected:
    void load(std::initializer_list<Copy> copies)
    {
        QList<ResultItem> items;
        for (const Copy &c : copies) {
            ResultItem item;
            item.path = QString::fromUtf8(c.path);
            item.group = c.group;
            item.modified = c.modified;
            item.setTagList(c.tags);
            item.digest.fill(std::uint8_t(c.group));
            item.set(HasDigest);
            items.append(item);
        }
        SearchRequest request;
        request.searchInFolderURLs = {QStringLiteral("/d")};
        model.setResults(items, request);
    }
    // "select a, b | keep c" with names sorted within each list.
    std::string run(AutoSelectSettings settings)
    {
        outcome = performAutomaticallySelect(model, settings);
        return describe(outcome.selection.selected()) + " | " + describe(outcome.selection.skipped());
    }
    static std::string describe(const QList<ResultItem *> &items)
    {
        QStringList paths;
        for (const ResultItem *i : items)
            paths.append(i->path.mid(3));
        paths.sort();
        return paths.join(u' ').toStdString();
    }
    ResultItem *at(const char *path)
    {
        for (ResultItem &i : model.allItems())
            if (i.path == QString::fromUtf8(path)) return &i;
        return nullptr;
    }
    ResultModel model;
    AutoSelectOutcome outcome;
};

TEST_F(AutoSelectTest, SameFolderAndNameKeepsTheShortestNameOfEachRun)
{
    load({{"/d/f/a.jpg", 0},
          {"/d/f/a copy.jpg", 0},
          {"/d/f/a 2.jpg", 0},
          {"/d/f/b.jpg", 0},
          {"/d/x/p.txt", 1},
          {"/d/y/p.txt", 1}});
    AutoSelectSettings settings;
    EXPECT_EQ(run(settings), "f/a 2.jpg f/a copy.jpg | f/a.jpg");
    EXPECT_EQ(model.selectedItems(ResultList::Top).size(), 2);
    EXPECT_EQ(outcome.settingsToStore.value(QStringLiteral("auto-select choice")).toInt(),
              SameFolderSameName);

    // A trashed first copy leaves its whole run alone; a deleted later copy is only skipped over.
    at("/d/f/a.jpg")->setTrashedURL(QStringLiteral("/trash/a.jpg"));
    EXPECT_EQ(run(settings), " | ");
    at("/d/f/a.jpg")->setTrashedURL({});
    at("/d/f/a 2.jpg")->set(Deleted);
    EXPECT_EQ(run(settings), "f/a copy.jpg | f/a.jpg");
}

TEST_F(AutoSelectTest, SameFolderWhateverTheNameKeepsTheOldestOrNewestPresentCopy)
{
    load({{"/d/f/x.jpg", 0, 300},
          {"/d/f/y.jpg", 0, 100},
          {"/d/f/z.jpg", 0, 200},
          {"/d/g/w.jpg", 0, 50},
          {"/d/h/1", 1, 1},
          {"/d/i/2", 1, 2}});
    AutoSelectSettings settings;
    settings.choice = SameFolderWhateverName;
    EXPECT_EQ(run(settings), "f/x.jpg f/z.jpg | f/y.jpg");
    settings.oldest = 1;
    EXPECT_EQ(run(settings), "f/y.jpg f/z.jpg | f/x.jpg");
    // Unlike the same-name rule, a trashed first copy hands the keeping to the next one.
    at("/d/f/x.jpg")->setTrashedURL(QStringLiteral("/trash/x.jpg"));
    EXPECT_EQ(run(settings), "f/y.jpg | f/z.jpg");
    EXPECT_EQ(outcome.settingsToStore.value(QStringLiteral("auto-select oldest")).toInt(), 1);
}

TEST_F(AutoSelectTest, FolderRuleByLocationAndDates)
{
    load({{"/d/F/a", 0, 2020}, {"/d/F/sub/b", 0, 2022}, {"/d/G/c", 0, 2021}, {"/d/F/d", 1}, {"/d/F/e", 1}});
    AutoSelectSettings settings;
    settings.choice = InsideFolder;
    settings.folder = QStringLiteral("/d/F");
    EXPECT_EQ(run(settings), "F/a | F/sub/b G/c"); // group 1 lies wholly inside: untouched
    settings.inside = InsideAtAnyDepth;
    EXPECT_EQ(run(settings), "F/a F/sub/b | G/c");
    settings.inside = NotDirectlyInside;
    EXPECT_EQ(run(settings), "F/sub/b G/c | F/a");
    settings.inside = OutsideAtAnyDepth;
    EXPECT_EQ(run(settings), "G/c | F/a F/sub/b");
    settings.inside = 7;
    EXPECT_EQ(run(settings), " | ");

    settings.inside = InsideAtAnyDepth;
    settings.insideOldest = LaterDate;
    EXPECT_EQ(run(settings), "F/sub/b | G/c"); // the 2020 copy is not later than the 2021 one
    settings.insideOldest = EarlierDate;
    EXPECT_EQ(run(settings), "F/a | G/c");
    settings.insideOldest = SameDate;
    EXPECT_EQ(run(settings), " | ");
    settings.insideDate = 0; // "created": absent everywhere, so no pair compares
    settings.insideOldest = EarlierDate;
    EXPECT_EQ(run(settings), " | ");
}

TEST_F(AutoSelectTest, TagRuleMatchesColourTagsAndPlainTags)
{
    load({{"/d/red-colour", 0, 0, {QStringLiteral("Red\n6")}},
          {"/d/red-plain", 0, 0, {QStringLiteral("red")}},
          {"/d/blue", 0, 0, {QStringLiteral("Blue\n4")}},
          {"/d/none", 0},
          {"/d/all-red1", 1, 0, {QStringLiteral("Red")}},
          {"/d/all-red2", 1, 0, {QStringLiteral("RED")}}});
    AutoSelectSettings settings;
    settings.choice = ByTag;
    settings.tagValue = QStringLiteral("red");
    EXPECT_EQ(run(settings), "red-colour red-plain | blue none");
    settings.tagCondition = HavingAnyTag;
    EXPECT_EQ(run(settings), "blue red-colour red-plain | none");
    settings.tagCondition = NotHavingTag;
    EXPECT_EQ(run(settings), "blue none | red-colour red-plain");
    settings.tagCondition = HavingNoTag;
    EXPECT_EQ(run(settings), "none | blue red-colour red-plain");
}

TEST_F(AutoSelectTest, HidingTheRestAndShowingItAgainBeforeTheNextRun)
{
    load({{"/d/f/a.jpg", 0},
          {"/d/f/a copy.jpg", 0},
          {"/d/x/p", 1},
          {"/d/y/p", 1},
          {"/d/x/q", 2},
          {"/d/y/q", 2}});
    AutoSelectSettings settings;
    settings.hide = true;
    EXPECT_EQ(run(settings), "f/a copy.jpg | f/a.jpg");
    EXPECT_EQ(model.mainItems().size(), 2);
    EXPECT_EQ(model.mainItemsHidden().size(), 4);
    EXPECT_TRUE(model.canUnhide());
    settings.choice = SameFolderWhateverName;
    settings.hide = false;
    run(settings); // sees every item again: groups 1 and 2 lie in different folders
    EXPECT_EQ(model.mainItems().size(), 6);
    EXPECT_FALSE(model.hasHiddenArray());

    // Items hidden by the filter take no part.
    FilterCriteria criteria;
    criteria.text = QStringLiteral("copy");
    criteria.stringOperator = Contains + kNegated;
    filter(model, criteria);
    settings.choice = SameFolderSameName;
    EXPECT_EQ(run(settings), " | ");
}

TEST(AutoSelectSettingsTest, DefaultsAndReversedConditions)
{
    const AutoSelectSettings s = autoSelectSettingsFrom({{QStringLiteral("auto-select oldest"), 1}});
    EXPECT_EQ(s.oldest, 1);
    EXPECT_EQ(s.date, 1);
    EXPECT_EQ(s.insideDate, 1);
    EXPECT_EQ(s.tagValue, QStringLiteral("Red"));
    EXPECT_FALSE(s.hide);
    EXPECT_FALSE(autoSelectRegisteredDefaults().contains(QStringLiteral("auto-select choice")));
    const int reversed[] = {2, 3, 0, 1, 2, 2};
    for (int condition = 0; condition < 6; ++condition)
        EXPECT_EQ(reverseInsideFolder(condition), reversed[condition]) << condition;
    EXPECT_EQ(dateKeyForTag(2), QStringLiteral("lastUsed"));
}

} // namespace
