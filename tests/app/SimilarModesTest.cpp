// The similar-pictures and same-recording modes in the windows: their options in the main
// window, the similarity columns of a results window, and the automatic selection's rules.
#include "Alert.h"
#include "AutoSelectSheet.h"
#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "SearchDefaults.h"
#include "SearchOptions.h"
#include "SearchOptionsPanel.h"
#include "Settings.h"
#include "results/ListColumns.h"
#include "similar/ImagePrint.h"
#include "support/TempTree.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

struct Store {
    TempTree tree;
    Settings settings{tree.path(QStringLiteral("Selfsame.conf"))};
    Store() { registerSearchDefaults(settings); }
};

// Chooses a mode in the pop-up as a user does.
void chooseMode(SearchOptionsPanel &panel, DetectionMode mode)
{
    auto *popup = qobject_cast<QComboBox *>(panel.modeSelector());
    const int index = popup->findData(int(mode));
    ASSERT_GE(index, 0);
    popup->setCurrentIndex(index);
    Q_EMIT popup->activated(index);
}

} // namespace

TEST(SimilarModeOptions, EachModeShowsItsControlsInPlaceAndTheyAreSavedWithTheSearch)
{
    Store store;
    SearchOptionsPanel panel;
    panel.setOptions(loadSearchOptions(store.settings));
    panel.applyToggles();
    panel.show();
    auto *popup = qobject_cast<QComboBox *>(panel.modeSelector());
    EXPECT_EQ(popup->count(), 6);
    EXPECT_EQ(popup->itemData(4).toInt(), int(DetectionMode::SimilarImages));
    EXPECT_EQ(popup->itemData(5).toInt(), int(DetectionMode::SimilarAudio));
    EXPECT_FALSE(panel.similarityField()->isVisible());
    EXPECT_EQ(panel.similarityField()->value(), kDefaultSimilarity);

    QSignalSpy resized(&panel, &SearchOptionsPanel::modeGroupResized);
    chooseMode(panel, DetectionMode::SimilarImages);
    EXPECT_TRUE(panel.similarityField()->isVisible());
    EXPECT_TRUE(panel.distinguishGreyscaleCheck()->isVisible());
    EXPECT_EQ(resized.size(), 1) << "the window follows the height of the options";

    // The slider and the field are one value.
    auto *slider = panel.findChild<QSlider *>();
    ASSERT_TRUE(slider);
    EXPECT_EQ(slider->value(), kDefaultSimilarity);
    slider->setValue(75);
    EXPECT_EQ(panel.similarityField()->value(), 75);
    panel.similarityField()->setValue(82);
    EXPECT_EQ(slider->value(), 82);
    panel.distinguishGreyscaleCheck()->setChecked(true);

    chooseMode(panel, DetectionMode::SimilarAudio);
    EXPECT_TRUE(panel.similarityField()->isVisible());
    EXPECT_FALSE(panel.distinguishGreyscaleCheck()->isVisible()) << "recordings have no colour";
    EXPECT_EQ(panel.similarityField()->value(), 82) << "one threshold for both modes";

    SearchOptions options = panel.options();
    EXPECT_EQ(options.detectionMode, int(DetectionMode::SimilarAudio));
    EXPECT_EQ(options.similarity, 82);
    EXPECT_TRUE(options.distinguishGreyscale);
    options.detectionMode = int(DetectionMode::SimilarImages);
    const SearchStart start = startSearch(options, {store.tree.path()}, store.settings);
    ASSERT_TRUE(start.request);
    EXPECT_EQ(start.request->detectionMode, DetectionMode::SimilarImages);
    EXPECT_EQ(start.request->similarity, 82);
    EXPECT_TRUE(start.request->distinguishGreyscale);
    EXPECT_EQ(store.settings.integerValue(QStringLiteral("similarity")), 82);
    EXPECT_TRUE(store.settings.boolValue(QStringLiteral("distinguishGreyscale")));

    // The next start shows them again; a value stored out of range is brought back into it.
    SearchOptionsPanel again;
    again.setOptions(loadSearchOptions(store.settings));
    EXPECT_EQ(again.similarityField()->value(), 82);
    EXPECT_TRUE(again.distinguishGreyscaleCheck()->isChecked());
    store.settings.setValue(key::similarity, 250);
    EXPECT_EQ(loadSearchOptions(store.settings).similarity, 100);
}

namespace {

// A results window of similar pictures made from items, as a finished search hands them over:
// "b" is one bit from the group's first item "a", "c" two bits from "a" and three from "b".
struct SimilarWindow {
    TempTree tree;
    Settings settings{tree.path(QStringLiteral("Selfsame.conf"))};
    Dupes *dupes = nullptr;

    SimilarWindow()
    {
        QList<ResultItem> items;
        const struct {
            const char *name;
            double similarity;
            std::uint64_t hash;
        } pictures[] = {{"a.jpg", 100, 0x0}, {"b.jpg", 98, 0x1}, {"c.png", 97, 0x6}};
        for (const auto &p : pictures) {
            ResultItem item;
            item.path = tree.file(QStringLiteral("p/") + QLatin1String(p.name), QByteArray(p.name));
            item.size = 5;
            item.group = 0;
            item.dupes = 3;
            item.setSimilarity(p.similarity);
            item.setMediaPrint(encodeImagePrint({p.hash, 40}));
            item.setPixelSize(QStringLiteral("64 × 48"));
            items.append(item);
        }
        SearchRequest request;
        request.searchInFolderURLs = {tree.path(QStringLiteral("p"))};
        request.detectionMode = DetectionMode::SimilarImages;
        dupes = new Dupes(settings);
        dupes->setAttribute(Qt::WA_DeleteOnClose, false);
        dupes->showFinishedResults(items, request);
        dupes->show();
    }
    ~SimilarWindow() { delete dupes; }

    int rowOf(ResultListView *view, const char *name) const
    {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            if (view->resultModel()->item(row)->name() == QLatin1String(name)) return row;
        return -1;
    }
    QString similarity(ResultListView *view, const char *name) const
    {
        const int column = view->resultModel()->columnOf(QStringLiteral("similarity"));
        return view->model()->data(view->model()->index(rowOf(view, name), column)).toString();
    }
};

} // namespace

TEST(SimilarResultsWindow, TheBottomListShowsLikenessToTheSelectedItemAndTheTopListToTheGroupsFirst)
{
    SimilarWindow w;
    ResultListView *top = w.dupes->mainList();
    ResultListView *bottom = w.dupes->cloneList();
    EXPECT_TRUE(w.dupes->windowTitle().contains(QStringLiteral("by similar pictures")))
        << w.dupes->windowTitle().toStdString();
    const int column = top->resultModel()->columnOf(QStringLiteral("similarity"));
    EXPECT_FALSE(top->isColumnHidden(column));
    EXPECT_FALSE(bottom->isColumnHidden(column));
    EXPECT_EQ(top->model()->headerData(column, Qt::Horizontal).toString(), QStringLiteral("Similarity"));
    EXPECT_EQ(w.similarity(top, "c.png"), QStringLiteral("97 %"));

    const int row = w.rowOf(top, "b.jpg");
    ASSERT_GE(row, 0);
    QTest::mouseClick(top->viewport(), Qt::LeftButton, {}, top->visualRect(top->model()->index(row, 0)).center());
    ASSERT_EQ(bottom->model()->rowCount(), 3);
    EXPECT_EQ(w.similarity(bottom, "b.jpg"), QStringLiteral("100 %"));
    EXPECT_EQ(w.similarity(bottom, "a.jpg"), similarityText(imageSimilarity(1)));
    EXPECT_EQ(w.similarity(bottom, "c.png"), similarityText(imageSimilarity(3)));
    EXPECT_NE(w.similarity(bottom, "c.png"), w.similarity(top, "c.png"));

    // A click on the header sorts the bottom list by what it shows.
    bottom->model()->sort(column, Qt::AscendingOrder);
    EXPECT_EQ(w.rowOf(bottom, "c.png"), 0);
    EXPECT_EQ(w.rowOf(bottom, "b.jpg"), 2);
}

TEST(SimilarResultsWindow, TheAutomaticSelectionOffersThePictureRuleFirstAndWithoutWarning)
{
    SimilarWindow w;
    ResultModel model;
    QList<ResultItem> items;
    for (const auto &[name, pixels] : {std::pair{"big.jpg", "1600 × 1200"}, std::pair{"small.jpg", "800 × 600"}}) {
        ResultItem item;
        item.path = w.tree.file(QLatin1String(name), "x");
        item.group = 0;
        item.setPixelSize(QString::fromUtf8(pixels));
        items.append(item);
    }
    SearchRequest request;
    request.detectionMode = DetectionMode::SimilarImages;
    request.searchInFolderURLs = {w.tree.path()};
    model.setResults(items, request);
    QStringList asked;
    setAlertAnswerer([&](const Alert &alert) {
        asked.append(alert.message);
        return AlertAnswer{kFirstButton + 1};
    });
    QWidget window;
    AutoSelectSheet sheet(&window, model, w.settings);
    sheet.automaticallySelectInFolder();
    setAlertAnswerer({});
    EXPECT_TRUE(asked.isEmpty());
    ASSERT_TRUE(sheet.isVisible());
    EXPECT_EQ(sheet.rules()->checkedId(), LargestPicture);
    EXPECT_TRUE(sheet.rules()->button(LargestPicture)->isVisible());
    EXPECT_FALSE(sheet.rules()->button(BestRecording)->isVisible());
    EXPECT_TRUE(sheet.rules()->button(SameFolderSameName)->isVisible());

    sheet.accept();
    ASSERT_EQ(model.selectedItems(ResultList::Top).size(), 1);
    EXPECT_EQ(model.selectedItems(ResultList::Top).first()->name(), QStringLiteral("small.jpg"));
    EXPECT_EQ(w.settings.integerValue(QStringLiteral("auto-select choice")), LargestPicture);
}
