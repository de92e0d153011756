#include "results/ResultItem.h"

#include <cmath>

namespace selfsame
{

QString ResultItem::folder() const
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash > 0 ? path.left(slash) : QStringLiteral("/");
}

QString ResultItem::parentPath() const
{
    if (parentPathStart == 0) return folder();
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return parentPathStart < slash ? path.mid(parentPathStart, slash - parentPathStart) : QString();
}

namespace
{
const QString kNoText;
const QStringList kNoTags;
const QVariant kNoValue;
const QByteArray kNoBytes;
} // namespace

const QStringList &ResultItem::tagList() const { return m_extra ? m_extra->tagList : kNoTags; }
const QVariant &ResultItem::spotlight() const { return m_extra ? m_extra->spotlight : kNoValue; }
const QString &ResultItem::pixelSize() const { return m_extra ? m_extra->pixelSize : kNoText; }
const QString &ResultItem::codecs() const { return m_extra ? m_extra->codecs : kNoText; }
const QString &ResultItem::trashedURL() const { return m_extra ? m_extra->trashedURL : kNoText; }
const QString &ResultItem::statusImage() const { return m_extra ? m_extra->statusImage : kNoText; }
const QByteArray &ResultItem::mediaPrint() const { return m_extra ? m_extra->mediaPrint : kNoBytes; }

ResultItem::Extra &ResultItem::extra()
{
    if (!m_extra) m_extra.reset(new Extra);
    return *m_extra;
}

void ResultItem::setTagList(const QStringList &tags)
{
    if (!tags.isEmpty() || m_extra) extra().tagList = tags;
}

void ResultItem::setSpotlight(const QVariant &value)
{
    if (value.isValid() || m_extra) extra().spotlight = value;
}

void ResultItem::setPixelSize(const QString &text)
{
    if (!text.isEmpty() || m_extra) extra().pixelSize = text;
}

void ResultItem::setCodecs(const QString &text)
{
    if (!text.isEmpty() || m_extra) extra().codecs = text;
}

void ResultItem::setDuration(double seconds)
{
    if (seconds != 0.0 || m_extra) extra().duration = seconds;
}

void ResultItem::setLatitude(double degrees)
{
    if (!std::isnan(degrees) || m_extra) extra().latitude = degrees;
}

void ResultItem::setLongitude(double degrees)
{
    if (!std::isnan(degrees) || m_extra) extra().longitude = degrees;
}

void ResultItem::setBitrate(double bitsPerSecond)
{
    if (bitsPerSecond != 0.0 || m_extra) extra().bitrate = bitsPerSecond;
}

void ResultItem::setItemCount(qint64 count)
{
    if (count != 0 || m_extra) extra().itemCount = count;
}

void ResultItem::setAddedDate(qint64 date)
{
    if (date != kNoDate || m_extra) extra().addedDate = date;
}

void ResultItem::setSimilarity(double percent)
{
    if (!std::isnan(percent) || m_extra) extra().similarity = percent;
}

void ResultItem::setMediaPrint(const QByteArray &print)
{
    if (!print.isEmpty() || m_extra) extra().mediaPrint = print;
}

void ResultItem::setTrashedURL(const QString &trashed)
{
    if (!trashed.isEmpty() || m_extra) extra().trashedURL = trashed;
}

void ResultItem::setStatusImage(const QString &name)
{
    if (!name.isEmpty() || m_extra) extra().statusImage = name;
}

} // namespace selfsame
