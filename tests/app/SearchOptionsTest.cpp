#include "SearchOptions.h"

#include "CompareFoldersWarning.h"
#include "SearchDefaults.h"
#include "Settings.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

struct Store {
    QTemporaryDir dir;
    Settings settings{dir.filePath(QStringLiteral("Selfsame.conf"))};
    Store() { registerSearchDefaults(settings); }
};

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

} // namespace

TEST(SearchOptions, FirstLaunchShowsTheRegisteredDefaults)
{
    Store store;
    const SearchOptions o = loadSearchOptions(store.settings);
    EXPECT_FALSE(o.limitFolderDepth);
    EXPECT_EQ(o.folderDepthField, 1);
    EXPECT_FALSE(o.extensionsOn);
    EXPECT_TRUE(o.filterFileSize);
    EXPECT_EQ(o.minFileSizeText, QStringLiteral("1 B"));
    EXPECT_EQ(o.maxFileSizeText, QString()) << "a maximum of 0 under a positive minimum means none";
    EXPECT_EQ(o.commonSuffixesText, QStringLiteral(" copy, copy #, #,-#, (#)"));
    EXPECT_EQ(o.detectionMode, 0);
}

TEST(SearchOptions, StoredDepthAndExtensionModeSetTheirCheckBoxes)
{
    Store store;
    store.settings.setValue(key::limitFolderDepth, 2);
    store.settings.setValue(key::extensionsMode, 2);
    store.settings.setValue(key::minFileSize, 0);
    SearchOptions o = loadSearchOptions(store.settings);
    EXPECT_TRUE(o.limitFolderDepth);
    EXPECT_EQ(o.folderDepthField, 3);
    EXPECT_TRUE(o.extensionsOn);
    EXPECT_EQ(o.extensionsPopupTag, 2);
    EXPECT_EQ(o.maxFileSizeText, QStringLiteral("0 B")) << "with no minimum, a maximum of 0 is shown";

    store.settings.setValue(key::extensionsMode, 0);
    o = loadSearchOptions(store.settings);
    EXPECT_FALSE(o.extensionsOn);
    EXPECT_EQ(o.extensionsPopupTag, 1) << "the pop-up keeps its item";
}

TEST(SearchOptions, StartingASearchBuildsTheRequestAndSavesEveryOption)
{
    Store store;
    SearchOptions o = loadSearchOptions(store.settings);
    o.limitFolderDepth = true;
    o.folderDepthField = 1;
    o.extensionsOn = true;
    o.extensionsPopupTag = 1;
    o.extensionsText = QStringLiteral(" .JPG  tar.gz,png\tHeic ");
    o.skipFilenames = true;
    o.skipFilenamesText = QStringLiteral("  *.tmp  \n\nIMG*\n/^\\d+$/");
    o.minFileSizeText = QStringLiteral("12mb");
    o.maxFileSizeText = QStringLiteral("abc 2 GiB");
    o.detectionMode = 1;
    o.durationTolerance = 0.5;

    const SearchStart start = startSearch(o, {QStringLiteral("/data")}, store.settings);
    ASSERT_TRUE(start.request.has_value());
    const SearchRequest &r = *start.request;
    EXPECT_EQ(r.searchInFolderURLs, QStringList{QStringLiteral("/data")});
    EXPECT_EQ(r.limitFolderDepth, 0) << "a field of 1 means the location's direct children";
    EXPECT_EQ(r.extensionsMode, ExtensionsMode::Only);
    EXPECT_EQ(sorted(QStringList(r.extensions.begin(), r.extensions.end())),
              (QStringList{QStringLiteral("heic"), QStringLiteral("jpg"), QStringLiteral("targz,png")}));
    EXPECT_EQ(start.shownOptions.extensionsText, QStringLiteral("heic jpg targz,png"));
    EXPECT_EQ(store.settings.stringValue(key::extensionsList), QStringLiteral("heic jpg targz,png"));

    ASSERT_EQ(r.skipFilenameRegexes.size(), 3);
    auto skipped = [&](const QString &name) {
        return std::any_of(r.skipFilenameRegexes.begin(), r.skipFilenameRegexes.end(),
                           [&](const QRegularExpression &e) { return e.match(name).hasMatch(); });
    };
    EXPECT_TRUE(skipped(QStringLiteral("report.TMP"))) << "lines are trimmed and matched in any case";
    EXPECT_TRUE(skipped(QStringLiteral("img_0001.jpg")));
    EXPECT_TRUE(skipped(QStringLiteral("12345")));
    EXPECT_FALSE(skipped(QStringLiteral("photo.jpg")));
    EXPECT_EQ(store.settings.stringValue(key::skipFilenamePatterns), o.skipFilenamesText);

    EXPECT_EQ(r.minFileSize, 12'000'000);
    EXPECT_EQ(r.maxFileSize, 2LL << 30);
    EXPECT_EQ(start.shownOptions.minFileSizeText, QStringLiteral("12 MB"));
    EXPECT_EQ(start.shownOptions.maxFileSizeText, QStringLiteral("2 GiB"));
    EXPECT_EQ(store.settings.integerValue(key::maxFileSize), 2LL << 30);

    EXPECT_EQ(r.detectionMode, DetectionMode::Duration);
    EXPECT_DOUBLE_EQ(r.durationTolerance, 0.5);
    EXPECT_EQ(store.settings.integerValue(key::detectionMode), 1);
    EXPECT_EQ(store.settings.integerValue(key::limitFolderDepth), 0);
    EXPECT_FALSE(r.filenameIgnoreCommonSuffixRegexes.has_value()) << "suffixes are off";

    const SearchOptions reloaded = loadSearchOptions(store.settings);
    EXPECT_EQ(reloaded.folderDepthField, 1);
    EXPECT_TRUE(reloaded.limitFolderDepth);
    EXPECT_EQ(reloaded.minFileSizeText, QStringLiteral("12 MB"));
}

TEST(SearchOptions, AnInvalidSkipPatternStopsAfterTheEarlierOptionsAreSaved)
{
    Store store;
    SearchOptions o = loadSearchOptions(store.settings);
    o.skipHiddenFiles = false;
    o.limitFolderDepth = true;
    o.folderDepthField = 4;
    o.skipFilenames = true;
    o.skipFilenamesText = QStringLiteral("/(/\n*.ok\n/[/");
    o.minFileSizeText = QStringLiteral("5 kB");
    o.extensionsText = QStringLiteral("JPG");

    const SearchStart start = startSearch(o, {QStringLiteral("/data")}, store.settings);
    EXPECT_FALSE(start.request.has_value());
    EXPECT_EQ(start.invalidPattern.pattern, QStringLiteral("^[$"))
        << "the last failing expression as generated";
    EXPECT_FALSE(start.invalidPattern.message.isEmpty());
    EXPECT_FALSE(store.settings.boolValue(key::skipHiddenFiles));
    EXPECT_EQ(store.settings.integerValue(key::limitFolderDepth), 3);
    EXPECT_FALSE(store.settings.isStored(key::skipFilenamePatterns));
    EXPECT_FALSE(store.settings.isStored(key::extensionsList));
    EXPECT_FALSE(store.settings.isStored(key::minFileSize));
}

TEST(SearchOptions, AnEmptySuffixFieldIsRefilledAndSuffixesKeepTheirBlanks)
{
    Store store;
    SearchOptions o = loadSearchOptions(store.settings);
    o.detectionMode = 2;
    o.filenameIgnoreCommonSuffixes = true;
    o.commonSuffixesText.clear();
    SearchStart start = startSearch(o, {}, store.settings);
    ASSERT_TRUE(start.request.has_value());
    EXPECT_EQ(start.shownOptions.commonSuffixesText, QStringLiteral(" copy, copy #, #,-#, (#)"));
    EXPECT_EQ(store.settings.stringValue(key::commonSuffixes), QStringLiteral(" copy, copy #, #,-#, (#)"));
    ASSERT_TRUE(start.request->filenameIgnoreCommonSuffixRegexes.has_value());
    ASSERT_EQ(start.request->filenameIgnoreCommonSuffixRegexes->size(), 5);
    auto ends = [&](const QString &name) {
        const auto &regexes = *start.request->filenameIgnoreCommonSuffixRegexes;
        return std::any_of(regexes.begin(), regexes.end(),
                           [&](const QRegularExpression &e) { return e.match(name).hasMatch(); });
    };
    EXPECT_TRUE(ends(QStringLiteral("holiday copy 2")));
    EXPECT_TRUE(ends(QStringLiteral("holiday (12)")));
    EXPECT_FALSE(ends(QStringLiteral("holidaycopy"))) << "the blank before copy belongs to the suffix";

    o.commonSuffixesText = QStringLiteral("_v##");
    start = startSearch(o, {}, store.settings);
    EXPECT_EQ(store.settings.stringValue(key::commonSuffixes), QStringLiteral("_v##"));
    EXPECT_TRUE(
        (*start.request->filenameIgnoreCommonSuffixRegexes)[0].match(QStringLiteral("song_v123")).hasMatch());
}

TEST(SearchOptions, AHiddenAttributeToleranceSearchesExactlyButKeepsTheField)
{
    Store store;
    SearchOptions o = loadSearchOptions(store.settings);
    o.detectionMode = 3;
    o.spotlightAttribute = QStringLiteral("kMDItemAlbum");
    o.spotlightTolerance = 7.5;
    o.spotlightToleranceVisible = false;
    SearchStart start = startSearch(o, {}, store.settings);
    EXPECT_DOUBLE_EQ(start.request->spotlightTolerance, 0.0);
    EXPECT_DOUBLE_EQ(store.settings.doubleValue(key::spotlightTolerance), 7.5);
    EXPECT_EQ(store.settings.stringValue(key::spotlightAttribute), QStringLiteral("kMDItemAlbum"));

    o.spotlightToleranceVisible = true;
    start = startSearch(o, {}, store.settings);
    EXPECT_DOUBLE_EQ(start.request->spotlightTolerance, 7.5);
}

TEST(CompareFoldersWarning, ShownOnceEachTimeTheCombinationTurnsRisky)
{
    CompareFoldersWarning warning;
    const CompareFoldersWarning::State risky{true, true, true};
    EXPECT_TRUE(warning.update(risky));
    EXPECT_FALSE(warning.update(risky)) << "not again while it stays risky";
    EXPECT_FALSE(warning.update({true, true, true}));

    EXPECT_FALSE(warning.update({true, true, false})) << "no filter: safe";
    EXPECT_TRUE(warning.update(risky));
    EXPECT_FALSE(warning.update({false, true, true})) << "other modes compare no folders";
    EXPECT_TRUE(warning.update(risky));
    EXPECT_FALSE(warning.update({true, false, true}));
    EXPECT_TRUE(warning.update(risky));
}
