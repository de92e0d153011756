#include "results/ResultModel.h"
#include "search/Digest.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QFile>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

// An item as the search makes it; with `digested`, its digests as the content mode stores them.
ResultItem foundItem(const QString &path, bool digested)
{
    ResultItem item;
    item.path = path;
    item.size = QFile(path).size();
    item.group = 0;
    item.setDuration(60);
    if (digested) {
        ReadBuffer buffer;
        std::vector<qint64> storage;
        const DigestResult result =
            computeDigest(path.toUtf8().constData(), item.size, false, buffer, storage);
        item.digest = result.digest.value();
        item.set(HasDigest);
        if (result.allocDigest) {
            item.allocDigest = allocationKey(*result.allocDigest);
            item.set(HasAllocDigest);
        }
    }
    return item;
}

// The bottom list for the item at `selected`: each row's name and status.
std::string statuses(ResultModel &model, const QString &selected)
{
    EXPECT_TRUE(model.selectAndRevealInTopList(selected));
    QStringList rows;
    for (const ResultItem *i : model.cloneItems())
        rows.append(i->name() + u'=' + QString::number(i->clone));
    rows.sort();
    return rows.join(u' ').toStdString();
}

ResultModel modelOf(const QStringList &paths, DetectionMode mode)
{
    QList<ResultItem> items;
    for (const QString &path : paths)
        items.append(foundItem(path, mode == DetectionMode::Content));
    SearchRequest request;
    request.detectionMode = mode;
    ResultModel model;
    model.setResults(items, request);
    return model;
}

TEST(CloneStatus, SelectedHardLinkPlainAndVanishedInTheContentMode)
{
    TempTree tree;
    tree.build({"a.bin:5", "copy.bin:5", "gone.bin:5"});
    tree.hardLink(QStringLiteral("link.bin"), QStringLiteral("a.bin"));
    ResultModel model =
        modelOf({tree.path(QStringLiteral("a.bin")), tree.path(QStringLiteral("copy.bin")),
                 tree.path(QStringLiteral("link.bin")), tree.path(QStringLiteral("gone.bin"))},
                DetectionMode::Content);
    QFile::remove(tree.path(QStringLiteral("gone.bin")));
    EXPECT_EQ(statuses(model, tree.path(QStringLiteral("a.bin"))),
              "a.bin=1 copy.bin=0 gone.bin=5 link.bin=2");
    EXPECT_EQ(model.selectedItems(ResultList::Bottom).size(), 1);
    // A vanished selected item makes every other row "missing".
    EXPECT_EQ(statuses(model, tree.path(QStringLiteral("gone.bin"))),
              "a.bin=5 copy.bin=5 gone.bin=1 link.bin=5");
    // More than one selected row: no bottom list.
    model.select(ResultList::Top, model.mainItems().mid(0, 2));
    EXPECT_TRUE(model.cloneItems().isEmpty());
}

TEST(CloneStatus, OutsideTheContentModeEqualSizesAreDigestedOnDemand)
{
    TempTree tree;
    tree.build({"a.bin:5", "copy.bin:5", "other.bin:6"});
    tree.file(QStringLiteral("same-size.bin"), QByteArray(5000, 'x'));
    ResultModel model =
        modelOf({tree.path(QStringLiteral("a.bin")), tree.path(QStringLiteral("copy.bin")),
                 tree.path(QStringLiteral("other.bin")), tree.path(QStringLiteral("same-size.bin"))},
                DetectionMode::Duration);
    EXPECT_EQ(statuses(model, tree.path(QStringLiteral("a.bin"))),
              "a.bin=1 copy.bin=6 other.bin=0 same-size.bin=0");
    int digested = 0;
    for (const ResultItem &i : model.allItems())
        digested += i.has(HasDigest);
    EXPECT_EQ(digested, 3); // the other size is never read
}

// A reflink clone of `source` at `target`; false where the file system refuses.
bool reflink(const QString &source, const QString &target)
{
    QFile(target).open(QIODevice::WriteOnly);
    const int from = open(source.toUtf8().constData(), O_RDONLY);
    const int to = open(target.toUtf8().constData(), O_WRONLY);
    const bool cloned = from >= 0 && to >= 0 && ioctl(to, FICLONE, from) == 0;
    close(from);
    close(to);
    return cloned;
}

// Reflinks need a file system that shares extents: a btrfs image on a loop device, beside
// a file of the temporary tree on another file system.
class CloneStatusOnBtrfs : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString why = btrfs.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
        const QByteArray content = patternBytes(7000, 7);
        tree.file(QStringLiteral("elsewhere.bin"), content);
        for (const char *name : {"a.bin", "copy.bin"}) {
            QFile file(btrfs.path(QString::fromUtf8(name)));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        }
        ASSERT_TRUE(reflink(btrfs.path(QStringLiteral("a.bin")), btrfs.path(QStringLiteral("clone.bin"))));
    }
    QStringList paths() const
    {
        return {btrfs.path(QStringLiteral("a.bin")), btrfs.path(QStringLiteral("copy.bin")),
                btrfs.path(QStringLiteral("clone.bin")), tree.path(QStringLiteral("elsewhere.bin"))};
    }
    TempTree tree;
    MountedVolume btrfs{QStringLiteral("btrfs")};
};

TEST_F(CloneStatusOnBtrfs, ReflinksAreClonesAndOtherFileSystemsOtherVolumes)
{
    ResultModel content = modelOf(paths(), DetectionMode::Content);
    EXPECT_EQ(statuses(content, btrfs.path(QStringLiteral("a.bin"))),
              "a.bin=1 clone.bin=3 copy.bin=0 elsewhere.bin=4");
    // Outside the content mode proven identical content wins over the volume.
    ResultModel duration = modelOf(paths(), DetectionMode::Duration);
    EXPECT_EQ(statuses(duration, btrfs.path(QStringLiteral("a.bin"))),
              "a.bin=1 clone.bin=3 copy.bin=6 elsewhere.bin=6");
}

} // namespace
