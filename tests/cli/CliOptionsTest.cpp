#include "CliOptions.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

using namespace selfsame;
using namespace selfsame::cli;

namespace {

struct AcceptedCase {
    QStringList arguments;
    std::function<bool(const SearchRequest &)> holds;
};

TEST(CliOptions, DefaultsAndOptionsReachTheRequest)
{
    const AcceptedCase cases[] = {
        {{},
         [](const SearchRequest &r) {
             return r.skipHiddenFiles && r.minFileSize == 1 && r.filterFileSize && r.ignoreNonWritable &&
                    r.ignoreOtherOwner && r.limitFolderDepth < 0 && r.extensionsMode == ExtensionsMode::All;
         }},
        {{"--min-size", "10 MB"}, [](const SearchRequest &r) { return r.minFileSize == 10'000'000; }},
        {{"--min-size=4KiB"}, [](const SearchRequest &r) { return r.minFileSize == 4096; }},
        {{"--depth", "1"}, [](const SearchRequest &r) { return r.limitFolderDepth == 0; }},
        {{"--depth=3"}, [](const SearchRequest &r) { return r.limitFolderDepth == 2; }},
        {{"--ext", "JPG, .png"},
         [](const SearchRequest &r) {
             return r.extensions == QSet<QString>{"jpg", "png"} && int(r.extensionsMode) == 1;
         }},
    };
    QTemporaryDir root;
    for (const AcceptedCase &c : cases) {
        const ParseResult result = parseCommandLine(QStringList(c.arguments) << root.path());
        const std::string shown = c.arguments.join(' ').toStdString();
        EXPECT_TRUE(result.error.isEmpty()) << shown << ": " << result.error.toStdString();
        EXPECT_TRUE(c.holds(result.options.request)) << shown;
    }
}

TEST(CliOptions, MetadataModesTakeTheirToleranceAttributeAndNameOptions)
{
    const AcceptedCase cases[] = {
        {{"--mode", "duration"},
         [](const SearchRequest &r) { return r.detectionMode == DetectionMode::Duration && r.durationTolerance == 0.1; }},
        {{"--mode=duration", "--tolerance", "2.5"}, [](const SearchRequest &r) { return r.durationTolerance == 2.5; }},
        {{"--mode", "attribute"},
         [](const SearchRequest &r) { return r.spotlightAttribute == "kMDItemTitle" && r.spotlightTolerance == 0; }},
        // Seconds of arc stay as given here; the search turns them into degrees.
        {{"--mode", "attribute", "--attribute", "kMDItemLatitude", "--tolerance", "36"},
         [](const SearchRequest &r) {
             return r.spotlightAttribute == "kMDItemLatitude" && r.spotlightTolerance == 36 &&
                    storedRequest(r).spotlightTolerance == 0.01;
         }},
        // Strings have no tolerance.
        {{"--mode", "attribute", "--attribute", "kMDItemAlbum", "--tolerance", "5"},
         [](const SearchRequest &r) { return r.spotlightTolerance == 0; }},
        {{"--mode", "attribute", "--attribute", "kMDItemSomethingCustom", "--tolerance", "5"},
         [](const SearchRequest &r) { return r.spotlightTolerance == 5; }},
        {{"--mode", "name"},
         [](const SearchRequest &r) {
             return r.detectionMode == DetectionMode::FileName && !r.filenameIgnoreExtension &&
                    !r.filenameIgnoreCommonSuffixRegexes;
         }},
        {{"--mode", "name", "--ignore-extension", "--ignore-suffixes"},
         [](const SearchRequest &r) {
             return r.filenameIgnoreExtension && r.filenameIgnoreCommonSuffixRegexes &&
                    r.filenameIgnoreCommonSuffixRegexes->size() == 5;
         }},
        {{"--mode", "name", "--suffixes", " old,_v##"},
         [](const SearchRequest &r) {
             return r.filenameIgnoreCommonSuffixRegexes && r.filenameIgnoreCommonSuffixRegexes->size() == 2 &&
                    r.filenameIgnoreCommonSuffixRegexes->at(1).match("plan_v12").hasMatch();
         }},
    };
    QTemporaryDir root;
    for (const AcceptedCase &c : cases) {
        const ParseResult result = parseCommandLine(QStringList(c.arguments) << root.path());
        const std::string shown = c.arguments.join(' ').toStdString();
        EXPECT_TRUE(result.error.isEmpty()) << shown << ": " << result.error.toStdString();
        EXPECT_TRUE(c.holds(result.options.request)) << shown;
    }
}

TEST(CliOptions, ListAttributesTakesAnOptionalExtensionAndNeedsNoPath)
{
    EXPECT_EQ(parseCommandLine({"--list-attributes"}).options.listAttributes, QString());
    EXPECT_EQ(parseCommandLine({"--list-attributes", "jpg"}).options.listAttributes, QString("jpg"));
    EXPECT_EQ(parseCommandLine({"--list-attributes=mp4"}).options.listAttributes, QString("mp4"));
    const ParseResult beforeOption = parseCommandLine({"--list-attributes", "--summary"});
    EXPECT_TRUE(beforeOption.error.isEmpty());
    EXPECT_EQ(beforeOption.options.listAttributes, QString());
}

TEST(CliOptions, MalformedCommandLinesAreRefusedWithUsage)
{
    QTemporaryDir root;
    const QStringList cases[] = {
        {"--min-size", "MB", root.path()},
        {"--max-size", "", root.path()},
        {"--depth", "0", root.path()},
        {"--depth", "two", root.path()},
        {"--ext", ",", root.path()},
        {"--format", "xml", root.path()},
        {"--summary=yes", root.path()},
        {"--frobnicate", root.path()},
        {"-x", root.path()},
        {"--ext", "jpg", "--exclude-ext", "png", root.path()},
        {root.path(), "--min-size"}, // the value is missing
        {"--include-hidden"},        // no path at all
        {"--mode", "size", root.path()},
        {"--mode", "duration", "--tolerance", "-1", root.path()},
        {"--mode", "duration", "--tolerance", "soon", root.path()},
        {"--tolerance", "1", root.path()}, // the content mode has none
        {"--attribute", "kMDItemTitle", root.path()},
        {"--mode", "attribute", "--attribute", "", root.path()},
        {"--mode", "duration", "--ignore-suffixes", root.path()},
        {"--suffixes", " copy", root.path()},
    };
    for (const QStringList &arguments : cases) {
        const ParseResult result = parseCommandLine(arguments);
        EXPECT_FALSE(result.error.isEmpty()) << arguments.join(' ').toStdString();
        EXPECT_TRUE(result.showUsage) << arguments.join(' ').toStdString();
    }
}

TEST(CliOptions, InvalidSkipExpressionNamesTheGeneratedPattern)
{
    QTemporaryDir root;
    const ParseResult result = parseCommandLine({"--skip", "*.bak", "--skip", "keep/a(b/", root.path()});
    EXPECT_TRUE(result.error.startsWith("Invalid regular expression:\n^\\Qkeep\\Ea(b$\n") ||
                result.error == "Invalid regular expression:\n^\\Qkeep\\Ea(b$")
        << result.error.toStdString();
}

TEST(CliOptions, MissingPathsAreListedAndTheOthersSearched)
{
    QTemporaryDir root, other;
    const QString gone = root.filePath("gone"), alsoGone = root.filePath("also gone.txt");
    const ParseResult result = parseCommandLine({gone, root.path() + "/./", alsoGone, "--", other.path()});
    EXPECT_TRUE(result.error.isEmpty()) << result.error.toStdString();
    EXPECT_EQ(result.options.missingPaths, (QStringList{gone, alsoGone}));
    EXPECT_EQ(result.options.request.searchInFolderURLs,
              (QStringList{QDir::cleanPath(root.path()), QDir::cleanPath(other.path())}));

    const ParseResult none = parseCommandLine({gone, alsoGone});
    EXPECT_FALSE(none.error.isEmpty());
    EXPECT_EQ(none.options.missingPaths.size(), 2);
}

} // namespace
