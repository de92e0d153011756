#pragma once

#include "search/DuplicateSearch.h"

#include <QMainWindow>

class QLabel;
class QProgressBar;
class QPushButton;
class QTreeWidget;

namespace selfsame {

// A results window: runs one search and lists its groups of duplicates.
class Dupes : public QMainWindow {
    Q_OBJECT
public:
    explicit Dupes(QWidget *parent = nullptr);

    void searchInFolderURLs(const SearchRequest &request);

    // Selects and shows the item with this path; false when the results do not hold it.
    bool selectAndRevealInTopList(const QString &path);

Q_SIGNALS:
    void finishedSearching(Dupes *dupes);
    void closed(Dupes *dupes);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void showProgress(const QString &status, double progress);
    void searchDone();
    void fillList(const QList<ResultItem> &items);

    DuplicateSearch m_search;
    QLabel *m_statusLbl;
    QProgressBar *m_progressBar;
    QPushButton *m_abortBtn;
    QTreeWidget *m_list;
};

} // namespace selfsame
