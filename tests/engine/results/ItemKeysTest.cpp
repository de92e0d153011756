#include "results/ItemKeys.h"
#include "results/PathPrefix.h"

#include <QDateTime>

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

TEST(ItemKeys, ValuesByNameWithAbsentValuesInvalidAndOrderedFirst)
{
    const struct { const char *key; void (*present)(ResultItem &); } cases[] = {
        {"created", [](ResultItem &i) { i.created = 0; }},
        {"lastUsed", [](ResultItem &i) { i.lastUsed = -5; }},
        {"latitude", [](ResultItem &i) { i.setLatitude(-80.5); }},
        {"digest", [](ResultItem &i) { i.set(HasDigest); }},
        {"tagList", [](ResultItem &i) { i.setTagList({QStringLiteral("Red\n6")}); }},
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

TEST(ItemKeys, PathKeyPathsAndTheDisplayedFolder)
{
    QList<ResultItem> items(2);
    items[0].path = QStringLiteral("/data/loc/Sub/Photo.Final.JPG");
    items[1].path = QStringLiteral("/data/loc/.profile");
    removeCommonPathPrefix({QStringLiteral("/data/loc")}, items);
    const struct { const char *key, *first, *second; } cases[] = {
        {"URL.path", "/data/loc/Sub/Photo.Final.JPG", "/data/loc/.profile"},
        {"URL.path.lastPathComponent", "Photo.Final.JPG", ".profile"},
        {"URL.path.lastPathComponent.lowercaseString", "photo.final.jpg", ".profile"},
        {"URL.path.lastPathComponent.stringByDeletingPathExtension.lowercaseString", "photo.final", ".profile"},
        {"URL.path.stringByDeletingLastPathComponent", "/data/loc/Sub", "/data/loc"},
        {"extension", "jpg", ""},
        {"parentPath", "Sub", ""},
    };
    for (const auto &c : cases) {
        const QString key = QString::fromUtf8(c.key);
        EXPECT_EQ(itemValue(items[0], key).toString().toStdString(), c.first) << c.key;
        EXPECT_EQ(itemValue(items[1], key).toString().toStdString(), c.second) << c.key;
        const ItemKey *found = findItemKey(key);
        ASSERT_NE(found, nullptr);
        if (found->text) { // the view that sorting reads agrees with the value
            EXPECT_EQ(found->text(items[0]).toString().toLower(), itemValue(items[0], key).toString().toLower());
        }
    }
}

TEST(ItemKeys, RareValuesLiveOutOfLineAndAreCopiedNotShared)
{
    ResultItem item;
    EXPECT_FALSE(itemValue(item, u"trashedURL").isValid());
    EXPECT_FALSE(itemValue(item, u"addedDate").isValid());
    EXPECT_EQ(itemValue(item, u"itemCount").toLongLong(), 0);
    item.setTrashedURL(QStringLiteral("/home/u/.local/share/Trash/files/a"));
    item.setItemCount(3);
    ResultItem copy = item;
    copy.setTrashedURL({});
    copy.setAddedDate(86400);
    EXPECT_EQ(item.trashedURL(), QStringLiteral("/home/u/.local/share/Trash/files/a"));
    EXPECT_EQ(item.addedDate(), kNoDate);
    EXPECT_EQ(copy.itemCount(), 3);
    EXPECT_TRUE(itemValue(copy, u"addedDate").isValid());
    EXPECT_FALSE(itemValue(copy, u"trashedURL").isValid());
}

} // namespace

// Long lists sort numeric keys by numbers taken out of the items: those numbers must order
// the items exactly as the key's comparison does, absent dates included.
TEST(ItemKeys, NumbersForSortingOrderAsTheKeysCompare)
{
    std::vector<ResultItem> items(5);
    const qint64 dates[] = {kNoDate, -5, 0, 1'700'000'000, 1'700'000'000};
    for (int i = 0; i < 5; ++i) {
        items[i].size = (i * 7) % 5;
        items[i].physicalSize = 4096 * (i % 2);
        items[i].modified = dates[i];
        items[i].created = dates[4 - i];
        items[i].lastUsed = dates[(i + 2) % 5];
        items[i].attributes = dates[(i + 1) % 5];
        items[i].group = i % 3;
        items[i].dupes = 5 - i;
        items[i].clone = qint8(i % 7);
        if (i % 2) items[i].setAddedDate(dates[i]);
    }
    int numbered = 0;
    for (const char *name : {"size", "physicalSize", "modified", "created", "lastUsed", "addedDate", "attributes",
                             "group", "dupes", "clone"}) {
        const ItemKey *key = findItemKey(QString::fromLatin1(name));
        ASSERT_TRUE(key && key->integer) << name;
        ++numbered;
        for (const ResultItem &a : items)
            for (const ResultItem &b : items) {
                const qint64 x = key->integer(a), y = key->integer(b);
                EXPECT_EQ(key->compare(a, b), x < y ? -1 : (x > y ? 1 : 0)) << name;
            }
    }
    EXPECT_EQ(numbered, 10);
    EXPECT_FALSE(findItemKey(u"duration")->integer) << "fractions would lose their order";
}
