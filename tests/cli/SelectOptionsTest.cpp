#include "CliOptions.h"
#include "ResultOutput.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace selfsame;
using namespace selfsame::cli;

namespace
{

ParseResult parse(QStringList arguments, const QTemporaryDir &root)
{
    return parseCommandLine(arguments << root.path());
}

TEST(SelectOptions, RulesAndTheirOptionsBecomeSettings)
{
    QTemporaryDir root;
    QDir(root.path()).mkdir(QStringLiteral("keep"));
    const QString folder = root.path() + QStringLiteral("/keep");

    EXPECT_FALSE(parse({}, root).options.select.has_value());
    EXPECT_EQ(parse({"--select", "same-folder-name"}, root).options.select->choice, SameFolderSameName);

    const auto sameFolder =
        parse({"--select", "same-folder", "--keep", "newest", "--date=created"}, root).options.select;
    ASSERT_TRUE(sameFolder);
    EXPECT_EQ(sameFolder->choice, SameFolderWhateverName);
    EXPECT_EQ(sameFolder->oldest, 1);
    EXPECT_EQ(sameFolder->date, 0);

    const auto inFolder =
        parse({"--select", "folder", folder, "--outside-any-depth", "--if-older", "--date", "last-used"},
              root)
            .options.select;
    ASSERT_TRUE(inFolder);
    EXPECT_EQ(inFolder->folder, QDir::cleanPath(folder));
    EXPECT_EQ(inFolder->inside, OutsideAtAnyDepth);
    EXPECT_EQ(inFolder->insideOldest, EarlierDate);
    EXPECT_EQ(inFolder->insideDate, 2);

    const auto tag = parse({"--select", "tag", "Red", "--not-having"}, root).options.select;
    ASSERT_TRUE(tag);
    EXPECT_EQ(tag->tagValue, QStringLiteral("Red"));
    EXPECT_EQ(tag->tagCondition, NotHavingTag);
    EXPECT_EQ(parse({"--select", "tag", "--no-tag"}, root).options.select->tagCondition, HavingNoTag);
    EXPECT_EQ(parse({"--select", "largest-picture"}, root).options.select->choice, LargestPicture);
    EXPECT_EQ(parse({"--select", "highest-bitrate"}, root).options.select->choice, BestRecording);
}

TEST(SelectOptions, OptionsThatDoNotFitTheRuleAreRefused)
{
    QTemporaryDir root;
    const QStringList cases[] = {
        {"--select", "biggest"},
        {"--select", "same-folder", "--keep", "middle"},
        {"--select", "same-folder", "--date", "yesterday"},
        {"--select", "same-folder-name", "--keep", "oldest"},
        {"--select", "largest-picture", "--date", "created"},
        {"--select", "highest-bitrate", "--inside"},
        {"--select", "same-folder", "--inside"},
        {"--select", "folder", root.path() + QStringLiteral("/missing")},
        {"--select", "tag", "--having"},
        {"--select", "tag", "Red", "--any-tag"},
        {"--select", "tag", "Red", "--if-newer"},
        {"--keep", "oldest"},
        {"--select", "same-folder-name", "--select", "same-folder"},
    };
    for (const QStringList &arguments : cases) {
        const ParseResult result = parse(arguments, root);
        EXPECT_FALSE(result.error.isEmpty()) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(result.showUsage) << arguments.join(u' ').toStdString();
    }
}

TEST(SelectOutput, EveryFormatSaysWhatTheRuleDecided)
{
    QList<ResultItem> items(4);
    const char *paths[] = {"/t/a", "/t/b", "/t/c", "/t/d"};
    for (int i = 0; i < 4; ++i) {
        items[i].path = QString::fromUtf8(paths[i]);
        items[i].group = i / 2;
    }
    AutoSelection selection;
    selection.select(&items[1]);
    selection.skip(&items[0]);
    EXPECT_EQ(formatResults(items, {}, OutputFormat::Text, {}, &selection).toStdString(),
              "keep /t/a\nselect /t/b\n\n  /t/c\n  /t/d\n");
    EXPECT_EQ(formatResults(items, {}, OutputFormat::Text, {}).toStdString(), "/t/a\n/t/b\n\n/t/c\n/t/d\n");
    const char nulTerminated[] = "keep /t/a\0select /t/b\0\0  /t/c\0  /t/d\0\0";
    EXPECT_EQ(formatResults(items, {}, OutputFormat::NulTerminated, {}, &selection),
              QByteArray(nulTerminated, sizeof nulTerminated - 1));

    const QList<QByteArray> rows = formatResults(items, {}, OutputFormat::Csv, {}, &selection).split('\n');
    EXPECT_TRUE(rows[0].endsWith(",autoSelect,path,pathBytes"));
    EXPECT_TRUE(rows[1].endsWith(",kept,/t/a,"));
    EXPECT_TRUE(rows[2].endsWith(",selected,/t/b,"));
    EXPECT_TRUE(rows[3].endsWith(",0,,/t/c,"));

    const QJsonObject json =
        QJsonDocument::fromJson(formatResults(items, {}, OutputFormat::Json, {}, &selection)).object();
    const QJsonArray groups = json["groups"].toArray();
    EXPECT_EQ(groups[0]["items"][0]["autoSelect"].toString(), QStringLiteral("kept"));
    EXPECT_EQ(groups[0]["items"][1]["autoSelect"].toString(), QStringLiteral("selected"));
    EXPECT_TRUE(groups[1]["items"][0]["autoSelect"].isNull());
    EXPECT_FALSE(QJsonDocument::fromJson(formatResults(items, {}, OutputFormat::Json, {}))
                     .object()["groups"][0]["items"][0]
                     .toObject()
                     .contains(QStringLiteral("autoSelect")));
}

} // namespace
