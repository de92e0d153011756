#include "names/FileNames.h"

#include <algorithm>
#include <sys/stat.h>

namespace selfsame
{

namespace
{

constexpr char16_t kEscapedFirst = 0xDC80, kEscapedLast = 0xDCFF;

bool isEscapedByte(char16_t c)
{
    return c >= kEscapedFirst && c <= kEscapedLast;
}

// The length of the valid UTF-8 sequence at `at`, or 0 when it is not one: overlong forms,
// encoded surrogates and values above U+10FFFF are invalid, as the standard says.
std::size_t validSequence(std::string_view s, std::size_t at)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    const unsigned char lead = byte(at);
    if (lead < 0x80) return 1;
    std::size_t length;
    unsigned char low = 0x80, high = 0xBF; // the allowed range of the second byte
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        if (lead == 0xE0) low = 0xA0;
        if (lead == 0xED) high = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        if (lead == 0xF0) low = 0x90;
        if (lead == 0xF4) high = 0x8F;
    } else {
        return 0;
    }
    if (at + length > s.size() || byte(at + 1) < low || byte(at + 1) > high) return 0;
    for (std::size_t i = 2; i < length; ++i)
        if ((byte(at + i) & 0xC0) != 0x80) return 0;
    return length;
}

} // namespace

QString pathFromBytes(std::string_view bytes)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        return QString::fromLatin1(bytes.data(), qsizetype(bytes.size()));
    QString path;
    path.reserve(qsizetype(bytes.size()));
    std::size_t runStart = 0;
    auto flush = [&](std::size_t end) {
        path += QString::fromUtf8(bytes.data() + runStart, qsizetype(end - runStart));
    };
    for (std::size_t at = 0; at < bytes.size();) {
        if (const std::size_t length = validSequence(bytes, at)) {
            at += length;
            continue;
        }
        flush(at);
        path += QChar(char16_t(0xDC00 + static_cast<unsigned char>(bytes[at])));
        runStart = ++at;
    }
    flush(bytes.size());
    return path;
}

QByteArray pathBytes(QStringView path)
{
    if (!hasInvalidBytes(path)) return path.toUtf8();
    QByteArray bytes;
    bytes.reserve(path.size() * 3);
    qsizetype runStart = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char16_t c = path[i].unicode();
        // A low surrogate after a high one is half of a real character.
        if (!isEscapedByte(c) || (i > 0 && path[i - 1].isHighSurrogate())) continue;
        bytes += path.mid(runStart, i - runStart).toUtf8();
        bytes += char(c - 0xDC00);
        runStart = i + 1;
    }
    bytes += path.mid(runStart).toUtf8();
    return bytes;
}

std::string pathStdBytes(QStringView path)
{
    const QByteArray bytes = pathBytes(path);
    return std::string(bytes.constData(), std::size_t(bytes.size()));
}

bool hasInvalidBytes(QStringView path)
{
    for (qsizetype i = 0; i < path.size(); ++i)
        if (isEscapedByte(path[i].unicode()) && !(i > 0 && path[i - 1].isHighSurrogate())) return true;
    return false;
}

QString displayPath(QStringView path)
{
    if (!hasInvalidBytes(path)) return path.toString();
    QString shown;
    shown.reserve(path.size() + 16);
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char16_t c = path[i].unicode();
        if (isEscapedByte(c) && !(i > 0 && path[i - 1].isHighSurrogate()))
            shown += QStringLiteral("\\x") + QString::number(c - 0xDC00, 16).toUpper();
        else
            shown += path[i];
    }
    return shown;
}

QByteArray percentEncodedPath(const QString &path)
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    QByteArray encoded;
    for (const char c : pathBytes(path)) {
        const auto byte = static_cast<unsigned char>(c);
        const bool plain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
                           (byte >= '0' && byte <= '9') || c == '/' || c == '-' || c == '.' || c == '_' ||
                           c == '~';
        if (plain) {
            encoded += c;
        } else {
            encoded += '%';
            encoded += kHex[byte >> 4];
            encoded += kHex[byte & 0xF];
        }
    }
    return encoded;
}

QUrl fileUrl(const QString &path)
{
    return QUrl::fromEncoded("file://" + percentEncodedPath(path), QUrl::StrictMode);
}

QString pathFromUrl(const QUrl &url)
{
    if (!url.isLocalFile()) return {};
    return pathFromBytes(QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()));
}

namespace
{

bool statusOf(const QString &path, Links links, struct stat *status)
{
    const QByteArray bytes = pathBytes(path);
    return !bytes.isEmpty() &&
           (links == Links::Follow ? stat(bytes.constData(), status) : lstat(bytes.constData(), status)) == 0;
}

} // namespace

bool pathExists(const QString &path, Links links)
{
    struct stat status {
    };
    return statusOf(path, links, &status);
}

bool isFolder(const QString &path)
{
    struct stat status {
    };
    return statusOf(path, Links::Follow, &status) && S_ISDIR(status.st_mode);
}

bool isRegularFile(const QString &path, Links links)
{
    struct stat status {
    };
    return statusOf(path, links, &status) && S_ISREG(status.st_mode);
}

} // namespace selfsame
