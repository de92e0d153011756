#include "attributes/MetadataSources.h"

#include <QDateTime>
#include <QRegularExpression>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/dict.h>
}

#include <chrono>
#include <cmath>
#include <fcntl.h>
#include <mutex>
#include <optional>
#include <unistd.h>

namespace selfsame
{

namespace
{

using Clock = std::chrono::steady_clock;

// A broken or hostile file must not hold up a search: probing reads a bounded amount of the
// file within a bounded time, and stops as soon as either limit is reached.
constexpr qint64 kMaxBytesRead = 16 << 20;
constexpr auto kTimeLimit = std::chrono::seconds(5);
constexpr int kBufferSize = 64 << 10;
constexpr int kProbeSize = 1 << 20;
constexpr int64_t kMaxAnalyzeDuration = 2 * AV_TIME_BASE;

struct BoundedInput {
    int fd = -1;
    int64_t size = 0;
    int64_t position = 0;
    qint64 bytesRead = 0;
    Clock::time_point deadline;

    bool exhausted() const { return bytesRead > kMaxBytesRead || Clock::now() > deadline; }
};

int readPacket(void *opaque, uint8_t *buffer, int size)
{
    auto *input = static_cast<BoundedInput *>(opaque);
    if (input->exhausted()) return AVERROR_EXIT;
    const ssize_t n = pread(input->fd, buffer, std::size_t(size), input->position);
    if (n < 0) return AVERROR(errno);
    if (n == 0) return AVERROR_EOF;
    input->position += n;
    input->bytesRead += n;
    return int(n);
}

int64_t seekInput(void *opaque, int64_t offset, int whence)
{
    auto *input = static_cast<BoundedInput *>(opaque);
    int64_t target;
    switch (whence & ~AVSEEK_FORCE) {
    case AVSEEK_SIZE:
        return input->size;
    case SEEK_SET:
        target = offset;
        break;
    case SEEK_CUR:
        target = input->position + offset;
        break;
    case SEEK_END:
        target = input->size + offset;
        break;
    default:
        return AVERROR(EINVAL);
    }
    if (target < 0) return AVERROR(EINVAL);
    input->position = target;
    return target;
}

int interrupted(void *opaque)
{
    return static_cast<const BoundedInput *>(opaque)->exhausted() ? 1 : 0;
}

// Tags of the container first, then of the streams: Vorbis and Opus keep theirs on the stream.
const char *tag(const AVFormatContext *format, const char *name)
{
    if (const AVDictionaryEntry *e = av_dict_get(format->metadata, name, nullptr, 0); e && *e->value)
        return e->value;
    for (unsigned i = 0; i < format->nb_streams; ++i)
        if (const AVDictionaryEntry *e = av_dict_get(format->streams[i]->metadata, name, nullptr, 0);
            e && *e->value)
            return e->value;
    return nullptr;
}

QDateTime isoDate(const char *text)
{
    QDateTime date = QDateTime::fromString(QString::fromUtf8(text).trimmed(), Qt::ISODateWithMs);
    if (!date.isValid()) date = QDateTime::fromString(QString::fromUtf8(text).trimmed(), Qt::ISODate);
    return date;
}

// The number a tag begins with: "2019-05-04" gives 2019, "3/12" gives 3.
std::optional<double> leadingNumber(const char *text)
{
    static const QRegularExpression number(QStringLiteral("^\\s*(\\d+)"));
    const QRegularExpressionMatch match = number.match(QString::fromUtf8(text));
    if (!match.hasMatch()) return std::nullopt;
    return match.captured(1).toDouble();
}

// ISO 6709 as phones write it in videos: "+48.8577+002.2950+035.000/".
void readLocation(const char *text, MetadataValues &values)
{
    static const QRegularExpression iso6709(QStringLiteral("^([+-]\\d+(?:\\.\\d+)?)([+-]\\d+(?:\\.\\d+)?)"));
    const QRegularExpressionMatch match = iso6709.match(QString::fromUtf8(text));
    if (!match.hasMatch()) return;
    values.insert(QStringLiteral("kMDItemLatitude"), match.captured(1).toDouble());
    values.insert(QStringLiteral("kMDItemLongitude"), match.captured(2).toDouble());
}

void readTags(const AVFormatContext *format, MetadataValues &values)
{
    const auto text = [&](const char *name) -> QString {
        const char *value = tag(format, name);
        return value ? QString::fromUtf8(value).trimmed() : QString();
    };
    const auto putText = [&](const char *key, const char *name) {
        if (const QString value = text(name); !value.isEmpty()) values.insert(QLatin1String(key), value);
    };
    putText("kMDItemTitle", "title");
    putText("kMDItemAlbum", "album");
    putText("kMDItemComposer", "composer");
    putText("kMDItemMusicalGenre", "genre");
    QString author = text("artist");
    if (author.isEmpty()) author = text("author");
    if (!author.isEmpty()) values.insert(QStringLiteral("kMDItemAuthors"), QVariantList{author});

    const char *date = tag(format, "date");
    if (!date) date = tag(format, "year");
    if (date)
        if (const auto year = leadingNumber(date))
            values.insert(QStringLiteral("kMDItemRecordingYear"), *year);
    if (const char *track = tag(format, "track"))
        if (const auto number = leadingNumber(track))
            values.insert(QStringLiteral("kMDItemAudioTrackNumber"), *number);

    QDateTime created;
    if (const char *creation = tag(format, "creation_time")) created = isoDate(creation);
    if (created.isValid()) {
        values.insert(QStringLiteral("kMDItemContentCreationDate"), created);
        values.insert(QStringLiteral("kMDItemRecordingDate"), created);
    } else if (date) {
        if (const QDateTime recorded = isoDate(date); recorded.isValid() && qstrlen(date) > 4)
            values.insert(QStringLiteral("kMDItemRecordingDate"), recorded);
    }
    const char *location = tag(format, "location");
    if (!location) location = tag(format, "com.apple.quicktime.location.ISO6709");
    if (location) readLocation(location, values);
}

// The duration in seconds as far as the headers tell it, without reading packets.
double headerDuration(const AVFormatContext *format)
{
    if (format->duration != AV_NOPTS_VALUE && format->duration > 0)
        return double(format->duration) / AV_TIME_BASE;
    double longest = -1;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const AVStream *stream = format->streams[i];
        if (stream->duration != AV_NOPTS_VALUE && stream->duration >= 0)
            longest = std::max(longest, double(stream->duration) * av_q2d(stream->time_base));
    }
    return longest;
}

bool streamsDescribed(const AVFormatContext *format)
{
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const AVCodecParameters *codec = format->streams[i]->codecpar;
        if (codec->codec_id == AV_CODEC_ID_NONE) return false;
        if (codec->codec_type == AVMEDIA_TYPE_VIDEO && (codec->width <= 0 || codec->height <= 0))
            return false;
    }
    return format->nb_streams > 0;
}

void readStreams(const AVFormatContext *format, double duration, int64_t fileSize, MetadataValues &values)
{
    QVariantList codecs;
    double audioBitRate = 0, videoBitRate = 0;
    bool haveAudio = false, haveVideo = false;
    for (unsigned i = 0; i < format->nb_streams; ++i) {
        const AVStream *stream = format->streams[i];
        const AVCodecParameters *codec = stream->codecpar;
        const bool coverArt = stream->disposition & AV_DISPOSITION_ATTACHED_PIC;
        if (codec->codec_id != AV_CODEC_ID_NONE && !coverArt &&
            (codec->codec_type == AVMEDIA_TYPE_AUDIO || codec->codec_type == AVMEDIA_TYPE_VIDEO)) {
            const QString name = QString::fromLatin1(avcodec_get_name(codec->codec_id));
            if (!codecs.contains(name)) codecs.append(name);
        }
        if (codec->codec_type == AVMEDIA_TYPE_AUDIO) {
            audioBitRate += double(codec->bit_rate);
            if (!haveAudio) {
                haveAudio = true;
                if (codec->sample_rate > 0)
                    values.insert(QStringLiteral("kMDItemAudioSampleRate"), double(codec->sample_rate));
                if (codec->ch_layout.nb_channels > 0)
                    values.insert(QStringLiteral("kMDItemAudioChannelCount"),
                                  double(codec->ch_layout.nb_channels));
            }
        } else if (codec->codec_type == AVMEDIA_TYPE_VIDEO && !coverArt) {
            videoBitRate += double(codec->bit_rate);
            if (!haveVideo && codec->width > 0 && codec->height > 0) {
                haveVideo = true;
                values.insert(QStringLiteral("kMDItemPixelWidth"), double(codec->width));
                values.insert(QStringLiteral("kMDItemPixelHeight"), double(codec->height));
            }
        }
    }
    if (!codecs.isEmpty()) values.insert(QStringLiteral("kMDItemCodecs"), codecs);
    if (audioBitRate > 0) values.insert(QStringLiteral("kMDItemAudioBitRate"), audioBitRate);
    if (videoBitRate > 0) values.insert(QStringLiteral("kMDItemVideoBitRate"), videoBitRate);
    double total = double(format->bit_rate);
    if (total <= 0 && duration > 0) total = double(fileSize) * 8 / duration;
    if (total > 0) values.insert(QStringLiteral("kMDItemTotalBitRate"), std::round(total));
}

} // namespace


void readMediaValuesNow(const QByteArray &localPath, MetadataValues &values)
{
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });

    BoundedInput input;
    input.fd = open(localPath.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (input.fd < 0) return;
    input.size = lseek(input.fd, 0, SEEK_END);
    input.deadline = Clock::now() + kTimeLimit;

    AVFormatContext *format = avformat_alloc_context();
    auto *buffer = static_cast<uint8_t *>(av_malloc(kBufferSize));
    AVIOContext *io = format && buffer
                          ? avio_alloc_context(buffer, kBufferSize, 0, &input, readPacket, nullptr, seekInput)
                          : nullptr;
    if (!io) {
        av_free(buffer);
        avformat_free_context(format);
        close(input.fd);
        return;
    }
    format->pb = io;
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    format->interrupt_callback = {interrupted, &input};
    format->probesize = kProbeSize;
    format->format_probesize = kProbeSize;
    format->max_analyze_duration = kMaxAnalyzeDuration;
    format->max_streams = 32;

    // On failure avformat_open_input frees the context but never our I/O context.
    if (avformat_open_input(&format, nullptr, nullptr, nullptr) == 0) {
        double duration = headerDuration(format);
        // Packets are read only when the headers leave the duration or a stream undescribed.
        if ((duration < 0 || !streamsDescribed(format)) && avformat_find_stream_info(format, nullptr) >= 0)
            duration = headerDuration(format);
        if (duration >= 0) values.insert(QStringLiteral("kMDItemDurationSeconds"), duration);
        readStreams(format, duration, input.size, values);
        readTags(format, values);
        avformat_close_input(&format);
    }
    av_freep(&io->buffer);
    avio_context_free(&io);
    close(input.fd);
}

} // namespace selfsame
