// The real executable, twice: the second start hands its request to the first and ends.
#include "SearchDefaults.h"
#include "Settings.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

QProcessEnvironment isolatedEnvironment(const TempTree &tree)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), tree.path(QStringLiteral("run")));
    env.insert(QStringLiteral("XDG_CONFIG_HOME"), tree.path(QStringLiteral("config")));
    env.insert(QStringLiteral("XDG_CACHE_HOME"), tree.path(QStringLiteral("cache")));
    return env;
}

} // namespace

TEST(HandOver, SearchOfALaterStartRunsInTheFirstInstance)
{
    TempTree tree;
    tree.build({"run/", "config/Selfsame/", "photos/a:2", "photos/b:2"});
    QFile::setPermissions(tree.path(QStringLiteral("run")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString settingsFile = tree.path(QStringLiteral("config/Selfsame/Selfsame.conf"));
    {
        Settings settings(settingsFile);
        settings.setValue(key::welcomeShowAtStartup, false);
    }

    QProcess first;
    first.setProcessEnvironment(isolatedEnvironment(tree));
    first.start(QStringLiteral(SELFSAME_APP_PATH), {});
    ASSERT_TRUE(first.waitForStarted());
    const QString socket = tree.path(QStringLiteral("run/selfsame-instance"));
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(socket); }, 15000))
        << "the first start listens";

    QProcess second;
    second.setProcessEnvironment(isolatedEnvironment(tree));
    second.setWorkingDirectory(tree.path());
    second.start(QStringLiteral(SELFSAME_APP_PATH), {QStringLiteral("--search"), QStringLiteral("photos")});
    ASSERT_TRUE(second.waitForFinished(15000)) << "the second start hands over and ends";
    EXPECT_EQ(second.exitCode(), 0);

    // The search ran there: it keeps the digests it read in its cache.
    const QString cache = tree.path(QStringLiteral("cache/selfsame/digests.sqlite"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFileInfo::exists(cache); }, 15000))
        << "the first instance searched the folder";
    EXPECT_TRUE(Settings(settingsFile).recordList(key::searchLocations).isEmpty())
        << "a search from outside is a one-off: the saved locations stay as they were";
    EXPECT_EQ(first.state(), QProcess::Running);
    first.terminate();
    first.waitForFinished(5000);
}
