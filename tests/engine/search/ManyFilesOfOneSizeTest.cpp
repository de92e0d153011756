#include "search/ContentHasher.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

#include <cstring>

using namespace selfsame;

namespace {

// More files of one size than are kept open at once: each is read and closed, and the
// members of a group are opened again for their allocation map and tags.
TEST(ManyFilesOfOneSize, AreComparedWithoutKeepingThemAllOpen)
{
    TempTree tree;
    QStringList expected;
    for (int i = 0; i < 300; ++i) {
        const int content = i < 200 ? i : i - 200; // files 200-299 copy files 0-99
        tree.file(QStringLiteral("f%1").arg(i, 3, 10, QLatin1Char('0')), patternBytes(2000, content));
        if (i >= 200)
            expected.append(QStringLiteral("f%1 f%2").arg(content, 3, 10, QLatin1Char('0')).arg(i));
    }
    SearchHarness harness;
    const QList<ResultItem> items = harness.run({}, tree.path());
    const QStringList groups = QString::fromStdString(describeGroups(items, tree.path())).split(QStringLiteral(" | "));
    EXPECT_EQ(QStringList(groups).size(), 100);
    EXPECT_EQ(QSet<QString>(groups.begin(), groups.end()), QSet<QString>(expected.begin(), expected.end()));
    EXPECT_EQ(harness.context.statistics.unreadableFiles, 0);
}

// Files of one size too many bytes to hold together: compared chunk by chunk while all are open,
// or, when they are also too many to keep open, each digested on its own. Copies and files
// that differ from them only in the middle (same first and last bytes) must still split.
class BucketsOverTheMemoryLimit : public testing::TestWithParam<std::pair<int, int>>
{
};

TEST_P(BucketsOverTheMemoryLimit, StillSplitWhereTheBytesDiffer)
{
    const auto [count, size] = GetParam();
    ASSERT_GT(qint64(count) * size, ContentHasher::kMaxBucketBytes);
    TempTree tree;
    QSet<QString> expected;
    const QByteArray common = patternBytes(size, 1);
    for (int i = 0; i < count; ++i) {
        // All begin and end alike, so that one bucket holds them all. In each three, the
        // second copies the first and the third differs from it in one byte halfway through.
        QByteArray bytes = common;
        const int three = i / 3;
        std::memcpy(bytes.data() + size / 3, &three, sizeof(three));
        if (i % 3 == 2) bytes[size / 2] = char(bytes[size / 2] ^ 0x55);
        tree.file(QStringLiteral("f%1").arg(i, 3, 10, QLatin1Char('0')), bytes);
        if (i % 3 == 1)
            expected.insert(QStringLiteral("f%1 f%2")
                                .arg(i - 1, 3, 10, QLatin1Char('0'))
                                .arg(i, 3, 10, QLatin1Char('0')));
    }
    SearchHarness harness;
    const QList<ResultItem> items = harness.run({}, tree.path());
    const QStringList groups =
        QString::fromStdString(describeGroups(items, tree.path())).split(QStringLiteral(" | "));
    EXPECT_EQ(QSet<QString>(groups.begin(), groups.end()), expected);
    for (const ResultItem &item : items)
        EXPECT_EQ(item.digest, items[item.group * 2].digest) << "a group's members share their digest";
}

INSTANTIATE_TEST_SUITE_P(SideBySideAndOneByOne, BucketsOverTheMemoryLimit,
                         testing::Values(std::make_pair(42, 120'000), std::make_pair(150, 40'000)));

} // namespace
