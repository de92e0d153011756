#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QPlainTextEdit;

namespace selfsame {

struct ResultItem;

// A quick look at the selected item beside the lists: the picture of an image, the beginning
// of a text file, and what the search learnt of the file (size, dates, media values, place).
class PreviewPane : public QWidget {
    Q_OBJECT
public:
    explicit PreviewPane(QWidget *parent = nullptr);

    // Nothing selected, or several items: the pane says so.
    void showItem(const ResultItem *item);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void showPicture(quint64 request, const QImage &image);
    void fitPicture();

    QLabel *m_picture;
    QImage m_image; // the picture as made, before it is fitted to the pane
    QPlainTextEdit *m_text;
    QLabel *m_info;
    quint64 m_request = 0; // pictures of earlier items that arrive late are dropped
};

} // namespace selfsame
