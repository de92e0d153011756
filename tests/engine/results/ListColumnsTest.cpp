#include "results/ListColumns.h"

#include <QLocale>
#include <gtest/gtest.h>

#include <cmath>

using namespace selfsame;

TEST(ListColumns, BitratesChangeUnitAtWholeBinaryMultiples)
{
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(bitrateText(0), QString());
    EXPECT_EQ(bitrateText(0.9), QString());
    EXPECT_EQ(bitrateText(1023), QStringLiteral("1023 bps"));
    EXPECT_EQ(bitrateText(1024), QStringLiteral("1 kbps"));
    EXPECT_EQ(bitrateText(1'048'575), QStringLiteral("1023 kbps"));
    EXPECT_EQ(bitrateText(1'048'576), QStringLiteral("1.0 Mbps"));
    EXPECT_EQ(bitrateText(3.5 * 1'048'576), QStringLiteral("3.5 Mbps"));
}

TEST(ListColumns, CellsShowNothingForAbsentValues)
{
    QLocale::setDefault(QLocale::c());
    ResultItem item;
    item.path = QStringLiteral("/photos/2023/Beach.JPG");
    EXPECT_EQ(cellText(item, QStringLiteral("name"), {}), QStringLiteral("Beach.JPG"));
    EXPECT_EQ(cellText(item, QStringLiteral("folder"), {}), QStringLiteral("2023"));
    EXPECT_EQ(cellText(item, QStringLiteral("extension"), {}), QStringLiteral("jpg"));
    EXPECT_EQ(cellText(item, QStringLiteral("duration"), {}), QString()) << "a duration of 0";
    EXPECT_EQ(cellText(item, QStringLiteral("latitude"), {}), QString());
    EXPECT_EQ(cellText(item, QStringLiteral("spotlight"), {}), QString());
    EXPECT_FALSE(cellDate(item, QStringLiteral("created")).has_value());
    EXPECT_FALSE(cellDate(item, QStringLiteral("addedDate")).has_value());
    item.modified = 1'700'000'000;
    EXPECT_EQ(cellDate(item, QStringLiteral("modified")), 1'700'000'000);

    item.setDuration(3661.5);
    EXPECT_EQ(cellText(item, QStringLiteral("duration"), {}), QStringLiteral("01:01:01.50"));
    item.setLatitude(-33.5);
    EXPECT_EQ(cellText(item, QStringLiteral("latitude"), {}), QStringLiteral("33°\u00a030′\u00a000.00″\u00a0S"));
    item.setSpotlight(48.8566);
    EXPECT_TRUE(cellText(item, QStringLiteral("spotlight"), QStringLiteral("kMDItemLatitude")).endsWith(u'N'));
    EXPECT_EQ(cellText(item, QStringLiteral("spotlight"), QStringLiteral("kMDItemFNumber")), QStringLiteral("48.8566"));
    item.setSpotlight(QStringLiteral("Canon"));
    EXPECT_EQ(cellText(item, QStringLiteral("spotlight"), QStringLiteral("kMDItemAcquisitionMake")),
              QStringLiteral("Canon"));

    ResultItem folder;
    folder.path = QStringLiteral("/photos/Album.d");
    folder.set(IsFolder);
    EXPECT_EQ(cellText(folder, QStringLiteral("extension"), {}), QStringLiteral("folder"));
    folder.set(IsPackage);
    EXPECT_EQ(cellText(folder, QStringLiteral("extension"), {}), QStringLiteral("d"));

    const std::pair<int, const char *> words[] = {{0, ""},           {1, "selected"},     {2, "hard link"}, {3, "clone"},
                                                  {4, "other volume"}, {5, ""}, {6, "duplicate"}};
    for (const auto &[status, word] : words) {
        folder.clone = qint8(status);
        EXPECT_EQ(cellText(folder, QStringLiteral("clone"), {}), QLatin1String(word));
    }
}

TEST(ListColumns, EachModeHidesTheColumnsItHasNoValuesFor)
{
    const QStringList media{QStringLiteral("duration"), QStringLiteral("pixelSize"), QStringLiteral("codecs"),
                            QStringLiteral("bitrate")};
    for (DetectionMode mode : {DetectionMode::Content, DetectionMode::FileName}) {
        const QStringList hidden = modeHiddenColumns(mode, {});
        EXPECT_EQ(hidden.size(), 8);
        for (const QString &column : media)
            EXPECT_TRUE(hidden.contains(column));
    }
    const QString similarity = QStringLiteral("similarity");
    EXPECT_EQ(modeHiddenColumns(DetectionMode::Duration, {}),
              (QStringList{QStringLiteral("spotlight"), QStringLiteral("latitude"), QStringLiteral("longitude"),
                           similarity}));
    EXPECT_EQ(modeHiddenColumns(DetectionMode::Attribute, QStringLiteral("kMDItemLatitude")),
              (QStringList{QStringLiteral("latitude"), similarity}));
    EXPECT_EQ(modeHiddenColumns(DetectionMode::Attribute, QStringLiteral("kMDItemLongitude")),
              (QStringList{QStringLiteral("longitude"), similarity}));
    EXPECT_EQ(modeHiddenColumns(DetectionMode::Attribute, QStringLiteral("kMDItemPixelHeight")),
              (QStringList{QStringLiteral("latitude"), QStringLiteral("longitude"), similarity}));
    for (const QString &column : modeHiddenColumns(DetectionMode::Content, {}))
        EXPECT_TRUE(listColumnIdentifiers().contains(column));
}

TEST(ListColumns, RowsAreAsTallAsTheFontOrTheIcons)
{
    EXPECT_EQ(listRowHeight(13, 16), 17);
    EXPECT_EQ(listRowHeight(13, 64), 64);
}

TEST(ListColumns, TypeSelectSearchesTheSortColumnOnlyWhenItHoldsText)
{
    EXPECT_EQ(typeSelectColumn(std::nullopt), QStringLiteral("name"));
    EXPECT_EQ(typeSelectColumn(SortDescriptor{columnSortKey(QStringLiteral("path")), false}), QStringLiteral("path"));
    EXPECT_EQ(typeSelectColumn(SortDescriptor{columnSortKey(QStringLiteral("folder")), true}), QStringLiteral("folder"));
    EXPECT_EQ(typeSelectColumn(SortDescriptor{QStringLiteral("size"), true}), QStringLiteral("name"));
    EXPECT_EQ(typeSelectColumn(SortDescriptor{QStringLiteral("no such key"), true}), QStringLiteral("name"));
}

TEST(ListColumns, MapLinksCarryTheLocationAtZoom16)
{
    const QStringList urls = mapServiceURLs(48.8566, -2.5);
    ASSERT_EQ(urls.size(), 3);
    EXPECT_EQ(urls[0], QStringLiteral("https://maps.apple.com/?ll=48.856600,-2.500000&z=16&q=48.856600,-2.500000"));
    EXPECT_EQ(urls[1], QStringLiteral("https://www.google.com/maps/search/?api=1&query=48.856600,-2.500000"));
    EXPECT_EQ(urls[2], QStringLiteral("https://www.openstreetmap.org/?zoom=16&mlat=48.8566006&mlon=-2.500000"
                                      "#map=16/48.856600/-2.500000"));
}
