// selfsame-cli never deletes the only copy of a content, however the file is reached or named.

#include "cli/CliProcess.h"
#include "support/ByteFiles.h"
#include "support/TempTree.h"

#include <QFile>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

namespace
{

TEST(OnlyCopyCli, AFileReachedThroughALinkedFolderIsNeverDeletedAsItsOwnCopy)
{
    TempTree tree;
    const QByteArray only = patternBytes(5000, 21);
    tree.file(QStringLiteral("A/sub/only.bin"), only);
    const QString a = tree.path(QStringLiteral("A")), link = tree.symlink(QStringLiteral("Alink"), a);
    const QString file = tree.path(QStringLiteral("A/sub/only.bin"));
    const QList<QStringList> commands = {
        {"--no-cache", "--select", "folder", link, "--inside-any-depth", "--delete", "--yes", a, link},
        {"--compare-folders", "--select", "folder", link, "--inside-any-depth", "--delete", "--yes", a, link},
        {"--select", "folder", link, "--inside", "--delete", "--yes", "--anywhere", file, link},
        {"--select", "folder", link, "--inside-any-depth", "--replace-with", "symlink", "--yes", a, link},
    };
    for (const QStringList &command : commands) {
        runCli(command);
        struct stat st {
        };
        ASSERT_EQ(lstat(file.toUtf8().constData(), &st), 0) << command.join(u' ').toStdString();
        EXPECT_TRUE(S_ISREG(st.st_mode));
        EXPECT_EQ(readBytes(file.toUtf8()), only);
    }
}

TEST(OnlyCopyCli, NamesThatLookAlikeAreNeverConfused)
{
    TempTree tree;
    // A Latin-1 name and one literally holding U+FFFD: a lossy decoding makes them one text.
    const QByteArray folder = tree.folder(QStringLiteral("u8")).toUtf8();
    const QByteArray invalid = folder + "/u\xff.bin", replacement = folder + "/u\xef\xbf\xbd.bin";
    const QByteArray shared = patternBytes(5000, 22), unique = patternBytes(5000, 23);
    for (const auto &[path, bytes] : {std::pair{invalid, shared}, std::pair{replacement, unique},
                                      std::pair{folder + "/keep.bin", shared}})
        ASSERT_TRUE(writeBytes(path, bytes));
    const utimbuf old{1577836800, 1577836800}, newer{1683280800, 1683280800};
    ASSERT_EQ(utime((folder + "/keep.bin").constData(), &old), 0);
    ASSERT_EQ(utime(invalid.constData(), &newer), 0);
    ASSERT_EQ(utime(replacement.constData(), &newer), 0);

    runCli({"--no-cache", "--select", "same-folder", "--keep", "oldest", "--delete", "--yes",
            QString::fromUtf8(folder)});
    EXPECT_EQ(readBytes(replacement), unique) << "the file with no copy is never reached";
    EXPECT_EQ(readBytes(folder + "/keep.bin"), shared);
}

// The checks hold back only what changed: copies found by a search and left as they were go,
// even when each new hard link moves the kept copy's change time.
TEST(OnlyCopyCli, UnchangedCopiesAreStillActedOn)
{
    TempTree tree;
    const QByteArray content = patternBytes(8000, 24);
    tree.file(QStringLiteral("keep/a.bin"), content);
    tree.file(QStringLiteral("other/b.bin"), content);
    tree.file(QStringLiteral("other/c.bin"), content);
    tree.file(QStringLiteral("other/d.bin"), content);
    CliRun run = runCli({"--no-cache", "--select", "folder", tree.path(QStringLiteral("other")), "--inside",
                         "--replace-with", "hardlink", "--yes", tree.path()});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    struct stat st {
    };
    ASSERT_EQ(stat(tree.path(QStringLiteral("keep/a.bin")).toUtf8().constData(), &st), 0);
    EXPECT_EQ(st.st_nlink, 4u) << run.err.toStdString();

    tree.file(QStringLiteral("third/e.bin"), patternBytes(9000, 25));
    tree.file(QStringLiteral("third/f.bin"), patternBytes(9000, 25));
    run = runCli({"--no-cache", "--select", "same-folder", "--keep", "oldest", "--delete", "--yes",
                  tree.path(QStringLiteral("third"))});
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_NE(QFile::exists(tree.path(QStringLiteral("third/e.bin"))),
              QFile::exists(tree.path(QStringLiteral("third/f.bin"))));
}

} // namespace
