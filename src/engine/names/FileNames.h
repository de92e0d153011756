#pragma once

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QUrl>
#include <string>
#include <string_view>

namespace selfsame
{

// File names are bytes, and not every name is UTF-8 (Latin-1 names from old disks and
// archives). A QString holds any name without loss: valid UTF-8 decodes as usual, and each
// byte of an invalid sequence becomes the lone surrogate U+DC00 + byte (U+DC80 to U+DCFF),
// which no valid UTF-8 decodes to. So every name from the kernel goes through pathFromBytes,
// every name given to it through pathBytes, and the round trip gives back the same bytes.

QString pathFromBytes(std::string_view bytes);
inline QString pathFromBytes(const QByteArray &bytes)
{
    return pathFromBytes(std::string_view(bytes.constData(), std::size_t(bytes.size())));
}
QByteArray pathBytes(QStringView path);
std::string pathStdBytes(QStringView path);

// Whether the path holds bytes that are not UTF-8 (shown escaped, saved with their bytes).
bool hasInvalidBytes(QStringView path);

// A file URL that carries the path's exact bytes, percent-encoded, and the path of one
// (QUrl::fromLocalFile and toLocalFile go through UTF-8 and lose what is not).
QUrl fileUrl(const QString &path);
QString pathFromUrl(const QUrl &url);
// The bytes percent-encoded for a URL or a trash record: letters, digits and "/-._~" stay.
QByteArray percentEncodedPath(const QString &path);

// Checks on a path by its exact bytes (QFileInfo would encode it as UTF-8 and lose what is
// not). With Links::Follow a symbolic link counts as what it leads to, a dangling one as
// nothing; otherwise as the entry it is.
enum class Links { Follow, AsThemselves };
bool pathExists(const QString &path, Links links = Links::Follow);
bool isFolder(const QString &path);
bool isRegularFile(const QString &path, Links links = Links::Follow);

// The path as a person sees it: every byte that is not UTF-8 as \xFF, the rest as it is.
QString displayPath(QStringView path);

} // namespace selfsame
