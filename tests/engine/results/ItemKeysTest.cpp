#include "results/ItemKeys.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

TEST(ItemKeys, ValuesByNameWithAbsentValuesInvalidAndOrderedFirst)
{
    const struct { const char *key; void (*present)(ResultItem &); } cases[] = {
        {"created", [](ResultItem &i) { i.created = 0; }},
        {"lastUsed", [](ResultItem &i) { i.lastUsed = -5; }},
        {"latitude", [](ResultItem &i) { i.latitude = -80.5; }},
        {"digest", [](ResultItem &i) { i.set(HasDigest); }},
        {"tagList", [](ResultItem &i) { i.tagList = {QStringLiteral("Red\n6")}; }},
        {"isFolder", [](ResultItem &i) { i.set(IsFolder); }},
    };
    for (const auto &c : cases) {
        const QString key = QString::fromUtf8(c.key);
        ResultItem absent, present;
        c.present(present);
        EXPECT_FALSE(itemValue(absent, key).isValid()) << c.key;
        EXPECT_TRUE(itemValue(present, key).isValid()) << c.key;
        EXPECT_EQ(compareItems(absent, present, key), -1) << c.key;
        EXPECT_EQ(compareItems(present, absent, key), 1) << c.key;
        EXPECT_EQ(compareItems(absent, absent, key), 0) << c.key;
    }
    ResultItem day;
    day.modified = 86400;
    EXPECT_EQ(itemValue(day, u"modified").toDateTime(), QDateTime(QDate(1970, 1, 2), QTime(0, 0), Qt::UTC));
    EXPECT_EQ(compareItems(day, ResultItem(), u"noSuchKey"), 0);
}

} // namespace
