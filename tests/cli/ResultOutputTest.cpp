#include "ResultOutput.h"

#include "names/FileNames.h"
#include "results/ResultsFile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

using namespace selfsame;
using namespace selfsame::cli;

namespace {

ResultItem item(const QString &path, int group, qint64 size, quint64 device, quint64 inode,
                bool clone = false)
{
    ResultItem result;
    result.path = path;
    result.group = group;
    result.dupes = 3;
    result.size = size;
    result.physicalSize = 4096;
    result.modified = 1609459200; // 2021-01-01
    result.device = device;
    result.inode = inode;
    result.set(HasAllocDigest, clone); // the clones share an all-zero allocation digest
    return result;
}

// Three groups, listed out of order. In group 1 "/t/a.txt" is a hard link of the path with
// quotes, a backslash and a tab; group 2 has three separate files, one on another device
// under a reused inode number; group 3 holds two clones sharing their storage.
const QList<ResultItem> kItems = {
    item("/t/z.txt", 2, 10, 1, 30),          item("/t/b,\"q\"\\\t.txt", 1, 100, 1, 10),
    item("/v/clone2", 3, 1000, 1, 41, true), item("/t/données 写真.txt", 1, 100, 1, 11),
    item("/u/x.txt", 2, 10, 2, 30),          item("/t/a.txt", 1, 100, 1, 10),
    item("/v/clone1", 3, 1000, 1, 40, true), item("/t/y.txt", 2, 10, 1, 31)};

TEST(ResultOutput, SummaryFreesEachDistinctStorageOnce)
{
    const ResultSummary summary = summarize(kItems);
    EXPECT_EQ(summary.groups, 3);
    EXPECT_EQ(summary.duplicates, 5);
    EXPECT_EQ(summary.reclaimableBytes, 100 + 2 * 10);
    // Two hard links of one inode and one copy: only the copy's size is freed.
    EXPECT_EQ(summarize({item("/a", 0, 700, 5, 1), item("/b", 0, 700, 5, 1), item("/c", 0, 700, 5, 2)})
                  .reclaimableBytes,
              700);
}

TEST(ResultOutput, TextAndCsvListGroupsInOrder)
{
    EXPECT_EQ(formatResults(kItems, {}, OutputFormat::Text, {}).toStdString(),
              "/t/a.txt\n/t/b,\"q\"\\\\\\t.txt\n/t/données 写真.txt\n\n"
              "/t/y.txt\n/t/z.txt\n/u/x.txt\n\n"
              "/v/clone1\n/v/clone2\n");

    const QList<QByteArray> rows = formatResults(kItems, {}, OutputFormat::Csv, {}).split('\n');
    ASSERT_EQ(rows.size(), 1 + 8 + 1); // header, items, nothing after the last newline
    EXPECT_TRUE(rows[0].startsWith("group,") && rows[0].endsWith(",path,pathBytes")) << rows[0].toStdString();
    EXPECT_EQ(rows[1].toStdString(), "1,3,100,4096,2021-01-01T00:00:00Z,0,/t/a.txt,");
    EXPECT_EQ(rows[2].toStdString(), "1,3,100,4096,2021-01-01T00:00:00Z,0,\"/t/b,\"\"q\"\"\\\t.txt\",");

    // A name that is not UTF-8 shows escaped, and its exact bytes follow in base64.
    const QByteArray latin1("/t/caf\xe9.txt");
    const QByteArray csv = formatResults({item(pathFromBytes(latin1), 0, 5, 1, 1), item("/t/cafe.txt", 0, 5, 1, 2)}, {},
                                         OutputFormat::Csv, {});
    EXPECT_TRUE(csv.contains(",/t/caf\\xE9.txt," + latin1.toBase64() + '\n')) << csv.toStdString();
}

TEST(ResultOutput, JsonHoldsGroupsItemsAndSummary)
{
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(formatResults(kItems, {}, OutputFormat::Json, {}), &error);
    ASSERT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    const QJsonArray groups = document["groups"].toArray();
    ASSERT_EQ(groups.size(), 3);
    const QJsonObject first = groups[0].toObject();
    EXPECT_EQ(first["group"].toInt(), 1);
    EXPECT_EQ(first["dupes"].toInt(), 3);
    EXPECT_EQ(first["size"].toInteger(), 100);
    const QJsonArray items = first["items"].toArray();
    ASSERT_EQ(items.size(), 3);
    EXPECT_EQ(items[1]["path"].toString(), "/t/b,\"q\"\\\t.txt");
    EXPECT_EQ(items[2]["path"].toString(), "/t/données 写真.txt");
    EXPECT_EQ(items[0]["modified"].toString(), "2021-01-01T00:00:00Z");

    EXPECT_EQ(document["summary"]["reclaimableBytes"].toInteger(), 120);
}

TEST(ResultOutput, JsonIsTheResultsFileFormat)
{
    SearchRequest request;
    request.searchInFolderURLs = {QStringLiteral("/t"), QStringLiteral("/u"), QStringLiteral("/v")};
    request.compareFolders = true;
    const ResultsFile::Loaded opened =
        ResultsFile::fromBytes(formatResults(kItems, request, OutputFormat::Json, {}), QStringLiteral("cli.json"));
    ASSERT_TRUE(opened.model) << opened.error.toStdString();
    EXPECT_EQ(opened.model->request().searchInFolderURLs, request.searchInFolderURLs);
    EXPECT_TRUE(opened.model->request().compareFolders);
    ASSERT_EQ(opened.model->mainItems().size(), kItems.size());
    EXPECT_TRUE(opened.model->mainItemsHidden().isEmpty());
    // Group numbers, counts and paths as the search found them; none of these files exists.
    for (const ResultItem *item : opened.model->mainItems()) {
        const auto original = std::find_if(kItems.begin(), kItems.end(),
                                           [&](const ResultItem &i) { return i.path == item->path; });
        ASSERT_NE(original, kItems.end()) << item->path.toStdString();
        EXPECT_EQ(item->group, original->group);
        EXPECT_EQ(item->dupes, original->dupes);
        EXPECT_EQ(item->inode, original->inode);
        EXPECT_TRUE(item->has(Missing));
    }
}

} // namespace
