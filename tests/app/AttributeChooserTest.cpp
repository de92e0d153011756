#include "AttributeChooser.h"

#include "AppDelegate.h"
#include "AttributeChooserModel.h"
#include "AttributeFilter.h"
#include "SearchDefaults.h"
#include "SearchOptionsPanel.h"
#include "Settings.h"
#include "attributes/SpotlightAttributesManager.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

QStringList keysOf(const QList<AttributeRow> &rows)
{
    QStringList keys;
    for (const AttributeRow &row : rows)
        keys.append(row.key);
    return keys;
}

// The catalogue over settings of the test's own.
class Catalogue : public ::testing::Test {
protected:
    void SetUp() override { SpotlightAttributesManager::setSettingsStore(&store); }
    void TearDown() override { SpotlightAttributesManager::setSettingsStore(nullptr); }
    MemorySettingsStore store;
};

struct ChooserWindow {
    QTemporaryDir dir;
    Settings settings{dir.filePath(QStringLiteral("Selfsame.conf"))};
    AppDelegate window{settings};
    AttributeChooser *chooser = nullptr;

    AttributeChooser &open()
    {
        window.manageSpotlightAttributes();
        for (AttributeChooser *open : window.findChildren<AttributeChooser *>()) {
            if (open->isVisible())
                chooser = open;
        }
        return *chooser;
    }
    int rowOf(const QString &key)
    {
        for (int row = 0; row < chooser->model()->rowCount(); ++row) {
            if (chooser->model()->keyAt(row) == key)
                return row;
        }
        return -1;
    }
    void tick(const QString &key, bool on)
    {
        chooser->model()->setData(chooser->model()->index(rowOf(key), AttributeChooserModel::MenuColumn),
                                  on ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    }
    void select(const QStringList &keys)
    {
        QItemSelection selection;
        for (const QString &key : keys) {
            const int row = rowOf(key);
            selection.select(chooser->model()->index(row, 0),
                             chooser->model()->index(row, AttributeChooserModel::ColumnCount - 1));
        }
        chooser->table()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    QStringList popupKeys()
    {
        QStringList keys;
        QComboBox *popup = window.optionsPanel()->attributeSelector();
        for (int i = 0; i < popup->count(); ++i) {
            if (!popup->itemData(i).toString().isEmpty())
                keys.append(popup->itemData(i).toString());
        }
        return keys;
    }
};

} // namespace

TEST(AttributeFilter, FoldsCaseAndAccentsOnBothSides)
{
    EXPECT_TRUE(foldedContains(QStringLiteral("Café Crème"), QStringLiteral("cafe CR")));
    EXPECT_TRUE(foldedContains(QStringLiteral("Cafe creme"), QStringLiteral("CRÈME")));
    EXPECT_FALSE(foldedContains(QStringLiteral("Café Crème"), QStringLiteral("cafe x")));
    EXPECT_FALSE(foldedContains(QStringLiteral("Café Crème"), QStringLiteral("creme cafe")))
        << "one piece, in order";
}

TEST_F(Catalogue, ExtensionsListTheirFilesAttributesAndOtherWordsSearchText)
{
    const QList<AttributeRow> jpg = filterAttributes(QStringLiteral("jpg"), false);
    const auto expected =
        SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension(QStringLiteral("jpg"), true);
    ASSERT_TRUE(expected.has_value());
    QStringList expectedKeys = expected->keys();
    QStringList keys = keysOf(jpg);
    expectedKeys.sort();
    keys.sort();
    EXPECT_EQ(keys, expectedKeys);
    EXPECT_TRUE(keys.contains(QStringLiteral("kMDItemPixelWidth")));
    EXPECT_FALSE(keys.contains(QStringLiteral("kMDItemDurationSeconds")));

    const QList<AttributeRow> duration = filterAttributes(QStringLiteral("DURÉE duration"), false);
    EXPECT_TRUE(duration.isEmpty()) << "the whole text is one piece";
    const QList<AttributeRow> byText = filterAttributes(QStringLiteral("dúration"), false);
    ASSERT_FALSE(byText.isEmpty());
    EXPECT_TRUE(keysOf(byText).contains(QStringLiteral("kMDItemDurationSeconds")));
    for (const AttributeRow &row : byText)
        EXPECT_TRUE(
            foldedContains(row.record.name + u' ' + row.record.description, QStringLiteral("duration")));
}

TEST_F(Catalogue, UnnamedAttributesShowOnlyWithKeysAndSortLast)
{
    SpotlightAttributesManager manager;
    ASSERT_TRUE(
        manager.addAttribute(QStringLiteral("com_example_unnamed"), {QString(), QString(), StringType}));
    ASSERT_TRUE(manager.addAttribute(QStringLiteral("com_example_zebra"),
                                     {QStringLiteral("Aardvark"), QString(), StringType}));
    EXPECT_FALSE(keysOf(filterAttributes(QString(), false)).contains(QStringLiteral("com_example_unnamed")));
    const QList<AttributeRow> all = filterAttributes(QString(), true);
    ASSERT_FALSE(all.isEmpty());
    EXPECT_EQ(all.last().key, QStringLiteral("com_example_unnamed"));
    EXPECT_EQ(all.first().key, QStringLiteral("com_example_zebra")) << "sorted by name, not key";
    EXPECT_TRUE(keysOf(filterAttributes(QStringLiteral("example_unn"), true))
                    .contains(QStringLiteral("com_example_unnamed")));
    EXPECT_TRUE(filterAttributes(QStringLiteral("example_unn"), false).isEmpty());
}

TEST(AttributeChooser, TickingAndOkWithoutSelectionOffersTheAttributeButKeepsTheChoice)
{
    ChooserWindow w;
    const QString chosenBefore = w.settings.stringValue(key::spotlightAttribute);
    AttributeChooser &chooser = w.open();
    ASSERT_GE(w.rowOf(QStringLiteral("kMDItemPixelWidth")), 0);
    EXPECT_FALSE(w.popupKeys().contains(QStringLiteral("kMDItemPixelWidth")));
    w.tick(QStringLiteral("kMDItemPixelWidth"), true);
    w.tick(QStringLiteral("kMDItemHeadline"), false);
    chooser.accept();
    const QStringList active = w.settings.stringListValue(key::activeSpotlightAttributes);
    EXPECT_EQ(active.first(), QStringLiteral("kMDItemPixelWidth"));
    EXPECT_FALSE(active.contains(QStringLiteral("kMDItemHeadline")));
    EXPECT_EQ(w.popupKeys(), active);
    EXPECT_EQ(w.settings.stringValue(key::spotlightAttribute), chosenBefore);
    EXPECT_EQ(w.window.optionsPanel()->options().spotlightAttribute, chosenBefore);
}

TEST(AttributeChooser, OkWithOneSelectedRowChoosesItAndCancelChangesNothing)
{
    ChooserWindow w;
    const QStringList activeBefore = w.settings.stringListValue(key::activeSpotlightAttributes);
    AttributeChooser &cancelled = w.open();
    w.tick(QStringLiteral("kMDItemISOSpeed"), true);
    w.select({QStringLiteral("kMDItemFNumber")});
    cancelled.reject();
    QApplication::processEvents();
    EXPECT_EQ(w.settings.stringListValue(key::activeSpotlightAttributes), activeBefore);
    EXPECT_EQ(w.popupKeys(), activeBefore);

    AttributeChooser &chooser = w.open();
    w.select({QStringLiteral("kMDItemFNumber")});
    chooser.accept();
    EXPECT_EQ(w.settings.stringValue(key::spotlightAttribute), QStringLiteral("kMDItemFNumber"));
    EXPECT_EQ(w.settings.stringListValue(key::activeSpotlightAttributes).first(),
              QStringLiteral("kMDItemFNumber"));
    EXPECT_EQ(w.window.optionsPanel()->attributeSelector()->currentData().toString(),
              QStringLiteral("kMDItemFNumber"));
}

TEST(AttributeChooser, SpaceTicksTheSelectedRowsTogether)
{
    ChooserWindow w;
    w.open();
    w.select({QStringLiteral("kMDItemFNumber"), QStringLiteral("kMDItemTitle")});
    QTest::keyClick(w.chooser->table(), Qt::Key_Space);
    const auto offered = [&](const QString &key) {
        return w.chooser->model()->data(
                   w.chooser->model()->index(w.rowOf(key), AttributeChooserModel::MenuColumn),
                   Qt::CheckStateRole) == Qt::Checked;
    };
    EXPECT_TRUE(offered(QStringLiteral("kMDItemFNumber"))) << "the first row was off, so all go on";
    EXPECT_TRUE(offered(QStringLiteral("kMDItemTitle")));
    QTest::keyClick(w.chooser->table(), Qt::Key_Space);
    EXPECT_FALSE(offered(QStringLiteral("kMDItemFNumber")));
    EXPECT_FALSE(offered(QStringLiteral("kMDItemTitle")));
    w.chooser->reject();
}

TEST(AttributeChooser, TheAttributeTypeDecidesTheTolerance)
{
    ChooserWindow w;
    QComboBox *popup = w.window.optionsPanel()->attributeSelector();
    const auto choose = [&](const QString &key) {
        const int index = popup->findData(key);
        ASSERT_GE(index, 0);
        popup->setCurrentIndex(index);
        Q_EMIT popup->activated(index);
    };
    choose(QStringLiteral("kMDItemAlbum"));
    EXPECT_FALSE(w.window.optionsPanel()->options().spotlightToleranceVisible) << "text has no tolerance";
    EXPECT_EQ(w.settings.stringValue(key::spotlightAttribute), QStringLiteral("kMDItemAlbum"));
    choose(QStringLiteral("kMDItemLatitude"));
    EXPECT_TRUE(w.window.optionsPanel()->options().spotlightToleranceVisible);
    choose(QStringLiteral("kMDItemRecordingDate"));
    EXPECT_TRUE(w.window.optionsPanel()->options().spotlightToleranceVisible);
}

TEST(AttributeChooser, TheSearchFieldFiltersTheTableAndKeysComeWithTheirColumn)
{
    ChooserWindow w;
    AttributeChooser &chooser = w.open();
    QTest::keyClicks(chooser.searchField(), QStringLiteral("jpg"));
    EXPECT_GE(w.rowOf(QStringLiteral("kMDItemPixelWidth")), 0);
    EXPECT_LT(w.rowOf(QStringLiteral("kMDItemDurationSeconds")), 0);
    EXPECT_EQ(chooser.model()->rowCount(), filterAttributes(QStringLiteral("jpg"), false).size());

    EXPECT_TRUE(chooser.table()->isColumnHidden(AttributeChooserModel::KeyColumn));
    auto *showKeys = chooser.findChild<QCheckBox *>();
    ASSERT_TRUE(showKeys);
    showKeys->click();
    EXPECT_FALSE(chooser.table()->isColumnHidden(AttributeChooserModel::KeyColumn));
    EXPECT_TRUE(w.settings.boolValue(QStringLiteral("ShowSpotlightAttributesKey")));
    chooser.reject();
}
