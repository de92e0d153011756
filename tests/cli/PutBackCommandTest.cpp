// Runs `selfsame-cli put-back` on files trashed into a temporary data folder.

#include "fileops/Trash.h"
#include "support/FileItems.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

struct PutBackRun {
    int exitCode = -1;
    QByteArray out, err;
};

PutBackRun putBack(const QStringList &files, const QString &home)
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("HOME"), home);
    env.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(SELFSAME_CLI_PATH), QStringList{QStringLiteral("put-back")} + files);
    EXPECT_TRUE(process.waitForFinished(60000));
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

} // namespace

TEST(PutBackCommand, PutsBackRecordedFilesAndReportsEveryFailure)
{
    TrashHome home;
    TempTree files;
    const QString kept = files.file(QStringLiteral("photos/kept.jpg"), "kept");
    const QString taken = files.file(QStringLiteral("photos/taken.jpg"), "taken");
    const QString keptTrashed = trashItem(kept).trashedPath;
    const QString takenTrashed = trashItem(taken).trashedPath;
    ASSERT_FALSE(keptTrashed.isEmpty());
    ASSERT_FALSE(takenTrashed.isEmpty());
    files.file(QStringLiteral("photos/taken.jpg"), "new occupant");
    const QString stray = files.file(QStringLiteral("stray.txt"), "no record");

    const PutBackRun run = putBack({keptTrashed, takenTrashed, stray}, home.path());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(readFile(kept), "kept");
    EXPECT_EQ(readFile(taken), "new occupant") << "never overwritten";
    EXPECT_EQ(readFile(takenTrashed), "taken");
    EXPECT_TRUE(run.out.contains("put back: " + keptTrashed.toUtf8() + " -> " + kept.toUtf8()));
    EXPECT_TRUE(run.err.contains("not put back: " + takenTrashed.toUtf8()));
    EXPECT_TRUE(run.err.contains("not put back: " + stray.toUtf8() + ": no record"));
    EXPECT_TRUE(run.err.endsWith("1 put back, 2 failed\n"));

    QFile::remove(taken);
    EXPECT_EQ(putBack({takenTrashed}, home.path()).exitCode, 0);
    EXPECT_EQ(readFile(taken), "taken");
    EXPECT_EQ(putBack({}, home.path()).exitCode, 2);
}
