#include "fileops/CloneWorker.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace selfsame;

TEST(PlanFolders, ThoseOfProcessesThatAreGoneAreRemoved)
{
    TempTree tree;
    const bool hadRuntime = qEnvironmentVariableIsSet("XDG_RUNTIME_DIR");
    const QByteArray oldRuntime = qgetenv("XDG_RUNTIME_DIR");
    qputenv("XDG_RUNTIME_DIR", tree.path().toUtf8());
    // No process has an id above the kernel's largest, 2^22.
    const QString gone = tree.folder(QStringLiteral("Selfsame-4194305-a1b2c3"));
    const QString running = tree.folder(QStringLiteral("Selfsame-%1-d4e5f6").arg(getpid()));
    const QString other = tree.folder(QStringLiteral("Selfsame-notes-kept"));
    const auto plan = makePlanFolder();
    ASSERT_TRUE(plan->isValid());
    EXPECT_TRUE(plan->path().startsWith(tree.path(QStringLiteral("Selfsame-%1-").arg(getpid()))));

    EXPECT_EQ(removeStalePlanFolders(), 1);
    if (hadRuntime)
        qputenv("XDG_RUNTIME_DIR", oldRuntime);
    else
        qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_FALSE(QDir(gone).exists());
    EXPECT_TRUE(QDir(running).exists());
    EXPECT_TRUE(QDir(other).exists());
    EXPECT_TRUE(QDir(plan->path()).exists());
}
