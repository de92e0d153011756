// selfsame-cli keeps digests in the cache under XDG_CACHE_HOME unless told not to, and finds the
// copies of one file with --anywhere.

#include "support/TempTree.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>

#include <gtest/gtest.h>

namespace {

int runCli(const QStringList &arguments, QByteArray *out = nullptr)
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv);
    QProcess process;
    process.start(QStringLiteral(SELFSAME_CLI_PATH), arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    if (out)
        *out = process.readAllStandardOutput();
    return process.exitCode();
}

TEST(DigestCacheCli, NoCacheLeavesItAloneAndClearCacheRemovesIt)
{
    TempTree tree;
    tree.build({"a:3", "b:3"});
    const QString cache = qEnvironmentVariable("XDG_CACHE_HOME") + QStringLiteral("/selfsame/digests.sqlite");
    ASSERT_FALSE(qEnvironmentVariableIsEmpty("XDG_CACHE_HOME"));
    runCli({QStringLiteral("clear-cache")});
    EXPECT_EQ(runCli({QStringLiteral("--no-cache"), tree.path()}), 0);
    EXPECT_FALSE(QFileInfo::exists(cache));
    EXPECT_EQ(runCli({tree.path()}), 0);
    EXPECT_TRUE(QFileInfo::exists(cache));
    QByteArray out;
    EXPECT_EQ(runCli({QStringLiteral("clear-cache")}, &out), 0);
    EXPECT_TRUE(out.contains("cleared")) << out.toStdString();
    EXPECT_FALSE(QFileInfo::exists(cache));
}

TEST(AnywhereCli, PrintsTheFileWithItsCopiesInTheGivenFolders)
{
    TempTree tree;
    tree.build({"photo:3", "backup/photo copy:3", "backup/deep/again:3", "backup/other:4", "elsewhere/photo:3"});
    QByteArray out;
    EXPECT_EQ(runCli({QStringLiteral("--anywhere"), tree.path(QStringLiteral("photo")),
                      tree.path(QStringLiteral("backup"))},
                     &out),
              0);
    const QString root = tree.path() + u'/';
    EXPECT_EQ(QString::fromUtf8(out).replace(root, QString()),
              QStringLiteral("backup/deep/again\nbackup/photo copy\nphoto\n"));

    EXPECT_EQ(runCli({QStringLiteral("--anywhere"), QStringLiteral("--format"), QStringLiteral("json"),
                      tree.path(QStringLiteral("backup/other")), tree.path()},
                     &out),
              1)
        << "no copy";
    const QJsonValue groups = QJsonDocument::fromJson(out)["groups"];
    EXPECT_TRUE(groups.isArray() && groups.toArray().isEmpty()) << out.toStdString();
    EXPECT_EQ(runCli({QStringLiteral("--anywhere"), tree.path(QStringLiteral("backup"))}), 2) << "a folder";
}

} // namespace
