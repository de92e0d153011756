#include "results/PathPrefix.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

TEST(PathPrefix, CommonComponentsOfTheLocationsAreCutFromDisplayedFolders)
{
    const struct { QStringList locations; const char *path, *prefix, *parentPath; } cases[] = {
        // Components agreeing after a difference count too; the prefix is cut by its length.
        {{QStringLiteral("/Users/b/x"), QStringLiteral("/Users/a/x")}, "/Users/a/x/s/f", "/Users/x", "x/s"},
        {{QStringLiteral("/data/loc")}, "/data/loc/f", "/data/loc", ""},
        {{QStringLiteral("/data/loc")}, "/data/loc/s/f", "/data/loc", "s"},
        {{QStringLiteral("/a/x"), QStringLiteral("/b/y")}, "/b/y/f", "", "/b/y"}, // "/" alone is kept
        // Only the first and last locations in path order are compared.
        {{QStringLiteral("/m/z/q"), QStringLiteral("/m/a/q"), QStringLiteral("/m/k")},
         "/m/k/r/f", "/m/q", "r"},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(commonPathPrefix(c.locations).toStdString(), c.prefix) << c.path;
        QList<ResultItem> items(1);
        items[0].path = QString::fromUtf8(c.path);
        removeCommonPathPrefix(c.locations, items);
        EXPECT_EQ(items[0].parentPath().toStdString(), c.parentPath) << c.path;
    }
}

} // namespace
