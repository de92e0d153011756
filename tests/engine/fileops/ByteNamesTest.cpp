// Names that are not UTF-8, or hold a newline, survive a search, the trash and put back byte for
// byte, and are never confused with names that look alike.

#include "fileops/DeleteActions.h"
#include "fileops/PutBack.h"
#include "fileops/Replacement.h"
#include "fileops/Trash.h"
#include "names/FileNames.h"
#include "support/ByteFiles.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QFileInfo>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;


TEST(ByteNames, SearchTrashAndPutBackKeepEveryByte)
{
    TrashHome home;
    TempTree tree;
    const QByteArray root = QFileInfo(tree.path()).canonicalFilePath().toUtf8();
    const QByteArray latin1 = root + "/bad\xff.txt", lookalike = root + "/bad\xef\xbf\xbd.txt",
                     newline = root + "/two\nlines.txt", keep = root + "/keep.txt";
    const QByteArray shared = patternBytes(4000, 31);
    for (const auto &[path, content] : {std::pair{latin1, shared}, std::pair{newline, shared}, std::pair{keep, shared},
                                        std::pair{lookalike, patternBytes(4000, 32)}})
        ASSERT_TRUE(writeBytes(path, content));

    SearchHarness harness;
    QList<ResultItem> items = harness.run({}, pathFromBytes(root));
    QStringList found;
    for (const ResultItem &item : items)
        found.append(item.path);
    ASSERT_EQ(items.size(), 3) << found.join(u'|').toStdString();
    ResultItem *keeper = nullptr;
    QList<ResultItem *> others;
    for (ResultItem &item : items) {
        EXPECT_TRUE(existsBytes(pathBytes(item.path))) << displayPath(item.path).toStdString();
        if (pathBytes(item.path) == keep)
            keeper = &item;
        else
            others.append(&item);
    }
    ASSERT_TRUE(keeper);

    const DeleteReport report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, keeper, others);
    EXPECT_EQ(report.removalFailures, 0) << report.outcomes.value(0).error.toStdString();
    EXPECT_FALSE(existsBytes(latin1));
    EXPECT_FALSE(existsBytes(newline));
    EXPECT_EQ(readBytes(lookalike), patternBytes(4000, 32)) << "the look-alike is never reached";
    const QByteArray trashed = pathBytes(home.trash()) + "/files/bad\xff.txt";
    EXPECT_EQ(readBytes(trashed), shared);
    EXPECT_TRUE(readBytes(pathBytes(home.trash()) + "/info/bad\xff.txt.trashinfo").contains("/bad%FF.txt\n"));

    for (ResultItem *item : others)
        EXPECT_TRUE(putBackItem(*item).ok()) << displayPath(item->path).toStdString();
    EXPECT_EQ(readBytes(latin1), shared);
    EXPECT_EQ(readBytes(newline), shared);
    EXPECT_EQ(putBackPath(pathFromBytes(trashed)), QString()) << "its record went with it";
}

TEST(ByteNames, LinksAndTrashRecordsCarryTheExactBytes)
{
    TrashHome home;
    TempTree tree;
    const QByteArray folder = tree.folder(QStringLiteral("f")).toUtf8();
    const QByteArray reference = folder + "/r\xe9"
                                          "f\xe9"
                                          "rence",
                     copy = folder + "/copie\xff";
    ASSERT_TRUE(writeBytes(copy, "x"));
    ASSERT_EQ(makeReplacement(ReplaceWithRelativeSymbolicLink, pathFromBytes(reference),
                              pathFromBytes(folder + "/rel"), false),
              0);
    ASSERT_EQ(
        makeReplacement(ReplaceWithAlias, pathFromBytes(reference), pathFromBytes(folder + "/alias"), false),
        0);
    char target[256] = {};
    ASSERT_GT(readlink((folder + "/rel").constData(), target, sizeof target), 0);
    EXPECT_EQ(QByteArray(target), QByteArray("r\xe9"
                                             "f\xe9"
                                             "rence"));
    const QByteArray entry = readBytes(folder + "/alias");
    EXPECT_TRUE(entry.contains("/r%E9f%E9rence\n")) << entry.toStdString();
    EXPECT_TRUE(entry.contains("Name=r\\xE9f\\xE9rence\n")) << "the shown name is text";

    const TrashResult trashed = trashItem(pathFromBytes(copy));
    ASSERT_TRUE(trashed.errorText.isEmpty()) << trashed.errorText.toStdString();
    EXPECT_EQ(putBackPath(trashed.trashedPath), pathFromBytes(copy));
    removePutBackAttribute(trashed.trashedPath); // the record alone must say it too
    EXPECT_EQ(putBackPath(trashed.trashedPath), pathFromBytes(copy));
    ASSERT_TRUE(putBackFile(trashed.trashedPath, putBackPath(trashed.trashedPath)).ok());
    EXPECT_EQ(readBytes(copy), "x");
}
