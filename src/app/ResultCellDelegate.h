#pragma once

#include <QDateTime>
#include <QFontMetrics>
#include <QStyledItemDelegate>

namespace selfsame {

// The three date texts of a date cell, longest first: with seconds, without, without time.
QStringList dateCellTexts(const QDateTime &date);
// The first text that fits `width` (less a margin of 4), else the last one.
QString fittingDateText(const QDateTime &date, const QFontMetrics &metrics, int width);

// Draws the cells that are more than text: dates that lose detail as the column narrows, and
// tags as coloured chips.
class ResultCellDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintCell(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintTags(QPainter *painter, const QStyleOptionViewItem &option, const QStringList &tags) const;
};

} // namespace selfsame
