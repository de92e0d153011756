#include "fileops/DeleteChecks.h"

#include "fileops/Replacement.h"
#include "support/EnglishPluralsInstalled.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace selfsame;

TEST(DeleteChecks, ReferenceAndAllDupesChecksTellWhetherToGoOn)
{
    TempTree tree;
    ItemGroup group;
    ResultItem *a = group.add(tree.file(QStringLiteral("a"), "x"));
    ResultItem *b = group.add(tree.file(QStringLiteral("b"), "x"));
    ResultItem *lone = group.add(tree.file(QStringLiteral("c"), "y"), 1);
    const DuplicatesFor dupes = [&](const ResultItem &i) { return group.duplicatesFor(i); };

    EXPECT_FALSE(checkReferenceItem(ReplaceWithNone, nullptr, {b}).alert);
    const CheckOutcome noReference = checkReferenceItem(ReplaceWithHardLink, nullptr, {b});
    ASSERT_TRUE(noReference.alert);
    EXPECT_EQ(noReference.alert->message, QStringLiteral("No item is selected in the bottom list"));
    EXPECT_TRUE(noReference.proceedsWith(kFirstButton)) << "Delete Without Replacing";
    EXPECT_FALSE(noReference.proceedsWith(kFirstButton + 1));
    const CheckOutcome same = checkReferenceItem(ReplaceWithClone, a, {a, b});
    ASSERT_TRUE(same.alert);
    EXPECT_FALSE(same.proceedsWith(kFirstButton)) << "its only button is Cancel";
    EXPECT_FALSE(checkReferenceItem(ReplaceWithClone, a, {b}).alert);

    EXPECT_FALSE(doesItemsContainsAllDupesOfAnyItem({b}, {b->path}, dupes).alert);
    const CheckOutcome all = doesItemsContainsAllDupesOfAnyItem({a, b}, {a->path, b->path}, dupes);
    ASSERT_TRUE(all.alert);
    EXPECT_TRUE(all.proceedsWith(kFirstButton + 1)) << "Continue Anyway";
    EXPECT_FALSE(all.proceedsWith(kFirstButton));
    EXPECT_TRUE(doesItemsContainsAllDupesOfAnyItem({lone}, {lone->path}, dupes).alert)
        << "a lone item qualifies";
}

TEST(DeleteChecks, FileSystemWarningsFollowTheVolumeType)
{
    TempTree tree; // ext4 or tmpfs: links yes, clones no
    const QStringList urls{tree.file(QStringLiteral("f"), "x")};
    EXPECT_FALSE(checkFilesystemForDeleteAction(ReplaceWithSymbolicLink, urls).alert);
    EXPECT_FALSE(checkFilesystemForDeleteAction(ReplaceWithNone, urls).alert);
    const CheckOutcome clone = checkFilesystemForDeleteAction(ReplaceWithClone, urls);
    ASSERT_TRUE(clone.alert);
    EXPECT_EQ(clone.alert->message, QStringLiteral("Clones may be unsupported on this volume"));
    EXPECT_TRUE(clone.proceedsWith(kFirstButton + 1));
    EXPECT_FALSE(
        checkFilesystemForDeleteAction(ReplaceWithClone, {tree.path(QStringLiteral("missing"))}).alert);

    MountedVolume btrfs(QStringLiteral("btrfs"));
    if (btrfs.mount().isEmpty()) {
        EXPECT_FALSE(checkFilesystemForDeleteAction(ReplaceWithClone, {btrfs.path()}).alert);
    }
}

TEST(DeleteChecks, FailureTextsNameOneFileOrCount)
{
    EnglishPluralsInstalled plurals;
    EXPECT_FALSE(postDeleteActionFailedForCount(0, ReplaceWithHardLink, {}, {}));
    const auto one = postDeleteActionFailedForCount(1, ReplaceWithHardLink, QStringLiteral("/k/ref.jpg"),
                                                    QStringLiteral("/old/album/dup.jpg"));
    ASSERT_TRUE(one);
    EXPECT_EQ(one->message, QStringLiteral("Creating a hard link of “ref.jpg” in “album” failed"));
    EXPECT_EQ(one->informative, QStringLiteral("Note: hard links are only supported on the same volume."));
    const auto many = postDeleteActionFailedForCount(1500, ReplaceWithRelativeSymbolicLink, {}, {});
    EXPECT_EQ(many->message, QStringLiteral("Creating a symbolic link of 1,500 files failed"));
    EXPECT_TRUE(many->informative.isEmpty());

    ResultItem a, b;
    a.path = QStringLiteral("/x/a.txt");
    DeleteReport report;
    report.removalFailures = 1;
    EXPECT_EQ(trashFailureAlert(report, {&a})->message,
              QStringLiteral("“a.txt” could not be moved to the Trash."));
    // Of two targets only one failed: the count is of the failures.
    EXPECT_EQ(trashFailureAlert(report, {&a, &b})->message,
              QStringLiteral("1 file could not be moved to the Trash."));
    EXPECT_EQ(deletionFailureAlert(report, {&a, &b})->message,
              QStringLiteral("1 file could not be deleted immediately."));
    report.removalFailures = 2;
    EXPECT_EQ(deletionFailureAlert(report, {&a, &b})->message,
              QStringLiteral("2 files could not be deleted immediately."));
    EXPECT_FALSE(deletionFailureAlert(DeleteReport{}, {&a}));
    EXPECT_EQ(deleteConfirmationAlert({&a, &b}).informative,
              QStringLiteral("2 items will be deleted immediately. You can’t undo this action."));
}
