#include "results/CsvExport.h"

#include "format/Formatters.h"
#include "format/IsoDate.h"
#include "results/ItemKeys.h"
#include "results/NameCompare.h"

#include <QCoreApplication>
#include <QDateTime>

#include <cmath>

namespace selfsame {

namespace {

QString date(qint64 seconds)
{
    return seconds == kNoDate ? QString() : QString::fromLatin1(isoDate(seconds));
}

QString bitrateText(double bitrate)
{
    const qint64 n = qint64(bitrate);
    if (n < 1) return {};
    if (n < 1024) return QStringLiteral("%1 bps").arg(n);
    if (n < 1048576) return QStringLiteral("%1 kbps").arg(n / 1024);
    return QString::asprintf("%0.1f Mbps", double(n) / 1048576.0);
}

QString spotlightText(const QVariant &value, const QString &attribute)
{
    switch (value.typeId()) {
    case QMetaType::QDateTime:
        return date(value.toDateTime().toSecsSinceEpoch());
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Bool:
        return QString();
    }
    if (!value.isValid() || !value.canConvert<double>()) return {};
    if (attribute == QLatin1String("kMDItemLatitude"))
        return DegreeMinuteSecondFormatter::latitude().stringForObjectValue(value);
    if (attribute == QLatin1String("kMDItemLongitude"))
        return DegreeMinuteSecondFormatter::longitude().stringForObjectValue(value);
    if (attribute == QLatin1String("kMDItemDurationSeconds"))
        return HourMinuteSecondFormatter::shared().stringForObjectValue(value);
    return QString::number(value.toDouble(), 'g', 15);
}

QString cloneText(int status)
{
    switch (status) {
    case SelectedItself: return QCoreApplication::translate("CsvExport", "selected");
    case HardLink: return QCoreApplication::translate("CsvExport", "hard link");
    case AlreadyClone: return QCoreApplication::translate("CsvExport", "clone");
    case OtherVolume: return QCoreApplication::translate("CsvExport", "other volume");
    case ProvenDuplicate: return QCoreApplication::translate("CsvExport", "duplicate");
    }
    return {};
}

void appendField(QByteArray &out, const QString &text)
{
    QByteArray field = text.toUtf8();
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r'))
        field = '"' + field.replace("\"", "\"\"") + '"';
    out += field;
}

} // namespace

QString exportedCellText(const ResultItem &item, const QString &column, const QString &spotlightAttribute)
{
    if (column == QLatin1String("name")) return item.name();
    if (column == QLatin1String("folder")) {
        const QString folder = item.folder();
        return folder == QLatin1String("/") ? folder : folder.mid(folder.lastIndexOf(u'/') + 1);
    }
    if (column == QLatin1String("path")) return item.parentPath();
    if (column == QLatin1String("extension"))
        return item.has(IsFolder) && !item.has(IsPackage) ? QCoreApplication::translate("CsvExport", "folder")
                                                           : pathExtension(item.nameView()).toString().toLower();
    if (column == QLatin1String("size")) return QString::number(item.size);
    if (column == QLatin1String("duration"))
        return item.duration() > 0 ? HourMinuteSecondFormatter::shared().stringFromDoubleValue(item.duration())
                                   : QString();
    if (column == QLatin1String("latitude"))
        return std::isnan(item.latitude()) ? QString()
                                           : DegreeMinuteSecondFormatter::latitude().stringFromDoubleValue(item.latitude());
    if (column == QLatin1String("longitude"))
        return std::isnan(item.longitude())
                   ? QString()
                   : DegreeMinuteSecondFormatter::longitude().stringFromDoubleValue(item.longitude());
    if (column == QLatin1String("spotlight")) return spotlightText(item.spotlight(), spotlightAttribute);
    if (column == QLatin1String("bitrate")) return bitrateText(item.bitrate());
    if (column == QLatin1String("clone")) return cloneText(item.clone);
    if (column == QLatin1String("tags")) return item.tagList().join(QLatin1String(", "));
    if (column == QLatin1String("dupes")) return QString::number(item.dupes);
    const QVariant value = itemValue(item, column);
    if (value.typeId() == QMetaType::QDateTime) return date(value.toDateTime().toSecsSinceEpoch());
    return value.toString();
}

QByteArray exportCsv(const QList<const ResultItem *> &items, const QList<CsvColumn> &columns,
                     const QString &spotlightAttribute)
{
    QByteArray out;
    auto row = [&](auto cellText) {
        for (qsizetype c = 0; c < columns.size(); ++c) {
            if (c > 0) out += ',';
            appendField(out, cellText(columns[c]));
        }
        out += "\r\n";
    };
    row([](const CsvColumn &column) { return column.title; });
    for (const ResultItem *item : items)
        row([&](const CsvColumn &column) { return exportedCellText(*item, column.identifier, spotlightAttribute); });
    return out;
}

} // namespace selfsame
