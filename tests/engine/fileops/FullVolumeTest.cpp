// On a volume with no space left, every action either completes or fails with a clear message
// and leaves the tree as it was: no file missing from its path, nothing stray beside it.

#include "fileops/DeleteActions.h"
#include "fileops/Replacement.h"
#include "support/ByteFiles.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDirIterator>
#include <QMap>
#include <cstring>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

// Every entry below `root` outside its trash folder, with the content of files.
QMap<QString, QByteArray> manifest(const QString &root)
{
    QMap<QString, QByteArray> entries;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QString relative = path.mid(root.size() + 1);
        if (relative.startsWith(QStringLiteral(".Trash"))) continue;
        entries.insert(relative, it.fileInfo().isFile() ? readBytes(path.toUtf8()) : QByteArray("<folder>"));
    }
    return entries;
}

} // namespace

TEST(FullVolume, EveryActionCompletesOrLeavesTheTreeAsItWas)
{
    if (geteuid() != 0) GTEST_SKIP() << "not running as root: cannot mount a small volume";
    TrashHome home;
    TempTree tree;
    const QString root = tree.folder(QStringLiteral("small"));
    if (!shell(QStringLiteral("mount -t tmpfs -o size=2m tmpfs \"$0\""), {root}))
        GTEST_SKIP() << "could not mount a tmpfs volume";
    struct Unmount {
        QString root;
        ~Unmount() { shell(QStringLiteral("umount \"$0\""), {root}); }
    } unmount{root};

    const QByteArray content = patternBytes(100000, 41);
    const QByteArray keepPath = (root + QStringLiteral("/keep/ref.bin")).toUtf8();
    ASSERT_TRUE(writeBytes(keepPath, content));
    struct Case {
        DeleteKind kind;
        int mode;
    };
    const Case cases[] = {
        {DeleteKind::Trash, ReplaceWithNone},   {DeleteKind::Trash, ReplaceWithSymbolicLink},
        {DeleteKind::Trash, ReplaceWithAlias},  {DeleteKind::Trash, ReplaceWithHardLink},
        {DeleteKind::Delete, ReplaceWithAlias}, {DeleteKind::Delete, ReplaceWithRelativeSymbolicLink},
        {DeleteKind::Delete, ReplaceWithClone}, {DeleteKind::Delete, ReplaceWithNone}};
    for (std::size_t n = 0; n < std::size(cases); ++n) {
        const Case &c = cases[n];
        SCOPED_TRACE(testing::Message() << "case " << n << ", mode " << c.mode);
        const QByteArray dupPath = (root + QStringLiteral("/old/dup%1.bin").arg(n)).toUtf8();
        shell(QStringLiteral("rm -f \"$0/filler\""), {root});
        ASSERT_TRUE(writeBytes(dupPath, content));
        // Fill what is left: the volume stays full through the action.
        shell(QStringLiteral("dd if=/dev/zero of=\"$0/filler\" bs=4k 2>/dev/null; true"), {root});
        ItemGroup group;
        ResultItem *keep = group.add(QString::fromUtf8(keepPath));
        ResultItem *dup = group.add(QString::fromUtf8(dupPath));
        const QMap<QString, QByteArray> before = manifest(root);

        const DeleteReport report = performDeleteAction(c.kind, c.mode, keep, {dup});
        const DeleteOutcome &outcome = report.outcomes.value(0);
        EXPECT_EQ(readBytes(keepPath), content) << "the kept copy is never touched";
        if (report.removalFailures + report.replacementFailures > 0) {
            EXPECT_FALSE(outcome.error.isEmpty());
            EXPECT_FALSE(outcome.error.contains(QString::fromLocal8Bit(strerror(EIO))))
                << "a full disk says so: " << outcome.error.toStdString();
            EXPECT_EQ(manifest(root), before) << outcome.error.toStdString();
        } else {
            // Done: the copy's path holds the replacement, or nothing when none was asked for.
            QMap<QString, QByteArray> expected = before;
            const QString relative = QString::fromUtf8(dupPath).mid(root.size() + 1);
            expected.remove(relative);
            QMap<QString, QByteArray> after = manifest(root);
            const bool replaced = after.contains(relative);
            EXPECT_EQ(replaced, c.mode != ReplaceWithNone);
            after.remove(relative);
            EXPECT_EQ(after, expected) << "nothing stray beside it";
        }
    }
}
