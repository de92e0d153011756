#include "ListColours.h"

#include "results/ResultItem.h"

#include <QHash>

namespace selfsame {

bool isDarkPalette(const QPalette &palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor groupColour(bool alternate, const QPalette &palette)
{
    // "groupOdd" and "groupEven": the tint is far enough from the base to tell groups apart
    // at a glance, and near enough to it that the palette's text stays readable on both.
    if (!alternate) return palette.color(QPalette::Base);
    return isDarkPalette(palette) ? QColor(0x33, 0x46, 0x5f) : QColor(0xd5, 0xe3, 0xf5);
}

QColor cloneStatusColour(int status)
{
    switch (status) {
    case SelectedItself:
        return QColor(0xbf, 0xd9, 0xf5); // "statusSelected"
    case HardLink:
        return QColor(0xc8, 0xeb, 0xc3); // "statusHardLink"
    case AlreadyClone:
        return QColor(0xdd, 0xcc, 0xf2); // "statusClone"
    case OtherVolume:
        return QColor(0xf8, 0xdc, 0xb4); // "statusOtherVolume"
    case ProvenDuplicate:
        return QColor(0xf5, 0xec, 0xa8); // "statusDuplicate"
    default:
        return {};
    }
}

QColor tagColour(const QString &tagName)
{
    static const QHash<QString, QColor> colours{
        {QStringLiteral("gray"), QColor(0xb8, 0xb8, 0xbc)},   {QStringLiteral("grey"), QColor(0xb8, 0xb8, 0xbc)},
        {QStringLiteral("green"), QColor(0x8e, 0xd8, 0x7e)},  {QStringLiteral("purple"), QColor(0xcb, 0x9c, 0xe6)},
        {QStringLiteral("blue"), QColor(0x8c, 0xbc, 0xf5)},   {QStringLiteral("yellow"), QColor(0xf6, 0xdf, 0x6a)},
        {QStringLiteral("red"), QColor(0xf5, 0x8f, 0x8a)},    {QStringLiteral("orange"), QColor(0xf7, 0xb8, 0x6c)},
    };
    return colours.value(tagName.section(QLatin1Char('\n'), 0, 0).toLower());
}

} // namespace selfsame
