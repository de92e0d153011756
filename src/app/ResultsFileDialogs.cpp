#include "ResultsFileDialogs.h"

#include "results/ResultsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>

namespace selfsame {

namespace {

struct ResultsFileDialogsText {
    Q_DECLARE_TR_FUNCTIONS(ResultsFileDialogs)
};

void open(QFileDialog *dialog, std::function<void(const QString &)> chosen)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, std::move(chosen));
    dialog->open();
}

void chooseSavePath(QWidget *parent, const QString &title, const QString &filter, const QString &suffix,
                    const QString &suggestedName, std::function<void(const QString &)> chosen)
{
    auto *dialog = new QFileDialog(parent, title, QDir::homePath(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(suffix);
    dialog->selectFile(suggestedName + u'.' + suffix);
    open(dialog, [suffix, chosen = std::move(chosen)](const QString &path) {
        chosen(path.endsWith(u'.' + suffix, Qt::CaseInsensitive) ? path : path + u'.' + suffix);
    });
}

} // namespace

void chooseResultsFileToOpen(QWidget *parent, std::function<void(const QString &)> chosen)
{
    auto *dialog = new QFileDialog(parent, ResultsFileDialogsText::tr("Open Results"), QDir::homePath(),
                                   ResultsFileDialogsText::tr("Selfsame Results (*.%1 *.json);;All Files (*)")
                                       .arg(ResultsFile::kSuffix));
    dialog->setFileMode(QFileDialog::ExistingFile);
    open(dialog, std::move(chosen));
}

void chooseResultsFileToSave(QWidget *parent, const QString &suggestedName, std::function<void(const QString &)> chosen)
{
    chooseSavePath(parent, ResultsFileDialogsText::tr("Save Results"),
                   ResultsFileDialogsText::tr("Selfsame Results (*.%1)").arg(ResultsFile::kSuffix),
                   ResultsFile::kSuffix, suggestedName, std::move(chosen));
}

void chooseCsvFileToExport(QWidget *parent, const QString &suggestedName, std::function<void(const QString &)> chosen)
{
    chooseSavePath(parent, ResultsFileDialogsText::tr("Export"),
                   ResultsFileDialogsText::tr("CSV Files (*.csv)"), QStringLiteral("csv"), suggestedName,
                   std::move(chosen));
}

} // namespace selfsame
