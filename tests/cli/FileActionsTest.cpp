#include "FileActions.h"

#include "FileActionOptions.h"
#include "fileops/Replacement.h"
#include "support/EnglishPluralsInstalled.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

using namespace selfsame;
using namespace selfsame::cli;

namespace
{

struct Captured {
    QByteArray out, err;
    Writer outWriter()
    {
        return [this](const QByteArray &b) { out += b; };
    }
    Writer errWriter()
    {
        return [this](const QByteArray &b) { err += b; };
    }
};

// Groups of three copies under `root`: keep.bin kept, a.bin and b.bin selected.
QList<ActionGroup> makeGroups(ItemGroup &items, const QString &root, int count)
{
    QList<ActionGroup> groups;
    for (int g = 0; g < count; ++g) {
        const QString folder = root + QStringLiteral("/g%1").arg(g);
        QDir().mkpath(folder);
        ActionGroup group;
        for (const char *name : {"keep.bin", "a.bin", "b.bin"}) {
            writeFile(folder + u'/' + QString::fromUtf8(name), patternBytes(100000, g));
            group.members << items.add(folder + u'/' + QString::fromUtf8(name), g);
        }
        group.reference = group.members[0];
        group.selected = {group.members[1], group.members[2]};
        groups << group;
    }
    return groups;
}

} // namespace

TEST(FileActions, DryRunChangesNothingAndActingReportsEveryFile)
{
    TrashHome home;
    TempTree tree;
    ItemGroup items;
    QList<ActionGroup> groups = makeGroups(items, tree.path(), 2);
    ActionGroup everything = makeGroups(items, tree.path(QStringLiteral("all")), 1).first();
    everything.selected = everything.members;
    groups << everything;

    FileActionOptions options;
    options.action = FileAction::Trash;
    options.replaceWith = ReplaceWithSymbolicLink;
    Captured dry;
    EXPECT_EQ(runFileActions(options, groups, dry.outWriter(), dry.errWriter()), 1) << "one group refused";
    EXPECT_EQ(dry.out.count("would move to the trash: "), 4);
    EXPECT_TRUE(dry.err.contains("refused: " + everything.selected.first()->path.toUtf8()));
    EXPECT_EQ(readFile(groups[0].selected[0]->path), patternBytes(100000, 0));

    options.perform = true;
    Captured done;
    EXPECT_EQ(runFileActions(options, groups.mid(0, 2), done.outWriter(), done.errWriter()), 0);
    EXPECT_EQ(done.out.count("moved to the trash: "), 4);
    EXPECT_TRUE(done.err.endsWith("4 done, 0 failed\n`selfsame-cli undo` undoes this action\n")) << done.err.toStdString();
    EXPECT_EQ(readLinkText(groups[1].selected[1]->path), groups[1].reference->path);
    for (const ResultItem *member : everything.members)
        EXPECT_TRUE(QFile::exists(member->path));

    // A file changed since the search fails, and the exit status says so.
    ItemGroup more;
    QList<ActionGroup> changed = makeGroups(more, tree.path(QStringLiteral("changed")), 1);
    writeFile(changed[0].selected[0]->path, "edited");
    options.action = FileAction::Delete;
    options.replaceWith = ReplaceWithNone;
    Captured failed;
    EXPECT_EQ(runFileActions(options, changed, failed.outWriter(), failed.errWriter()), 1);
    EXPECT_TRUE(failed.err.contains("failed: " + changed[0].selected[0]->path.toUtf8()));
    EXPECT_EQ(readFile(changed[0].selected[0]->path), "edited");
    EXPECT_FALSE(QFile::exists(changed[0].selected[1]->path));
}

TEST(FileActions, ClonesInPlaceFromEachGroupsKeptCopyAfterAPlan)
{
    EnglishPluralsInstalled plurals;
    MountedVolume volume(QStringLiteral("btrfs"));
    if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
    ItemGroup items;
    const QList<ActionGroup> groups = makeGroups(items, volume.path(), 2);
    TempTree planFolder;
    FileActionOptions options;
    options.replaceWith = ReplaceWithClone;
    options.planPath = planFolder.path(QStringLiteral("plan.txt"));
    Captured dry;
    EXPECT_EQ(runFileActions(options, groups, dry.outWriter(), dry.errWriter()), 0);
    EXPECT_TRUE(readFile(options.planPath).startsWith(groups[0].reference->path.toUtf8() + " ("));
    EXPECT_TRUE(dry.err.contains(
        "Do you want to replace 4 duplicates among the selected files, by clones of 2 different files?"));
    EXPECT_NE(allocDigestOf(groups[0].selected[0]->path), allocDigestOf(groups[0].reference->path));

    options.perform = true;
    Captured done;
    EXPECT_EQ(runFileActions(options, groups, done.outWriter(), done.errWriter()), 0)
        << done.err.toStdString();
    EXPECT_EQ(done.out.count("cloned: "), 4);
    for (const ActionGroup &g : groups)
        for (const ResultItem *d : g.selected)
            EXPECT_EQ(allocDigestOf(d->path), allocDigestOf(g.reference->path));
}

TEST(FileActionOptions, AreTakenOutOfTheCommandLineAndActOnlyWithYes)
{
    QStringList arguments{QStringLiteral("--trash"),    QStringLiteral("--replace-with=relative-symlink"),
                          QStringLiteral("--min-size"), QStringLiteral("10"),
                          QStringLiteral("/photos"),    QStringLiteral("--yes"),
                          QStringLiteral("--"),         QStringLiteral("--delete")};
    FileActionOptions options;
    bool given = false;
    EXPECT_EQ(takeFileActionOptions(arguments, &options, &given), QString());
    EXPECT_TRUE(given);
    EXPECT_EQ(options.action, FileAction::Trash);
    EXPECT_EQ(options.replaceWith, ReplaceWithRelativeSymbolicLink);
    EXPECT_TRUE(options.perform);
    EXPECT_EQ(arguments,
              (QStringList{QStringLiteral("--min-size"), QStringLiteral("10"), QStringLiteral("/photos"),
                           QStringLiteral("--"), QStringLiteral("--delete")}));

    auto errorFor = [](QStringList line) {
        FileActionOptions o;
        bool g = false;
        return takeFileActionOptions(line, &o, &g);
    };
    EXPECT_FALSE(errorFor({QStringLiteral("--trash"), QStringLiteral("--delete")}).isEmpty());
    EXPECT_FALSE(errorFor({QStringLiteral("--replace-with"), QStringLiteral("copy")}).isEmpty());
    EXPECT_FALSE(errorFor({QStringLiteral("--yes")}).isEmpty());
    EXPECT_FALSE(
        errorFor({QStringLiteral("--delete"), QStringLiteral("--plan"), QStringLiteral("p")}).isEmpty());
    QStringList dry{QStringLiteral("--replace-with"), QStringLiteral("clone"), QStringLiteral("--yes"),
                    QStringLiteral("--dry-run")};
    FileActionOptions dryOptions;
    bool g = false;
    ASSERT_EQ(takeFileActionOptions(dry, &dryOptions, &g), QString());
    EXPECT_EQ(dryOptions.replaceWith, ReplaceWithClone);
    EXPECT_FALSE(dryOptions.perform) << "--dry-run wins over --yes";
}

TEST(FileActions, SelfsameCliActsOnTheCopiesItsRuleSelects)
{
    static int argc = 1;
    static char name[] = "cli-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance()) new QCoreApplication(argc, argv);
    TrashHome home;
    TempTree tree;
    const QString kept = tree.file(QStringLiteral("keep/photo.jpg"), patternBytes(5000, 1));
    const QString copy = tree.file(QStringLiteral("old/photo.jpg"), patternBytes(5000, 1));
    auto run = [&](const QStringList &arguments) {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert(QStringLiteral("HOME"), home.path());
        env.insert(QStringLiteral("XDG_DATA_HOME"), home.path(QStringLiteral("data")));
        process.setProcessEnvironment(env);
        process.start(QStringLiteral(SELFSAME_CLI_PATH), arguments);
        EXPECT_TRUE(process.waitForFinished(60000));
        return std::make_pair(process.exitCode(), process.readAllStandardOutput());
    };
    const QStringList select{QStringLiteral("--select"), QStringLiteral("folder"),
                             tree.path(QStringLiteral("old")), tree.path()};
    const auto [dryCode, dryOut] =
        run(select + QStringList{QStringLiteral("--trash"), QStringLiteral("--replace-with"),
                                 QStringLiteral("symlink")});
    EXPECT_EQ(dryCode, 0);
    EXPECT_TRUE(dryOut.contains("would move to the trash: " + copy.toUtf8())) << dryOut.toStdString();
    EXPECT_EQ(readLinkText(copy), QString());

    const auto [code, out] =
        run(select + QStringList{QStringLiteral("--trash"), QStringLiteral("--replace-with"),
                                 QStringLiteral("symlink"), QStringLiteral("--yes")});
    EXPECT_EQ(code, 0) << out.toStdString();
    EXPECT_EQ(readLinkText(copy), kept);
    EXPECT_EQ(readFile(home.trash() + QStringLiteral("/files/photo.jpg")), patternBytes(5000, 1));
    EXPECT_EQ(run({QStringLiteral("--delete"), tree.path()}).first, 2) << "an action needs --select";
}
