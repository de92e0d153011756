#pragma once

#include <QWidget>

namespace selfsame {

// A thin frame around one widget that lights up in the highlight colour while that widget has
// the keyboard focus, so that it is plain which of several lists the keys and commands act on.
class FocusRing : public QWidget {
    Q_OBJECT
public:
    explicit FocusRing(QWidget *content, QWidget *parent = nullptr);

    QWidget *content() const { return m_content; }
    bool isLit() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QWidget *m_content;
};

} // namespace selfsame
