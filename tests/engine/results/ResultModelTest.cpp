#include "results/ResultModel.h"

#include "search/NamePatterns.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

ResultItem item(const char *path, int group, double duration = 0.0)
{
    ResultItem i;
    i.path = QString::fromUtf8(path);
    i.group = group;
    i.setDuration(duration);
    return i;
}

std::string names(const QList<ResultItem *> &items)
{
    QStringList names;
    for (const ResultItem *i : items)
        names.append(i->name());
    return names.join(u' ').toStdString();
}

ResultItem *byName(ResultModel &model, const char *name)
{
    for (ResultItem &i : model.allItems())
        if (i.name() == QLatin1String(name)) return &i;
    return nullptr;
}

std::string lookUp(ResultModel &model, const char *name)
{
    return names(model.duplicatesFor(*byName(model, name)));
}

SearchRequest requestFor(DetectionMode mode)
{
    SearchRequest request;
    request.searchInFolderURLs = {QStringLiteral("/m")};
    request.detectionMode = mode;
    return request;
}

TEST(ResultModelLookUp, DurationRangesAreTolerancesAroundTheItemNotGroups)
{
    SearchRequest request = requestFor(DetectionMode::Duration);
    request.durationTolerance = 2;
    ResultModel model;
    model.setResults({item("/m/ten", 0, 10), item("/m/eleven", 0, 11), item("/m/thirteen", 0, 13),
                      item("/m/eleven2", 0, 11), item("/m/far", 1, 40)},
                     request);
    EXPECT_EQ(lookUp(model, "eleven"), "ten eleven eleven2 thirteen");
    EXPECT_EQ(lookUp(model, "ten"), "ten eleven eleven2");
    EXPECT_EQ(lookUp(model, "thirteen"), "eleven eleven2 thirteen");
    EXPECT_EQ(lookUp(model, "far"), "far");
}

TEST(ResultModelLookUp, ContentGroupsByDigestIncludeHiddenItemsAndAbsentDigestsFindNothing)
{
    ResultModel model;
    QList<ResultItem> items;
    for (int n = 0; n < 7; ++n) {
        items.append(item(QStringLiteral("/m/f%1").arg(n).toUtf8().constData(), n % 3));
        items.last().digest.fill(std::uint8_t(0x80 + n % 3)); // bytes above 0x7f: unsigned order
        items.last().set(HasDigest);
    }
    model.setResults(items, requestFor(DetectionMode::Content));
    EXPECT_EQ(lookUp(model, "f4"), "f1 f4");

    // Hidden members stay in the bottom list.
    ResultItem *f0 = byName(model, "f0");
    QList<ResultItem *> visible = model.mainItems();
    visible.removeOne(f0);
    model.hide(visible, {f0}, false);
    model.select(ResultList::Top, {byName(model, "f3")});
    EXPECT_EQ(names(model.cloneItems()), "f3 f6 f0");
    ResultItem outsider = item("/m/other", 0);
    outsider.digest.fill(0x01);
    outsider.set(HasDigest);
    EXPECT_EQ(names(model.duplicatesFor(outsider)), "");
}

TEST(ResultModelLookUp, FileNamesCompareWithoutCommonSuffixesAndExtensions)
{
    SearchRequest request = requestFor(DetectionMode::FileName);
    request.filenameIgnoreCommonSuffixRegexes = compileCommonSuffixes(QString());
    ResultModel model;
    model.setResults({item("/m/a/Report copy.txt", 0), item("/m/b/report.TXT", 0),
                      item("/m/c/report 2.txt", 0), item("/m/d/report.pdf", 1),
                      item("/m/e/reporting.txt", 2)},
                     request);
    EXPECT_EQ(lookUp(model, "report.TXT"), "Report copy.txt report.TXT report 2.txt");
    EXPECT_EQ(lookUp(model, "reporting.txt"), "reporting.txt");

    request.filenameIgnoreExtension = true;
    model.setResults(
        {item("/m/a/Report copy.txt", 0), item("/m/d/report.pdf", 0), item("/m/e/reporting.txt", 1)},
        request);
    EXPECT_EQ(lookUp(model, "report.pdf"), "Report copy.txt report.pdf");

    request.filenameIgnoreCommonSuffixRegexes.reset();
    model.setResults({item("/m/a.JPG", 0), item("/m/A.png", 0), item("/m/a copy.png", 1)}, request);
    EXPECT_EQ(lookUp(model, "A.png"), "a.JPG A.png");
}

TEST(ResultModelLookUp, AttributeRangesForDatesAndNumbersAndExactStrings)
{
    SearchRequest request = requestFor(DetectionMode::Attribute);
    request.spotlightTolerance = 60;
    const QDateTime ten(QDate(2024, 5, 1), QTime(10, 0), Qt::UTC);
    QList<ResultItem> items = {item("/m/d1", 0), item("/m/d2", 0), item("/m/d3", 1)};
    items[0].setSpotlight(ten.addSecs(30));
    items[1].setSpotlight(ten);
    items[2].setSpotlight(ten.addSecs(-40));
    ResultModel model;
    model.setResults(items, request);
    EXPECT_EQ(lookUp(model, "d1"), "d2 d1");
    EXPECT_EQ(lookUp(model, "d2"), "d3 d2 d1");

    items = {item("/m/s1", 0), item("/m/s2", 0), item("/m/s3", 1)};
    items[0].setSpotlight(QStringLiteral("Canon"));
    items[1].setSpotlight(QStringLiteral("Canon"));
    items[2].setSpotlight(QStringLiteral("canon"));
    model.setResults(items, request);
    EXPECT_EQ(lookUp(model, "s2"), "s1 s2");

    items = {item("/m/n1", 0), item("/m/n2", 0), item("/m/n3", 1)};
    items[0].setSpotlight(100);
    items[1].setSpotlight(40.5);
    items[2].setSpotlight(39.5);
    model.setResults(items, request);
    EXPECT_EQ(lookUp(model, "n1"), "n2 n1");
    EXPECT_EQ(lookUp(model, "n3"), "n3 n2");
}

TEST(ResultModelSort, SecondaryKeysStableOrderAndSelectionByIdentity)
{
    ResultModel model;
    QList<ResultItem> items = {item("/m/x/b10.jpg", 0), item("/m/y/B9.jpg", 0), item("/m/x/a.txt", 1),
                               item("/m/y/a.txt", 1),   item("/m/x/noext", 2),  item("/m/x/sub", 2)};
    items[4].size = 5;
    items[5].set(IsFolder);
    for (int i = 0; i < 4; ++i)
        items[i].size = 100 - 10 * items[i].group;
    model.setResults(items, requestFor(DetectionMode::Content));
    EXPECT_TRUE(model.showGroups()); // size is the content mode's group column
    EXPECT_EQ(names(model.mainItems()), "b10.jpg B9.jpg a.txt a.txt noext sub");

    ResultItem *chosen = byName(model, "noext");
    model.select(ResultList::Top, {byName(model, "b10.jpg"), chosen});
    model.setSortDescriptor(ResultList::Top,
                            SortDescriptor{QStringLiteral("URL.path.lastPathComponent.lowercaseString")});
    EXPECT_FALSE(model.showGroups());
    // Natural order of names, then the folder in the same direction.
    EXPECT_EQ(names(model.mainItems()), "a.txt a.txt B9.jpg b10.jpg noext sub");
    EXPECT_EQ(model.mainItems()[0]->path.toStdString(), "/m/x/a.txt");
    EXPECT_EQ(model.selectedRows(ResultList::Top), (QList<qsizetype>{3, 4}));
    EXPECT_EQ(model.selectedItems(ResultList::Top), (QList<ResultItem *>{byName(model, "b10.jpg"), chosen}));

    model.setSortDescriptor(
        ResultList::Top, SortDescriptor{QStringLiteral("URL.path.lastPathComponent.lowercaseString"), false});
    EXPECT_EQ(model.mainItems()[0]->name().toStdString(), "sub");
    EXPECT_EQ(model.mainItems()[4]->path.toStdString(), "/m/y/a.txt");

    // Folders first, items without extension last, equal extensions by plain lower-cased name.
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("extension")});
    EXPECT_EQ(names(model.mainItems()), "sub b10.jpg B9.jpg a.txt a.txt noext");
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("extension"), false});
    EXPECT_EQ(names(model.mainItems()), "noext a.txt a.txt B9.jpg b10.jpg sub");
    EXPECT_EQ(model.selectedRows(ResultList::Top), (QList<qsizetype>{0, 4}));
}

TEST(ResultModelSort, GroupedRowsAlternateColoursPerGroup)
{
    ResultModel model;
    QList<ResultItem> items = {item("/m/a", 0), item("/m/b", 0), item("/m/c", 1), item("/m/d", 1),
                               item("/m/e", 2)};
    for (ResultItem &i : items)
        i.dupes = i.group == 2 ? 1 : 2;
    items[2].setDuration(5);
    SearchRequest request = requestFor(DetectionMode::Duration);
    model.setResults(items, request);
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("dupes")});
    ASSERT_TRUE(model.showGroups());
    QString colours;
    for (const ResultItem *i : model.mainItems())
        colours += i->has(AlternateColor) ? u'1' : u'0';
    EXPECT_EQ(names(model.mainItems()), "e a b d c"); // equal counts by duration, then stable
    EXPECT_EQ(colours.toStdString(), "01100");
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("modified")});
    EXPECT_FALSE(model.showGroups());
}

TEST(ResultModelHiding, UnhideDoublesTheLookUpArrayUntilItsNextRebuild)
{
    ResultModel model;
    model.setResults({item("/m/a", 0, 1), item("/m/b", 0, 1), item("/m/c", 0, 1)},
                     requestFor(DetectionMode::Duration));
    EXPECT_TRUE(model.canAutomaticallySelect());
    EXPECT_FALSE(model.canUnhide());
    ResultItem *a = byName(model, "a");
    model.hide({a}, {byName(model, "b")}, true);
    EXPECT_FALSE(model.canUnhide()); // one hidden item is not enough
    EXPECT_FALSE(model.canAutomaticallySelect());
    model.hide({a}, {byName(model, "c")}, true);
    EXPECT_TRUE(model.canUnhide());
    EXPECT_TRUE(model.canAutomaticallySelect());
    model.select(ResultList::Top, {a});
    EXPECT_EQ(names(model.cloneItems()), "a b c");
    model.automaticallySelectUnhide();
    EXPECT_FALSE(model.hasHiddenArray());
    EXPECT_TRUE(model.hiddenBecauseOfAutomaticallySelect());
    EXPECT_EQ(model.mainItems().size(), 3);
    EXPECT_EQ(model.mainItemsIncludingHiddenSorted().size(), 5);
    EXPECT_EQ(model.selectedItems(ResultList::Top), QList<ResultItem *>{a});
    model.sortMainItemsIncludingHidden();
    EXPECT_EQ(model.mainItemsIncludingHiddenSorted().size(), 3);
    EXPECT_TRUE(model.selectAndRevealInTopList(QStringLiteral("/m/c")));
    EXPECT_FALSE(model.selectAndRevealInTopList(QStringLiteral("/m/zzz")));
    EXPECT_EQ(names(model.selectedItems(ResultList::Top)), "c");
}

} // namespace
