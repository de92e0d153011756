// Icons and thumbnails of the result lists: pictures are made on worker threads and arrive
// later, badges mark read-only items, other users' items and what actions did.
#include "ItemIcons.h"
#include "ThumbnailLoader.h"
#include "support/TempTree.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QSignalSpy>
#include <QUrl>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

QString writePicture(const TempTree &tree, const QString &name, QColor colour, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    const QString path = tree.path(name);
    image.save(path);
    return path;
}

ResultItem itemAt(const QString &path)
{
    ResultItem item;
    item.path = path;
    return item;
}

} // namespace

TEST(ItemIcons, ThumbnailsArriveLaterAndReplaceTheTypeIcon)
{
    TempTree tree;
    const ResultItem photo = itemAt(writePicture(tree, QStringLiteral("photo.png"), Qt::blue, QSize(200, 100)));
    const ResultItem text = itemAt(tree.file(QStringLiteral("notes.txt"), "hello"));
    ItemIcons icons;
    icons.setSize(32);
    QSignalSpy changed(&icons, &ItemIcons::iconsChanged);

    const QPixmap first = icons.icon(photo); // at once, without waiting for the picture
    EXPECT_FALSE(first.isNull());
    ASSERT_TRUE(changed.wait(10000));
    const QPixmap thumbnail = icons.icon(photo);
    EXPECT_EQ(thumbnail.size(), QSize(32, 16)) << "the picture's shape at the list's size";
    EXPECT_EQ(thumbnail.toImage().pixelColor(16, 8), QColor(Qt::blue));

    // A file that is no picture keeps its type icon and asks for nothing.
    changed.clear();
    EXPECT_FALSE(icons.icon(text).isNull());
    EXPECT_FALSE(changed.wait(300));

    // Small lists show type icons only; a new size drops the pictures made at the old one.
    icons.setSize(16);
    EXPECT_NE(icons.icon(photo).size(), QSize(16, 8));
}

TEST(ItemIcons, BadgesMarkReadOnlyItemsOtherOwnersAndActions)
{
    TempTree tree;
    ResultItem plain = itemAt(tree.file(QStringLiteral("a.txt"), "a"));
    ResultItem locked = plain;
    locked.set(ReadOnly);
    ResultItem foreign = plain;
    foreign.set(OtherOwner);
    ItemIcons icons;
    icons.setSize(32);
    const QImage base = icons.icon(plain).toImage();
    const QImage lockedIcon = icons.icon(locked).toImage();
    const QImage foreignIcon = icons.icon(foreign).toImage();
    EXPECT_EQ(lockedIcon.width(), lockedIcon.height());
    EXPECT_NE(lockedIcon, base);
    EXPECT_NE(foreignIcon, base);
    EXPECT_NE(lockedIcon, foreignIcon) << "each badge has its own quarter";

    QSignalSpy changed(&icons, &ItemIcons::iconsChanged);
    icons.setStatusImage(&plain, QStringLiteral("trashed"));
    EXPECT_TRUE(changed.wait(2000));
    EXPECT_NE(icons.icon(plain).toImage(), base);
    EXPECT_EQ(icons.statusImage(&plain), QStringLiteral("trashed"));
    icons.setSize(64);
    EXPECT_EQ(icons.statusImage(&plain), QStringLiteral("trashed")) << "state images survive a new size";
}

TEST(ThumbnailLoader, UsesTheDesktopsCachedThumbnailWhileItIsCurrent)
{
    TempTree tree;
    const QString path = writePicture(tree, QStringLiteral("big.png"), Qt::blue, QSize(300, 300));
    const QByteArray oldCache = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", tree.path(QStringLiteral("cache")).toLocal8Bit());
    QDir().mkpath(tree.path(QStringLiteral("cache/thumbnails/normal")));
    const QByteArray uri = QUrl::fromLocalFile(path).toEncoded();
    const QString cached = tree.path(QStringLiteral("cache/thumbnails/normal/")) +
                           QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) +
                           QStringLiteral(".png");
    QImage red(128, 128, QImage::Format_RGB32);
    red.fill(Qt::red);
    red.setText(QStringLiteral("Thumb::MTime"),
                QString::number(QFileInfo(path).lastModified().toSecsSinceEpoch()));
    red.save(cached);
    EXPECT_EQ(makeThumbnail(path, 64).pixelColor(10, 10), QColor(Qt::red));

    red.setText(QStringLiteral("Thumb::MTime"), QStringLiteral("12345"));
    red.save(cached);
    EXPECT_EQ(makeThumbnail(path, 64).pixelColor(10, 10), QColor(Qt::blue)) << "an outdated one is not used";
    EXPECT_EQ(makeThumbnail(path, 64).size(), QSize(64, 64));
    qputenv("XDG_CACHE_HOME", oldCache);

    EXPECT_TRUE(ThumbnailLoader::canMakeThumbnail(u"IMG_1.JPG"));
    EXPECT_FALSE(ThumbnailLoader::canMakeThumbnail(u"drawing.svg"));
    EXPECT_FALSE(ThumbnailLoader::canMakeThumbnail(u"notes.txt"));
    EXPECT_FALSE(ThumbnailLoader::canMakeThumbnail(u"jpg"));
}

TEST(ItemIcons, VideosShowTheDesktopsThumbnailWhenItHasOne)
{
    TempTree tree;
    const ResultItem video = itemAt(tree.file(QStringLiteral("clip.mp4"), "not really a film"));
    const ResultItem other = itemAt(tree.file(QStringLiteral("other.mp4"), "nor this"));
    const QByteArray oldCache = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", tree.path(QStringLiteral("cache")).toLocal8Bit());
    QDir().mkpath(tree.path(QStringLiteral("cache/thumbnails/normal")));
    const QByteArray uri = QUrl::fromLocalFile(video.path).toEncoded();
    QImage frame(128, 72, QImage::Format_RGB32);
    frame.fill(Qt::magenta);
    frame.setText(QStringLiteral("Thumb::MTime"), QString::number(QFileInfo(video.path).lastModified().toSecsSinceEpoch()));
    frame.save(tree.path(QStringLiteral("cache/thumbnails/normal/")) +
               QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) + QStringLiteral(".png"));

    ItemIcons icons;
    icons.setSize(64);
    QSignalSpy changed(&icons, &ItemIcons::iconsChanged);
    const QSize typeIconSize = icons.icon(video).size();
    icons.icon(other);
    ASSERT_TRUE(changed.wait(10000));
    EXPECT_EQ(icons.icon(video).size(), QSize(64, 36));
    EXPECT_EQ(icons.icon(video).toImage().pixelColor(32, 18), QColor(Qt::magenta));
    EXPECT_EQ(icons.icon(other).size(), typeIconSize) << "without one it keeps its type icon";
    qputenv("XDG_CACHE_HOME", oldCache);
}
