#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

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

} // namespace
