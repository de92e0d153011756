#include "fileops/DeleteActions.h"
#include "fileops/DeleteChecks.h"
#include "results/ListColumns.h"
#include "results/ResultModel.h"
#include "similar/ImagePrint.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace selfsame;

namespace
{

// A picture of a similar-pictures result: its group, its likeness to the group's first item
// as the search recorded it, and its hash.
ResultItem picture(const char *name, int group, double similarity, std::uint64_t hash)
{
    ResultItem item;
    item.path = QStringLiteral("/p/") + QString::fromUtf8(name);
    item.group = group;
    item.setSimilarity(similarity);
    item.setMediaPrint(encodeImagePrint({hash, 40}));
    return item;
}

std::string names(const QList<ResultItem *> &items)
{
    QStringList names;
    for (const ResultItem *i : items)
        names.append(i->name());
    return names.join(u' ').toStdString();
}

class SimilarResults : public ::testing::Test
{
protected:
    // Two groups whose members are alike by chains: "b" is one bit from "a", "c" two bits
    // from "a" but three from "b". "x" of the second group has the very hash of "a": a look-up
    // by likeness rather than by group would wrongly join the groups.
    void SetUp() override
    {
        SearchRequest request;
        request.searchInFolderURLs = {QStringLiteral("/p")};
        request.detectionMode = DetectionMode::SimilarImages;
        model.setResults({picture("x", 1, 100, 0x0), picture("a", 0, 100, 0x0), picture("b", 0, 98, 0x1),
                          picture("y", 1, 95, 0x0F00), picture("c", 0, 97, 0x6), picture("z", 1, 90, 0xFF00)},
                         request);
    }
    ResultItem *at(const char *name)
    {
        for (ResultItem &i : model.allItems())
            if (i.name() == QLatin1String(name)) return &i;
        return nullptr;
    }
    ResultModel model;
};

TEST_F(SimilarResults, ALookUpFindsExactlyTheItemsGroupHiddenMembersIncluded)
{
    EXPECT_EQ(names(model.duplicatesFor(*at("b"))), "a b c");
    EXPECT_EQ(names(model.duplicatesFor(*at("x"))), "x y z");
    EXPECT_EQ(names(model.duplicatesFor(*at("z"))), "x y z");

    QList<ResultItem *> visible = model.mainItems();
    visible.removeOne(at("c"));
    model.hide(visible, {at("c")}, false);
    EXPECT_EQ(names(model.duplicatesFor(*at("a"))), "a b c");
    // The automatic selection walks the groups through this array: each group in one run.
    EXPECT_EQ(names(model.mainItemsSorted()), "a b x y z");
}

TEST_F(SimilarResults, AnItemOutsideEveryGroupHasNoOtherCopy)
{
    ResultModel loose;
    SearchRequest request;
    request.detectionMode = DetectionMode::SimilarAudio;
    loose.setResults({picture("m", -1, NAN, 0x0), picture("n", -1, NAN, 0x0)}, request);
    EXPECT_EQ(names(loose.duplicatesFor(loose.allItems()[0])), "m");
}

TEST_F(SimilarResults, DeletingEveryMemberOfAGroupIsWarnedAboutButNotAllButOne)
{
    const DuplicatesFor duplicatesFor = [this](const ResultItem &item) { return model.duplicatesFor(item); };
    const auto warned = [&](std::initializer_list<const char *> chosen) {
        QList<ResultItem *> items;
        QStringList paths;
        for (const char *name : chosen) {
            items.append(at(name));
            paths.append(at(name)->path);
        }
        return doesItemsContainsAllDupesOfAnyItem(items, paths, duplicatesFor).alert.has_value();
    };
    // "a" and "z" stay, one in each group.
    EXPECT_FALSE(warned({"b", "c", "x", "y"}));
    EXPECT_TRUE(warned({"b", "a", "c"}));
    EXPECT_TRUE(warned({"z", "x", "y", "b"}));
}

TEST_F(SimilarResults, TheTopListOpensGroupedBiggestGroupsFirstEachFromItsFirstItem)
{
    ASSERT_TRUE(model.sortDescriptor(ResultList::Top).has_value());
    EXPECT_EQ(model.sortDescriptor(ResultList::Top)->key, QStringLiteral("dupes"));
    EXPECT_TRUE(model.showGroups());
    for (ResultItem &item : model.allItems())
        item.dupes = item.group == 0 ? 3 : 4;
    model.sortDescriptorsDidChange(ResultList::Top);
    EXPECT_EQ(names(model.mainItems()), "x y z a b c");
    EXPECT_NE(at("x")->has(AlternateColor), at("a")->has(AlternateColor));

    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("similarity"), true});
    EXPECT_FALSE(model.showGroups()); // likeness interleaves the groups
    EXPECT_EQ(names(model.mainItems()), "z y c b x a");
}

TEST_F(SimilarResults, TheBottomListMeasuresEachCopyAgainstTheSelectedItem)
{
    model.select(ResultList::Top, {at("b")});
    EXPECT_EQ(model.similarityToSelection(*at("b")), 100.0);
    EXPECT_EQ(model.similarityToSelection(*at("a")), imageSimilarity(1));
    // "c" is 97 % like its group's first item but only as like "b" as three bits allow.
    EXPECT_EQ(model.similarityToSelection(*at("c")), imageSimilarity(3));
    EXPECT_LT(imageSimilarity(3), at("c")->similarity());

    model.setSortDescriptor(ResultList::Bottom, SortDescriptor{QStringLiteral("similarity"), false});
    EXPECT_EQ(names(model.cloneItems()), "b a c");
    model.setSortDescriptor(ResultList::Bottom, SortDescriptor{QStringLiteral("similarity"), true});
    EXPECT_EQ(names(model.cloneItems()), "c a b");

    model.select(ResultList::Top, {at("a"), at("b")});
    EXPECT_TRUE(std::isnan(model.similarityToSelection(*at("a"))));

    ResultModel content;
    content.setResults({picture("d", 0, NAN, 0x0), picture("e", 0, NAN, 0x0)}, SearchRequest{});
    content.select(ResultList::Top, {&content.allItems()[0]});
    EXPECT_TRUE(std::isnan(content.similarityToSelection(content.allItems()[1])));
}

TEST(SimilarityColumn, ShownInWholePercentsOnlyInTheSimilarModes)
{
    EXPECT_EQ(similarityText(100.0), QStringLiteral("100 %"));
    EXPECT_EQ(similarityText(97.2), QStringLiteral("97 %"));
    // Not quite equal never reads as equal.
    EXPECT_EQ(similarityText(99.8), QStringLiteral("99 %"));
    EXPECT_EQ(similarityText(0.0), QStringLiteral("0 %"));
    EXPECT_EQ(similarityText(NAN), QString());
    ResultItem item;
    item.setSimilarity(91.0);
    EXPECT_EQ(cellText(item, QStringLiteral("similarity"), {}), QStringLiteral("91 %"));

    const QString similarity = QStringLiteral("similarity");
    for (DetectionMode mode : {DetectionMode::Content, DetectionMode::Duration, DetectionMode::FileName,
                               DetectionMode::Attribute})
        EXPECT_TRUE(modeHiddenColumns(mode, {}).contains(similarity)) << int(mode);
    const QStringList pictures = modeHiddenColumns(DetectionMode::SimilarImages, {});
    const QStringList recordings = modeHiddenColumns(DetectionMode::SimilarAudio, {});
    EXPECT_FALSE(pictures.contains(similarity));
    EXPECT_FALSE(recordings.contains(similarity));
    EXPECT_FALSE(pictures.contains(QStringLiteral("pixelSize")));
    EXPECT_TRUE(pictures.contains(QStringLiteral("bitrate")));
    EXPECT_FALSE(recordings.contains(QStringLiteral("bitrate")));
    EXPECT_FALSE(recordings.contains(QStringLiteral("duration")));
    EXPECT_TRUE(recordings.contains(QStringLiteral("pixelSize")));
}

} // namespace
