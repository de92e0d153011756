#include "attributes/MetadataSources.h"

#include <QDateTime>
#include <QRegularExpression>
#include <mutex>
#include <optional>

// Exiv2 0.27 hands images out in std::auto_ptr, deprecated since C++11.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <exiv2/exiv2.hpp>

namespace selfsame
{

namespace
{

QString trimmed(const std::string &text)
{
    QString s = QString::fromStdString(text);
    while (s.endsWith(QChar(0)))
        s.chop(1);
    return s.trimmed();
}

// The text of a datum; for a language alternative, its default language's text.
QString textOf(const Exiv2::Metadatum &datum)
{
    const Exiv2::Value &value = datum.value();
    if (value.typeId() == Exiv2::langAlt) return trimmed(value.toString(0));
    if (value.count() > 1 && (value.typeId() == Exiv2::xmpBag || value.typeId() == Exiv2::xmpSeq))
        return trimmed(value.toString(0));
    return trimmed(value.toString());
}

class ImageTags
{
public:
    explicit ImageTags(const Exiv2::Image &image)
        : m_exif(image.exifData()), m_xmp(image.xmpData()), m_iptc(image.iptcData())
    {
    }

    const Exiv2::Metadatum *find(const char *key) const
    {
        if (qstrncmp(key, "Exif.", 5) == 0) {
            const auto it = m_exif.findKey(Exiv2::ExifKey(key));
            return it != m_exif.end() && it->count() > 0 ? &*it : nullptr;
        }
        if (qstrncmp(key, "Xmp.", 4) == 0) {
            const auto it = m_xmp.findKey(Exiv2::XmpKey(key));
            return it != m_xmp.end() && it->count() > 0 ? &*it : nullptr;
        }
        const auto it = m_iptc.findKey(Exiv2::IptcKey(key));
        return it != m_iptc.end() && it->count() > 0 ? &*it : nullptr;
    }

    // The first non-empty text among the keys, in order of preference.
    QString text(std::initializer_list<const char *> keys) const
    {
        for (const char *key : keys)
            if (const Exiv2::Metadatum *datum = find(key))
                if (QString value = textOf(*datum); !value.isEmpty()) return value;
        return {};
    }

    std::optional<double> number(const char *key) const
    {
        const Exiv2::Metadatum *datum = find(key);
        if (!datum) return std::nullopt;
        const Exiv2::Rational r = datum->toRational(0);
        if (datum->typeId() == Exiv2::unsignedRational || datum->typeId() == Exiv2::signedRational) {
            if (r.second == 0) return std::nullopt;
            return double(r.first) / double(r.second);
        }
        return double(datum->toFloat(0));
    }

    // Every entry of a list-valued XMP property and of a repeatable IPTC dataset, without repeats.
    QVariantList list(const char *xmpKey, const char *iptcKey) const
    {
        QVariantList items;
        const auto add = [&](const QString &item) {
            if (!item.isEmpty() && !items.contains(item)) items.append(item);
        };
        if (const Exiv2::Metadatum *datum = find(xmpKey))
            for (long i = 0; i < datum->count(); ++i)
                add(trimmed(datum->toString(i)));
        for (auto it = m_iptc.begin(); it != m_iptc.end(); ++it)
            if (it->key() == iptcKey) add(trimmed(it->toString()));
        return items;
    }

    std::optional<double> coordinate(const char *exifKey, const char *exifRefKey, const char *xmpKey) const;
    QDateTime creationDate() const;

private:
    const Exiv2::ExifData &m_exif;
    const Exiv2::XmpData &m_xmp;
    const Exiv2::IptcData &m_iptc;
};

// Degrees from EXIF's three rationals and a reference letter, or from XMP's "DDD,MM.mmk" or
// "DDD,MM,SSk".
std::optional<double> ImageTags::coordinate(const char *exifKey, const char *exifRefKey,
                                            const char *xmpKey) const
{
    if (const Exiv2::Metadatum *datum = find(exifKey); datum && datum->count() == 3) {
        double degrees = 0;
        double unit = 1;
        for (long i = 0; i < 3; ++i, unit *= 60) {
            const Exiv2::Rational r = datum->toRational(i);
            if (r.second == 0) return std::nullopt;
            degrees += double(r.first) / double(r.second) / unit;
        }
        const QString ref = text({exifRefKey}).toUpper();
        return ref == u'S' || ref == u'W' ? -degrees : degrees;
    }
    static const QRegularExpression xmp(
        QStringLiteral("^(\\d+),(\\d+(?:\\.\\d+)?)(?:,(\\d+(?:\\.\\d+)?))?([NSEW])$"));
    const QRegularExpressionMatch match = xmp.match(text({xmpKey}).toUpper());
    if (!match.hasMatch()) return std::nullopt;
    const double degrees = match.captured(1).toDouble() + match.captured(2).toDouble() / 60 +
                           match.captured(3).toDouble() / 3600;
    return match.captured(4) == u'S' || match.captured(4) == u'W' ? -degrees : degrees;
}

// When the photo was taken: EXIF's original date with its offset (local time without one),
// else the XMP dates.
QDateTime ImageTags::creationDate() const
{
    const QString exif = text({"Exif.Photo.DateTimeOriginal"});
    QDateTime date = QDateTime::fromString(exif, QStringLiteral("yyyy:MM:dd HH:mm:ss"));
    if (date.isValid()) {
        static const QRegularExpression offset(QStringLiteral("^([+-])(\\d\\d):(\\d\\d)$"));
        const QRegularExpressionMatch match = offset.match(text({"Exif.Photo.OffsetTimeOriginal"}));
        if (match.hasMatch()) {
            const int seconds = match.captured(2).toInt() * 3600 + match.captured(3).toInt() * 60;
            date.setOffsetFromUtc(match.captured(1) == u'-' ? -seconds : seconds);
        }
        return date;
    }
    const QString xmp =
        text({"Xmp.exif.DateTimeOriginal", "Xmp.photoshop.DateCreated", "Xmp.xmp.CreateDate"});
    return QDateTime::fromString(xmp, Qt::ISODate);
}

void readTags(const Exiv2::Image &image, MetadataValues &values)
{
    const ImageTags tags(image);
    const auto putText = [&](const char *key, std::initializer_list<const char *> sources) {
        if (QString value = tags.text(sources); !value.isEmpty()) values.insert(QLatin1String(key), value);
    };
    const auto putNumber = [&](const char *key, const char *source) {
        if (const auto value = tags.number(source)) values.insert(QLatin1String(key), *value);
    };

    if (const auto latitude = tags.coordinate("Exif.GPSInfo.GPSLatitude", "Exif.GPSInfo.GPSLatitudeRef",
                                              "Xmp.exif.GPSLatitude"))
        values.insert(QStringLiteral("kMDItemLatitude"), *latitude);
    if (const auto longitude = tags.coordinate("Exif.GPSInfo.GPSLongitude", "Exif.GPSInfo.GPSLongitudeRef",
                                               "Xmp.exif.GPSLongitude"))
        values.insert(QStringLiteral("kMDItemLongitude"), *longitude);
    if (const auto altitude = tags.number("Exif.GPSInfo.GPSAltitude")) {
        const bool belowSeaLevel = tags.number("Exif.GPSInfo.GPSAltitudeRef").value_or(0) == 1;
        values.insert(QStringLiteral("kMDItemAltitude"), belowSeaLevel ? -*altitude : *altitude);
    }
    if (const QDateTime created = tags.creationDate(); created.isValid())
        values.insert(QStringLiteral("kMDItemContentCreationDate"), created);

    double width = image.pixelWidth(), height = image.pixelHeight();
    if (width <= 0 || height <= 0) {
        width = tags.number("Exif.Photo.PixelXDimension").value_or(0);
        height = tags.number("Exif.Photo.PixelYDimension").value_or(0);
    }
    if (width > 0 && height > 0) {
        values.insert(QStringLiteral("kMDItemPixelWidth"), width);
        values.insert(QStringLiteral("kMDItemPixelHeight"), height);
        // 0 landscape, 1 portrait, as displayed: EXIF orientations 5 to 8 turn the image.
        const double orientation = tags.number("Exif.Image.Orientation").value_or(1);
        const bool turned = orientation >= 5 && orientation <= 8;
        values.insert(QStringLiteral("kMDItemOrientation"),
                      (turned ? width > height : height > width) ? 1.0 : 0.0);
    }

    putText("kMDItemAcquisitionMake", {"Exif.Image.Make"});
    putText("kMDItemAcquisitionModel", {"Exif.Image.Model"});
    putText("kMDItemLensModel", {"Exif.Photo.LensModel"});
    putNumber("kMDItemExposureTimeSeconds", "Exif.Photo.ExposureTime");
    putNumber("kMDItemFNumber", "Exif.Photo.FNumber");
    putNumber("kMDItemFocalLength", "Exif.Photo.FocalLength");
    putNumber("kMDItemISOSpeed", "Exif.Photo.ISOSpeedRatings");
    if (const auto flash = tags.number("Exif.Photo.Flash"))
        values.insert(QStringLiteral("kMDItemFlashOnOff"), (qint64(*flash) & 1) != 0);

    putText("kMDItemTitle", {"Xmp.dc.title", "Iptc.Application2.ObjectName"});
    putText("kMDItemDescription",
            {"Xmp.dc.description", "Exif.Image.ImageDescription", "Iptc.Application2.Caption"});
    putText("kMDItemHeadline", {"Xmp.photoshop.Headline", "Iptc.Application2.Headline"});
    putText("kMDItemCopyright", {"Xmp.dc.rights", "Exif.Image.Copyright", "Iptc.Application2.Copyright"});
    putText("kMDItemCreator", {"Xmp.xmp.CreatorTool", "Exif.Image.Software"});
    putText("kMDItemIdentifier",
            {"Xmp.dc.identifier", "Exif.Photo.ImageUniqueID", "Iptc.Application2.TransmissionReference"});
    putText("kMDItemOriginalSource", {"Xmp.photoshop.Source", "Iptc.Application2.Source"});
    if (const QVariantList keywords = tags.list("Xmp.dc.subject", "Iptc.Application2.Keywords");
        !keywords.isEmpty())
        values.insert(QStringLiteral("kMDItemKeywords"), keywords);
}

// The XMP toolkit is not thread-safe by itself: Exiv2 takes this lock around it.
void lockXmpToolkit(void *mutex, bool lock)
{
    lock ? static_cast<std::mutex *>(mutex)->lock() : static_cast<std::mutex *>(mutex)->unlock();
}

} // namespace


void readImageValuesNow(const QByteArray &localPath, MetadataValues &values)
{
    static std::once_flag setUp;
    std::call_once(setUp, [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        static std::mutex xmpToolkit;
        Exiv2::XmpParser::initialize(lockXmpToolkit, &xmpToolkit);
        Exiv2::enableBMFF();
    });
    try {
        Exiv2::Image::AutoPtr image = Exiv2::ImageFactory::open(localPath.toStdString(), false);
        if (!image.get()) return;
        image->readMetadata();
        readTags(*image, values);
    } catch (const std::exception &) {
        // Not an image Exiv2 can read, or a damaged one: the file has no image values.
    }
}

} // namespace selfsame

#pragma GCC diagnostic pop
