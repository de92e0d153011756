// The automatic-selection sheet: its controls and labels, the warning outside the content
// mode, the folder submenu and drop, and what applying a rule selects and hides.
#include "Alert.h"
#include "AutoSelectSheet.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "support/TempTree.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

class AutoSelectSheetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setAlertAnswerer([this](const Alert &alert) {
            asked.append(alert.message);
            return answers.isEmpty() ? AlertAnswer{kFirstButton + 1} : answers.takeFirst();
        });
    }
    void TearDown() override { setAlertAnswerer({}); }

    // Group 0: two copies in keep/ and one in old/; group 1: one copy in each folder.
    void load(DetectionMode mode = DetectionMode::Content)
    {
        QList<ResultItem> items;
        for (const auto &[rel, group] : QList<QPair<const char *, int>>{
                 {"keep/a.jpg", 0}, {"keep/a copy.jpg", 0}, {"old/a.jpg", 0}, {"keep/b.txt", 1}, {"old/b.txt", 1}}) {
            ResultItem item;
            item.path = tree.file(QString::fromUtf8(rel), "x");
            item.group = group;
            item.digest.fill(std::uint8_t(group));
            item.set(HasDigest);
            items.append(item);
        }
        SearchRequest request;
        request.detectionMode = mode;
        request.searchInFolderURLs = {tree.path()};
        model.setResults(items, request);
        sheet = std::make_unique<AutoSelectSheet>(&window, model, settings);
        changes = std::make_unique<QSignalSpy>(sheet.get(), &AutoSelectSheet::modelChanged);
    }
    QStringList names(const QList<ResultItem *> &items) const
    {
        QStringList result;
        for (const ResultItem *item : items)
            result.append(item->path.mid(tree.path().size() + 1));
        result.sort();
        return result;
    }

    TempTree tree;
    Settings settings{tree.path(QStringLiteral("settings.ini"))};
    QWidget window;
    ResultModel model;
    std::unique_ptr<AutoSelectSheet> sheet;
    std::unique_ptr<QSignalSpy> changes;
    QStringList asked;
    QList<AlertAnswer> answers;
};

TEST_F(AutoSelectSheetTest, ControlsFollowTheRuleAndLabelsSayWhatIsKept)
{
    load();
    sheet->automaticallySelectInFolder();
    EXPECT_TRUE(asked.isEmpty()); // no warning in the content mode
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->rules()->checkedId(), SameFolderSameName);
    EXPECT_FALSE(sheet->insideCondition()->isEnabled());

    sheet->rules()->button(InsideFolder)->setChecked(true);
    EXPECT_TRUE(sheet->insideCondition()->isEnabled());
    EXPECT_EQ(sheet->folderLabelText(), QStringLiteral("Kept: the copies not directly inside the folder."));
    sheet->insideCondition()->setCurrentIndex(OutsideAtAnyDepth);
    sheet->insideDateCriterion()->setCurrentIndex(LaterDate);
    EXPECT_EQ(sheet->folderLabelText(), QStringLiteral("Kept: the copies anywhere inside the folder, and those "
                                                       "that the date condition spares."));

    sheet->rules()->button(ByTag)->setChecked(true);
    EXPECT_FALSE(sheet->insideCondition()->isEnabled());
    EXPECT_TRUE(sheet->tagField()->isEnabled());
    EXPECT_EQ(sheet->tagLabelText(), QStringLiteral("Kept: the copies not having the tag."));
    sheet->tagCondition()->setCurrentIndex(HavingAnyTag);
    EXPECT_FALSE(sheet->tagField()->isEnabled());
    EXPECT_EQ(sheet->tagLabelText(), QStringLiteral("Kept: the copies having no tag."));
    EXPECT_EQ(sheet->tagField()->text(), QStringLiteral("Red")); // the registered default
    sheet->reject();
}

TEST_F(AutoSelectSheetTest, OutsideTheContentModeAWarningComesFirstUntilSilenced)
{
    load(DetectionMode::FileName);
    sheet->automaticallySelectInFolder();
    EXPECT_EQ(asked, QStringList{QStringLiteral("Warning: You may end up selecting documents that are "
                                                "completely unrelated and that only have the same file name")});
    EXPECT_FALSE(sheet->isVisible()); // Cancel

    answers = {AlertAnswer{kFirstButton, true}}; // Continue, do not show again
    sheet->automaticallySelectInFolder();
    EXPECT_TRUE(sheet->isVisible());
    EXPECT_TRUE(settings.dictionary(key::doNotShowAgain).value(QStringLiteral("auto select time-based")).toBool());
    sheet->reject();

    asked.clear();
    sheet->automaticallySelectInFolder();
    EXPECT_TRUE(asked.isEmpty());
    EXPECT_TRUE(sheet->isVisible());
    sheet->reject();
}

TEST_F(AutoSelectSheetTest, TheFolderSubmenuOpensTheFolderRuleThatSelectsInsideAndKeepsTheRest)
{
    load();
    QMenu submenu;
    ResultItem *copy = model.mainItems().first();
    for (ResultItem *item : model.mainItems())
        if (item->path.endsWith(QStringLiteral("old/a.jpg")))
            copy = item;
    sheet->buildFolderSubmenu(&submenu, {copy, copy});
    EXPECT_TRUE(submenu.isEmpty()); // only for one targeted item
    sheet->buildFolderSubmenu(&submenu, {copy});
    ASSERT_GE(submenu.actions().size(), 2);
    EXPECT_EQ(submenu.actions()[0]->text(), QStringLiteral("old"));
    EXPECT_EQ(submenu.actions()[1]->data().toString(), tree.path());

    submenu.actions()[0]->trigger();
    ASSERT_TRUE(sheet->isVisible());
    EXPECT_EQ(sheet->rules()->checkedId(), InsideFolder);
    EXPECT_EQ(sheet->folderField()->text(), tree.path(QStringLiteral("old")));
    sheet->hideOthers()->setChecked(true);
    sheet->accept();

    EXPECT_EQ(names(model.selectedItems(ResultList::Top)), (QStringList{QStringLiteral("old/a.jpg"),
                                                                        QStringLiteral("old/b.txt")}));
    EXPECT_EQ(settings.integerValue(QStringLiteral("auto-select choice")), InsideFolder);
    EXPECT_TRUE(settings.boolValue(QStringLiteral("auto-select hide")));
    EXPECT_EQ(changes->count(), 1);
    EXPECT_TRUE(model.mainItemsHidden().isEmpty()); // every copy was selected or kept

    // The same-name rule decides only in keep/: the rest is hidden until shown again.
    sheet->automaticallySelectInFolder();
    sheet->rules()->button(SameFolderSameName)->setChecked(true);
    sheet->accept();
    EXPECT_EQ(names(model.selectedItems(ResultList::Top)), QStringList{QStringLiteral("keep/a copy.jpg")});
    EXPECT_EQ(model.mainItemsHidden().size(), 3);
    EXPECT_TRUE(sheet->unhideAction()->isEnabled());
    sheet->unhideAction()->trigger();
    EXPECT_EQ(model.mainItems().size(), 5);
    EXPECT_EQ(names(model.selectedItems(ResultList::Top)), QStringList{QStringLiteral("keep/a copy.jpg")});
    EXPECT_EQ(changes->count(), 3);
}

TEST_F(AutoSelectSheetTest, DroppingAFileOnTheFolderFieldChoosesItAndAnythingElseIsRefused)
{
    load();
    sheet->automaticallySelectInFolder(tree.path(QStringLiteral("keep")));
    QLineEdit *field = sheet->folderField();

    QMimeData text;
    text.setText(QStringLiteral("not a file"));
    QDropEvent refused(QPointF(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    // Straight to the field: outside a real drag the application does not route drops.
    static_cast<QObject *>(field)->event(&refused);
    EXPECT_FALSE(refused.isAccepted());
    EXPECT_EQ(field->text(), tree.path(QStringLiteral("keep")));

    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(tree.path(QStringLiteral("old/b.txt")))});
    QDropEvent dropped(QPointF(5, 5), Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
    static_cast<QObject *>(field)->event(&dropped);
    EXPECT_TRUE(dropped.isAccepted());
    EXPECT_EQ(field->text(), tree.path(QStringLiteral("old/b.txt")));
    EXPECT_EQ(settings.stringValue(QStringLiteral("auto-select folder")), tree.path(QStringLiteral("old/b.txt")));
    sheet->reject();
}

} // namespace
