#include "results/ListColumns.h"

#include "format/ByteSize.h"
#include "format/Formatters.h"
#include "results/ItemKeys.h"
#include "results/NameCompare.h"
#include "search/FilenameSortKey.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace selfsame
{

namespace
{

struct DupesText {
    Q_DECLARE_TR_FUNCTIONS(Dupes)
};

const QLatin1String kLatitude("kMDItemLatitude");
const QLatin1String kLongitude("kMDItemLongitude");
const QLatin1String kDuration("kMDItemDurationSeconds");

QString degreesText(double value, const DegreeMinuteSecondFormatter &formatter)
{
    return std::isnan(value) ? QString() : formatter.stringFromDoubleValue(value);
}

QString spotlightText(const QVariant &value, const QString &attribute)
{
    switch (value.typeId()) {
    case QMetaType::QString:
        return value.toString();
    case QMetaType::QDateTime:
    case QMetaType::QDate:
        return QLocale().toString(value.toDateTime().toLocalTime(), QLocale::ShortFormat);
    case QMetaType::Bool:
    case QMetaType::UnknownType:
        return {};
    default:
        break;
    }
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber) return {};
    if (attribute == kLatitude) return DegreeMinuteSecondFormatter::latitude().stringFromDoubleValue(number);
    if (attribute == kLongitude) return DegreeMinuteSecondFormatter::longitude().stringFromDoubleValue(number);
    if (attribute == kDuration) return HourMinuteSecondFormatter::shared().stringFromDoubleValue(number);
    return QLocale().toString(number, 'g', 12);
}

} // namespace

const QStringList &listColumnIdentifiers()
{
    static const QStringList columns{
        QStringLiteral("name"),     QStringLiteral("folder"),     QStringLiteral("path"),
        QStringLiteral("extension"), QStringLiteral("size"),      QStringLiteral("duration"),
        QStringLiteral("latitude"), QStringLiteral("longitude"),  QStringLiteral("spotlight"),
        QStringLiteral("pixelSize"), QStringLiteral("codecs"),    QStringLiteral("bitrate"),
        QStringLiteral("modified"), QStringLiteral("created"),    QStringLiteral("lastUsed"),
        QStringLiteral("addedDate"), QStringLiteral("attributes"), QStringLiteral("tags"),
        QStringLiteral("dupes"),    QStringLiteral("clone"),      QStringLiteral("similarity")};
    return columns;
}

QStringList modeHiddenColumns(DetectionMode mode, const QString &spotlightAttribute)
{
    const QString similarity = QStringLiteral("similarity");
    switch (mode) {
    case DetectionMode::Duration:
        return {QStringLiteral("spotlight"), QStringLiteral("latitude"), QStringLiteral("longitude"), similarity};
    case DetectionMode::Attribute:
        if (spotlightAttribute == kLatitude) return {QStringLiteral("latitude"), similarity};
        if (spotlightAttribute == kLongitude) return {QStringLiteral("longitude"), similarity};
        return {QStringLiteral("latitude"), QStringLiteral("longitude"), similarity};
    case DetectionMode::SimilarImages:
        return {QStringLiteral("spotlight"), QStringLiteral("latitude"), QStringLiteral("longitude"),
                QStringLiteral("duration"),  QStringLiteral("codecs"),   QStringLiteral("bitrate")};
    case DetectionMode::SimilarAudio:
        return {QStringLiteral("spotlight"), QStringLiteral("latitude"), QStringLiteral("longitude"),
                QStringLiteral("pixelSize")};
    case DetectionMode::Content:
    case DetectionMode::FileName:
        break;
    }
    return {QStringLiteral("spotlight"), QStringLiteral("latitude"), QStringLiteral("longitude"),
            QStringLiteral("duration"),  QStringLiteral("pixelSize"), QStringLiteral("codecs"),
            QStringLiteral("bitrate"),   similarity};
}

QString columnSortKey(const QString &column)
{
    if (column == QLatin1String("name")) return kSortByNameKeyPath;
    if (column == QLatin1String("folder")) return kSortByFolderKeyPath;
    if (column == QLatin1String("path")) return QStringLiteral("parentPath");
    return column;
}

bool isDateColumn(const QString &column)
{
    return column == QLatin1String("modified") || column == QLatin1String("created") ||
           column == QLatin1String("lastUsed") || column == QLatin1String("addedDate") ||
           column == QLatin1String("attributes");
}

std::optional<qint64> cellDate(const ResultItem &item, const QString &column)
{
    qint64 seconds = kNoDate;
    if (column == QLatin1String("modified"))
        seconds = item.modified;
    else if (column == QLatin1String("created"))
        seconds = item.created;
    else if (column == QLatin1String("lastUsed"))
        seconds = item.lastUsed;
    else if (column == QLatin1String("addedDate"))
        seconds = item.addedDate();
    else if (column == QLatin1String("attributes"))
        seconds = item.attributes;
    if (seconds == kNoDate) return std::nullopt;
    return seconds;
}

QString cellText(const ResultItem &item, const QString &column, const QString &spotlightAttribute)
{
    if (column == QLatin1String("name")) return item.name();
    if (column == QLatin1String("folder")) {
        const QString folder = item.folder();
        return folder.mid(folder.lastIndexOf(QLatin1Char('/')) + 1);
    }
    if (column == QLatin1String("path")) return item.parentPath();
    if (column == QLatin1String("extension")) {
        // The two sides of a contained group tell themselves apart in every list.
        if (item.has(ContainedFolder)) return DupesText::tr("contained");
        if (item.has(ContainingFolder)) return DupesText::tr("container");
        if (item.has(IsFolder) && !item.has(IsPackage)) return DupesText::tr("folder");
        return pathExtension(item.nameView()).toString().toLower();
    }
    if (column == QLatin1String("size")) return formatByteCount(item.size);
    if (column == QLatin1String("duration"))
        return item.duration() > 0 ? HourMinuteSecondFormatter::shared().stringFromDoubleValue(item.duration())
                                   : QString();
    if (column == QLatin1String("latitude")) return degreesText(item.latitude(), DegreeMinuteSecondFormatter::latitude());
    if (column == QLatin1String("longitude"))
        return degreesText(item.longitude(), DegreeMinuteSecondFormatter::longitude());
    if (column == QLatin1String("spotlight")) return spotlightText(item.spotlight(), spotlightAttribute);
    if (column == QLatin1String("pixelSize")) return item.pixelSize();
    if (column == QLatin1String("codecs")) return item.codecs();
    if (column == QLatin1String("bitrate")) return bitrateText(item.bitrate());
    if (column == QLatin1String("tags")) return item.tagList().join(u' ');
    if (column == QLatin1String("dupes")) return formatCount(item.dupes);
    if (column == QLatin1String("similarity")) return similarityText(item.similarity());
    if (column == QLatin1String("clone")) {
        // Beside the other side of a contained group, selected above.
        if (item.clone == PlainDuplicate && item.has(ContainingFolder)) return DupesText::tr("holds its files");
        if (item.clone == PlainDuplicate && item.has(ContainedFolder)) return DupesText::tr("contained in it");
        return cloneStatusWord(item.clone);
    }
    return {};
}

QString bitrateText(double bitsPerSecond)
{
    const qint64 n = qint64(bitsPerSecond);
    if (n < 1) return {};
    if (n < 1024) return DupesText::tr("%1 bps").arg(n);
    if (n < 1'048'576) return DupesText::tr("%1 kbps").arg(n / 1024);
    return DupesText::tr("%1 Mbps").arg(QLocale().toString(double(n) / 1'048'576.0, 'f', 1));
}

QString similarityText(double percent)
{
    if (std::isnan(percent)) return {};
    // Rounded down below 100: "100 %" stays for what the prints cannot tell apart.
    const int shown = percent >= 100.0 ? 100 : std::clamp(int(std::floor(percent)), 0, 99);
    return DupesText::tr("%1 %").arg(QLocale().toString(shown));
}

QString cloneStatusWord(int status)
{
    switch (status) {
    case SelectedItself:
        return DupesText::tr("selected");
    case HardLink:
        return DupesText::tr("hard link");
    case AlreadyClone:
        return DupesText::tr("clone");
    case OtherVolume:
        return DupesText::tr("other volume");
    case ProvenDuplicate:
        return DupesText::tr("duplicate");
    default:
        return {};
    }
}

int listRowHeight(int fontSize, int thumbnailSize)
{
    return std::max(fontSize + 4, thumbnailSize);
}

QString typeSelectColumn(const std::optional<SortDescriptor> &sort)
{
    static const QStringList textColumns{QStringLiteral("name"), QStringLiteral("tags"), QStringLiteral("folder"),
                                         QStringLiteral("path"), QStringLiteral("extension")};
    if (sort)
        for (const QString &column : listColumnIdentifiers())
            if (columnSortKey(column) == sort->key) return textColumns.contains(column) ? column : QStringLiteral("name");
    return QStringLiteral("name");
}

QStringList mapServiceURLs(double latitude, double longitude)
{
    // The "6" after the first value of the OpenStreetMap address has always been there; the
    // page reads the value with it as well.
    return {QString::asprintf("https://maps.apple.com/?ll=%f,%f&z=16&q=%f,%f", latitude, longitude, latitude,
                              longitude),
            QString::asprintf("https://www.google.com/maps/search/?api=1&query=%f,%f", latitude, longitude),
            QString::asprintf("https://www.openstreetmap.org/?zoom=16&mlat=%f6&mlon=%f#map=16/%f/%f", latitude,
                              longitude, latitude, longitude)};
}

} // namespace selfsame
