#include "Locations.h"

#include "SearchDefaults.h"
#include "Settings.h"
#include "support/TempTree.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

Location folder(const char *path, bool enabled = true)
{
    return {QString::fromUtf8(path), enabled, false};
}

// Paths under /mnt/other lie on a second volume; everything else on the first.
NestingRule rule(bool skipHidden = true, std::optional<int> depth = std::nullopt)
{
    return {skipHidden, depth, [](const QString &path) -> std::optional<quint64> {
                if (path.startsWith(QLatin1String("/gone")))
                    return std::nullopt;
                return path.startsWith(QLatin1String("/mnt/other")) ? 2 : 1;
            }};
}

QList<bool> enabledFlags(const QList<Location> &locations)
{
    QList<bool> flags;
    for (const Location &l : locations)
        flags.append(l.enabled);
    return flags;
}

} // namespace

TEST(NestingRule, SwitchesOffWhatAnEnabledFolderAlreadyCovers)
{
    QList<Location> l{folder("/Users/a"),     folder("/Users/a/b"), folder("/Users/ab"), folder("/mnt"),
                      folder("/mnt/other/x"), folder("/gone/a"),    folder("/gone/a/b")};
    applyNestingRule(l, rule());
    EXPECT_EQ(enabledFlags(l), (QList<bool>{true, false, true, true, true, true, true}))
        << "/Users/ab is no child of /Users/a; another volume or an unreadable one stays";

    QList<Location> root{folder("/Users/a"), folder("/")};
    applyNestingRule(root, rule());
    EXPECT_EQ(enabledFlags(root), (QList<bool>{false, true}));
}

TEST(NestingRule, ADisabledFolderCoversNothing)
{
    QList<Location> l{folder("/data", false), folder("/data/photos")};
    applyNestingRule(l, rule());
    EXPECT_EQ(enabledFlags(l), (QList<bool>{false, true}));
}

TEST(NestingRule, HiddenStepsAndTheDepthLimitKeepNestedFoldersEnabled)
{
    QList<Location> hidden{folder("/home/u"), folder("/home/u/.config/app"), folder("/home/u/.cache")};
    applyNestingRule(hidden, rule(true));
    EXPECT_EQ(enabledFlags(hidden), (QList<bool>{true, true, true}));
    applyNestingRule(hidden, rule(false));
    EXPECT_EQ(enabledFlags(hidden), (QList<bool>{true, false, false}))
        << "without skipping, hidden folders are reached";

    QList<Location> depth1{folder("/d"), folder("/d/one")};
    applyNestingRule(depth1, rule(true, 1));
    EXPECT_EQ(enabledFlags(depth1), (QList<bool>{true, true})) << "depth 1 is not less than 1";

    QList<Location> depth3{folder("/d"), folder("/d/one/two"), folder("/d/one/two/three")};
    applyNestingRule(depth3, rule(true, 3));
    EXPECT_EQ(enabledFlags(depth3), (QList<bool>{true, false, true}));
}

TEST(NestingRule, ReportsWhetherASingleFileIsEnabled)
{
    QList<Location> l{folder("/a"), {QStringLiteral("/b/file.jpg"), false, true}};
    EXPECT_FALSE(applyNestingRule(l, rule()));
    l[1].enabled = true;
    EXPECT_TRUE(applyNestingRule(l, rule()));
    QList<Location> covered{folder("/b"), {QStringLiteral("/b/file.jpg"), true, true}};
    EXPECT_FALSE(applyNestingRule(covered, rule())) << "a file inside an enabled folder is switched off";
}

TEST(Locations, SpaceTogglesAllTargetRowsToTheOppositeOfTheLastRow)
{
    QList<Location> l{folder("/a", true), folder("/b", false), folder("/c", true)};
    EXPECT_TRUE(toggleTogether(l, {0, 2, 1}));
    EXPECT_EQ(enabledFlags(l), (QList<bool>{false, false, false}));
    EXPECT_TRUE(toggleTogether(l, {1, 0}));
    EXPECT_EQ(enabledFlags(l), (QList<bool>{true, true, false}));
    EXPECT_FALSE(toggleTogether(l, {}));
}

TEST(Locations, MergingNeverDuplicatesAPath)
{
    TempTree tree;
    tree.build({"photos/", "photos/a.jpg"});
    QList<Location> l;
    EXPECT_EQ(mergeLocations(
                  l, {tree.path(QStringLiteral("photos")), tree.path(QStringLiteral("photos/a.jpg"))}, true),
              (QList<int>{0, 1}));
    EXPECT_FALSE(l[0].regular);
    EXPECT_TRUE(l[1].regular);
    EXPECT_EQ(
        mergeLocations(l, {tree.path(QStringLiteral("photos/")), QStringLiteral("relative/path")}, false),
        QList<int>{0});
    ASSERT_EQ(l.size(), 2);
    EXPECT_FALSE(l[0].enabled) << "an existing row only takes the new flag";
    EXPECT_TRUE(isRegularLocation(tree.path(QStringLiteral("missing"))))
        << "an unreadable status counts as a file";
}

TEST(Locations, PersistAsPathsWithTheirFlagAndDropWhatIsGone)
{
    TempTree tree;
    tree.build({"a/", "b/", "c.txt"});
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("Selfsame.conf")));
    QList<Location> l;
    mergeLocations(
        l,
        {tree.path(QStringLiteral("b")), tree.path(QStringLiteral("gone")), tree.path(QStringLiteral("a"))},
        true);
    mergeLocations(l, {tree.path(QStringLiteral("c.txt"))}, false);
    saveLocations(l, settings);

    const QList<Location> loaded = loadLocations(settings);
    ASSERT_EQ(loaded.size(), 3);
    EXPECT_EQ(loaded[0].path, tree.path(QStringLiteral("b")));
    EXPECT_EQ(loaded[1].path, tree.path(QStringLiteral("a")));
    EXPECT_EQ(loaded[2].path, tree.path(QStringLiteral("c.txt")));
    EXPECT_EQ(enabledFlags(loaded), (QList<bool>{true, true, false}));
    EXPECT_TRUE(loaded[2].regular);
}
