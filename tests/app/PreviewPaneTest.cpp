// The preview pane: what it shows for pictures, text files and other files.
#include "PreviewPane.h"
#include "results/ResultItem.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

TEST(PreviewPane, ShowsPicturesWhenReadyTextFilesAndWhatTheSearchRead)
{
    TempTree tree;
    QImage image(900, 300, QImage::Format_RGB32);
    image.fill(Qt::green);
    image.save(tree.path(QStringLiteral("wide.png")));
    PreviewPane pane;
    pane.show();
    const QList<QLabel *> labels = pane.findChildren<QLabel *>();
    ASSERT_EQ(labels.size(), 2);
    QLabel *picture = labels[0];
    QLabel *info = labels[1];
    auto *text = pane.findChild<QPlainTextEdit *>();

    ResultItem photo;
    photo.path = tree.path(QStringLiteral("wide.png"));
    photo.size = 2500;
    photo.setPixelSize(QStringLiteral("900 × 300"));
    photo.setLatitude(48.8566);
    photo.setLongitude(2.3522);
    pane.showItem(&photo);
    EXPECT_TRUE(info->text().contains(QStringLiteral("900 × 300")));
    EXPECT_TRUE(info->text().contains(QStringLiteral("N, ")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return !picture->pixmap().isNull(); }, 10000)) << "made off the main thread";
    // Fitted to the pane, with the picture's own proportions whatever the pane's.
    for (const QSize paneSize : {QSize(700, 900), QSize(250, 900)}) {
        pane.resize(paneSize);
        QApplication::processEvents();
        const QSize shown = picture->pixmap().size();
        EXPECT_LE(shown.width(), std::min(480, picture->width())) << paneSize.width();
        EXPECT_NEAR(double(shown.width()) / shown.height(), 3.0, 0.05) << paneSize.width();
    }
    EXPECT_FALSE(text->isVisible());

    ResultItem notes;
    notes.path = tree.file(QStringLiteral("notes.txt"), "first line\nsecond line\n");
    pane.showItem(&notes);
    EXPECT_TRUE(picture->pixmap().isNull());
    EXPECT_FALSE(picture->isVisible());
    EXPECT_TRUE(text->isVisible());
    EXPECT_EQ(text->toPlainText(), QStringLiteral("first line\nsecond line\n"));

    pane.showItem(nullptr);
    EXPECT_FALSE(text->isVisible());
    EXPECT_EQ(info->text(), QStringLiteral("Select one item to see it here."));
}
