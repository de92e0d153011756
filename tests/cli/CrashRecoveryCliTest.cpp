// selfsame-cli killed between any two steps of an action, then `selfsame-cli recover`: nothing
// is lost and nothing of ours is left lying about, on every file system the tests may mount.

#include "cli/CliOnVolume.h"
#include "support/ByteFiles.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QDirIterator>
#include <QProcessEnvironment>
#include <QSet>
#include <gtest/gtest.h>
#include <unistd.h>

namespace
{

// Every record of a trash has its file and every file its record.
void expectWholeTrash(const QString &trash)
{
    const QSet<QString> files = entriesBelow(trash + QStringLiteral("/files"));
    QSet<QString> recorded;
    for (const QString &info : entriesBelow(trash + QStringLiteral("/info")))
        recorded.insert(info.chopped(QStringLiteral(".trashinfo").size()));
    EXPECT_EQ(files, recorded) << "in " << trash.toStdString();
}

struct Action {
    QString action; // --trash or --delete; none for replacing by clones in place
    QString mode;   // what --replace-with takes, or empty
    QStringList faultPoints;
};

class CrashRecovery : public ::testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        if (QString::fromUtf8(GetParam()) == u"root") {
            root = tree.path(QStringLiteral("files"));
            return;
        }
        if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
        root = volume.path();
    }
    TempTree tree;
    MountedVolume volume{QString::fromUtf8(GetParam())};
    QString root;
};

} // namespace

TEST_P(CrashRecovery, EveryInterruptedActionIsFinishedOrRolledBack)
{
    const QStringList trashSteps{"trash.recorded", "trash.moved"};
    const QStringList replaceSteps{"replace.staged", "replace.taken-away", "replace.recorded-away",
                                   "replace.swapped", "replace.replaced"};
    std::vector<Action> actions{{"--trash", {}, trashSteps},
                                {"--delete", {}, {"delete.moved-aside", "delete.recorded"}}};
    QStringList modes{"symlink", "relative-symlink", "hardlink", "alias"};
    const bool clones = QString::fromUtf8(GetParam()) == u"btrfs" || QString::fromUtf8(GetParam()) == u"xfs";
    if (clones) modes << "clone";
    for (const QString &mode : modes) {
        actions.push_back({"--trash", mode, trashSteps + replaceSteps});
        actions.push_back({"--delete", mode, replaceSteps});
    }
    // Replacing by clones in place, the way that moves each copy aside (not the kernel's dedupe).
    if (clones) actions.push_back({{}, "clone", {"clone.moved-aside", "clone.cloned", "clone.replaced"}});
    const QByteArray content = patternBytes(40000, 51);
    int run = 0;
    for (const Action &action : actions) {
        const QString &mode = action.mode;
        for (const QString &point : action.faultPoints) {
            SCOPED_TRACE(testing::Message() << action.action.toStdString() << " " << mode.toStdString()
                                            << " killed at " << point.toStdString());
            const QString base = root + QStringLiteral("/run%1").arg(run++);
            const QString home = tree.path(QStringLiteral("home%1").arg(run));
            for (const char *name : {"keep/a.bin", "old/b.bin", "old/c.bin"})
                ASSERT_TRUE(writeBytes((base + u'/' + QString::fromLatin1(name)).toUtf8(), content));
            QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
            environment.insert(QStringLiteral("HOME"), home);
            environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
            environment.insert(QStringLiteral("XDG_STATE_HOME"), home + QStringLiteral("/state"));
            QStringList arguments{"--no-cache", "--select", "folder", base + QStringLiteral("/old"),
                                  "--inside",   "--yes",    base};
            if (!action.action.isEmpty())
                arguments << action.action;
            else
                environment.insert(QStringLiteral("SELFSAME_TEST_NO_DEDUPE"), QStringLiteral("1"));
            if (!mode.isEmpty()) arguments << "--replace-with" << mode;

            environment.insert(QStringLiteral("SELFSAME_TEST_FAULT_POINT"), point);
            const CliRun killed = runCli(arguments, environment);
            EXPECT_TRUE(killed.killed)
                << "the action reached " << point.toStdString() << ": " << killed.err.toStdString();
            environment.remove(QStringLiteral("SELFSAME_TEST_FAULT_POINT"));
            const CliRun recovered = runCli({QStringLiteral("recover")}, environment);
            EXPECT_EQ(recovered.exitCode, 0) << recovered.err.toStdString();
            EXPECT_TRUE(recovered.out.startsWith("1 rolled back") ||
                        recovered.out.startsWith("0 rolled back, 1 finished"))
                << recovered.out.toStdString() << recovered.err.toStdString();
            EXPECT_EQ(runCli({QStringLiteral("recover")}, environment).out,
                      "0 rolled back, 0 finished, 0 failed\n");

            // Nothing stray: only the files made, and each copy either as it was or replaced
            // (or, with nothing to replace it, gone where the action sent it).
            const QSet<QString> entries = entriesBelow(base);
            EXPECT_TRUE(entries.contains(QStringLiteral("keep/a.bin")));
            EXPECT_EQ(readBytes((base + QStringLiteral("/keep/a.bin")).toUtf8()), content);
            for (const QString &entry : entries)
                EXPECT_TRUE(
                    QSet<QString>({"keep", "old", "keep/a.bin", "old/b.bin", "old/c.bin"}).contains(entry))
                    << "stray: " << entry.toStdString();
            for (const char *name : {"old/b.bin", "old/c.bin"}) {
                const QString path = base + u'/' + QString::fromLatin1(name);
                if (!entries.contains(QString::fromLatin1(name))) {
                    EXPECT_TRUE(mode.isEmpty()) << name << " is missing from its path";
                    continue;
                }
                const QByteArray now = readBytes(path.toUtf8());
                EXPECT_TRUE(now == content || (mode == u"alias" && now.startsWith("[Desktop Entry]")))
                    << name << " holds something else";
            }
            expectWholeTrash(home + QStringLiteral("/data/Trash"));
            expectWholeTrash(root + QStringLiteral("/.Trash-") + QString::number(geteuid()));
        }
    }
}

TEST_P(CrashRecovery, AnInterruptedPutBackLeavesNoRecordBehind)
{
    const QString home = tree.path(QStringLiteral("home"));
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    environment.insert(QStringLiteral("XDG_STATE_HOME"), home + QStringLiteral("/state"));
    const QByteArray content = patternBytes(30000, 52);
    const QString base = root + QStringLiteral("/putback");
    for (const char *name : {"keep/a.bin", "old/b.bin"})
        ASSERT_TRUE(writeBytes((base + u'/' + QString::fromLatin1(name)).toUtf8(), content));
    const CliRun trashed = runCli({"--no-cache", "--select", "folder", base + QStringLiteral("/old"),
                                   "--inside", "--trash", "--yes", base},
                                  environment);
    ASSERT_EQ(trashed.exitCode, 0) << trashed.err.toStdString();
    const QString inTrash = QString::fromUtf8(trashed.out).section(QStringLiteral("(now "), 1).chopped(2);
    ASSERT_FALSE(inTrash.isEmpty()) << trashed.out.toStdString();

    environment.insert(QStringLiteral("SELFSAME_TEST_FAULT_POINT"), QStringLiteral("putback.moved"));
    EXPECT_TRUE(runCli({QStringLiteral("put-back"), inTrash}, environment).killed);
    environment.remove(QStringLiteral("SELFSAME_TEST_FAULT_POINT"));
    EXPECT_EQ(runCli({QStringLiteral("recover")}, environment).out, "0 rolled back, 1 finished, 0 failed\n");
    EXPECT_EQ(readBytes((base + QStringLiteral("/old/b.bin")).toUtf8()), content);
    const QString trash = inTrash.startsWith(home)
                              ? home + QStringLiteral("/data/Trash")
                              : root + QStringLiteral("/.Trash-") + QString::number(geteuid());
    EXPECT_TRUE(entriesBelow(trash + QStringLiteral("/info")).isEmpty()) << "no record without its file";
    expectWholeTrash(trash);
}

INSTANTIATE_TEST_SUITE_P(FileSystems, CrashRecovery,
                         ::testing::Values("root", "ext4", "tmpfs", "btrfs", "xfs"));
