// selfsame-cli --contained-folders on a backup reorganised under other names.

#include "CliProcess.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

class ContainedFoldersCli : public ::testing::Test {
protected:
    void SetUp() override
    {
        tree.build({"old/a.jpg:1", "old/trip/b.jpg:2", "new/2019/a-renamed.jpg:1", "new/b.jpg:2", "new/c.jpg:3",
                    "other/c.jpg:3", "other/unique.jpg:4"});
    }
    QStringList args(std::initializer_list<const char *> options)
    {
        QStringList list{QStringLiteral("--no-cache"), QStringLiteral("--contained-folders")};
        for (const char *option : options)
            list.append(QString::fromUtf8(option));
        list.append(tree.path());
        return list;
    }
    TempTree tree;
};

TEST_F(ContainedFoldersCli, JsonNamesTheKindAndTheBytesTheContainedFolderFrees)
{
    const CliRun run = runCli(args({"--format", "json"}));
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    const QJsonObject root = QJsonDocument::fromJson(run.out).object();
    const QJsonArray groups = root[QLatin1String("groups")].toArray();
    ASSERT_EQ(groups.size(), 2);
    int contained = 0;
    for (const QJsonValue value : groups) {
        const QJsonObject group = value.toObject();
        const QJsonArray items = group[QLatin1String("items")].toArray();
        if (group[QLatin1String("kind")].toString() != QLatin1String("contained")) {
            EXPECT_FALSE(group.contains(QLatin1String("kind")));
            EXPECT_EQ(items.size(), 2); // new/c.jpg and other/c.jpg
            continue;
        }
        ++contained;
        ASSERT_EQ(items.size(), 2);
        EXPECT_EQ(items[0].toObject()[QLatin1String("path")].toString(), tree.path(QStringLiteral("old")));
        EXPECT_EQ(items[1].toObject()[QLatin1String("path")].toString(), tree.path(QStringLiteral("new")));
        EXPECT_TRUE(items[0].toObject()[QLatin1String("isFolder")].toBool());
        EXPECT_EQ(group[QLatin1String("size")].toInteger(), 3000); // what removing "old" frees
        EXPECT_EQ(items[1].toObject()[QLatin1String("size")].toInteger(), 6000);
    }
    EXPECT_EQ(contained, 1);
    const QJsonObject summary = root[QLatin1String("summary")].toObject();
    EXPECT_EQ(summary[QLatin1String("reclaimableBytes")].toInteger(), 3000 + 3000);
    EXPECT_TRUE(root[QLatin1String("request")].toObject()[QLatin1String("containedFolders")].toBool());
}

TEST_F(ContainedFoldersCli, TheRuleDeletesTheContainedFolderAndKeepsItsContainer)
{
    const CliRun shown = runCli(args({"--select", "contained-folders"}));
    EXPECT_TRUE(shown.out.contains(("select " + tree.path(QStringLiteral("old")) + u'\n').toUtf8()))
        << shown.out.toStdString();
    EXPECT_TRUE(shown.out.contains(("keep " + tree.path(QStringLiteral("new")) + u'\n').toUtf8()));

    const CliRun deleted = runCli(args({"--select", "contained-folders", "--delete", "--yes"}));
    EXPECT_EQ(deleted.exitCode, 0) << deleted.err.toStdString();
    EXPECT_FALSE(QFileInfo::exists(tree.path(QStringLiteral("old"))));
    for (const char *kept : {"new/2019/a-renamed.jpg", "new/b.jpg", "new/c.jpg", "other/c.jpg", "other/unique.jpg"})
        EXPECT_TRUE(QFileInfo::exists(tree.path(QString::fromUtf8(kept)))) << kept;

    const CliRun otherMode = runCli(args({"--mode", "name"}));
    EXPECT_EQ(otherMode.exitCode, 2);
    EXPECT_TRUE(otherMode.err.contains("--contained-folders applies to the content mode only"));
}

} // namespace
