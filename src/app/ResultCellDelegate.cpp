#include "ResultCellDelegate.h"

#include "ListColours.h"
#include "ResultTableModel.h"

#include <QApplication>
#include <QLocale>
#include <QPainter>

namespace selfsame {

namespace {

QString timeFormatWithSeconds(const QLocale &locale)
{
    QString format = locale.timeFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1Char('s'))) {
        const qsizetype minutes = format.lastIndexOf(QLatin1String("mm"));
        if (minutes >= 0) format.insert(minutes + 2, QLatin1String(":ss"));
    }
    return format;
}

} // namespace

QStringList dateCellTexts(const QDateTime &date)
{
    const QLocale locale;
    const QString day = locale.toString(date.date(), QLocale::ShortFormat);
    return {day + QLatin1Char(' ') + locale.toString(date.time(), timeFormatWithSeconds(locale)),
            day + QLatin1Char(' ') + locale.toString(date.time(), QLocale::ShortFormat), day};
}

QString fittingDateText(const QDateTime &date, const QFontMetrics &metrics, int width)
{
    const QStringList texts = dateCellTexts(date);
    for (const QString &text : texts)
        if (metrics.horizontalAdvance(text) <= width - 4) return text;
    return texts.last();
}

void ResultCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    paintCell(painter, option, index);
    // A line across the whole row where a group begins: groups read apart even in a
    // selection or where the bands are hard to see.
    if (index.data(ResultTableModel::GroupStartRole).toBool()) {
        painter->save();
        painter->setPen(QPen(option.palette.color(QPalette::Mid), 1));
        painter->drawLine(option.rect.topLeft(), option.rect.topRight());
        painter->restore();
    }
}

void ResultCellDelegate::paintCell(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QVariant date = index.data(ResultTableModel::DateRole);
    if (date.isValid()) {
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index);
        opt.text = fittingDateText(QDateTime::fromSecsSinceEpoch(date.toLongLong()), opt.fontMetrics, opt.rect.width());
        QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
        return;
    }
    const QStringList tags = index.data(ResultTableModel::TagsRole).toStringList();
    if (!tags.isEmpty()) {
        QStyleOptionViewItem opt = option;
        initStyleOption(&opt, index); // the row's group band and selection behind the chips
        paintTags(painter, opt, tags);
        return;
    }
    QStyledItemDelegate::paint(painter, option, index);
}

void ResultCellDelegate::paintTags(QPainter *painter, const QStyleOptionViewItem &option, const QStringList &tags) const
{
    QStyleOptionViewItem opt = option;
    opt.text.clear();
    QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &opt, painter, opt.widget);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setClipRect(option.rect);
    const QFontMetrics &metrics = option.fontMetrics;
    const int chipHeight = std::min(option.rect.height() - 2, metrics.height() + 2);
    int x = option.rect.left() + 3;
    const int y = option.rect.top() + (option.rect.height() - chipHeight) / 2;
    for (const QString &tag : tags) {
        const QString name = tag.section(QLatin1Char('\n'), 0, 0);
        const QColor colour = tagColour(name);
        const QRect chip(x, y, metrics.horizontalAdvance(name) + 10, chipHeight);
        painter->setPen(Qt::NoPen);
        painter->setBrush(colour.isValid() ? colour : QColor(0xe4, 0xe4, 0xe6));
        painter->drawRoundedRect(chip, chipHeight / 2.0, chipHeight / 2.0);
        painter->setPen(Qt::black);
        painter->drawText(chip, Qt::AlignCenter, name);
        x = chip.right() + 4;
        if (x > option.rect.right()) break;
    }
    painter->restore();
}

} // namespace selfsame
