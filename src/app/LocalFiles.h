#pragma once

#include "names/FileNames.h"

#include <QFile>
#include <QIcon>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>
#include <memory>
#include <optional>

class QAbstractFileIconProvider;

namespace selfsame {

// Paths of items and locations may hold bytes that are not UTF-8 (names/FileNames.h). Qt's
// file classes encode every name as UTF-8 and so reach another file, or none, for those; the
// application reaches files through these instead, which use the exact bytes.

// pathExists, isFolder and isRegularFile are those of names/FileNames.h.
std::optional<qint64> modificationTime(const QString &path); // seconds since 1970

// The file open for reading, for QImageReader, QMimeDatabase and the like; null, with errno
// set, when it cannot be opened or is not a regular file (a pipe would block the reader).
std::unique_ptr<QFile> openForReading(const QString &path);

// The local paths among dropped or pasted URLs, with the bytes the URLs carry.
QStringList localPaths(const QList<QUrl> &urls);

// The icon of a file or folder: the desktop's own where Qt can reach the path, else the
// generic one of its kind.
QIcon pathIcon(const QAbstractFileIconProvider &provider, const QString &path);

// The deepest folder of `path` that a Qt file dialogue can open, for a dialogue's start.
QString folderForFileDialog(const QString &path);

} // namespace selfsame
