#pragma once

#include "names/FileNames.h" // pathExists, isFolder, isRegularFile

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace selfsame::cli
{

// The command line as the exact bytes the caller passed, each argument decoded without loss
// (QCoreApplication::arguments() turns bytes that are not UTF-8 into replacement characters,
// which then name another file or none).
QStringList argumentsFromBytes(int argc, const char *const *argv);

// The path made absolute against the working folder, without "." and ".." steps. Plain text
// work: QFileInfo would encode the path as UTF-8 and lose the bytes that are not.
QString absolutePath(const QString &path);

// The text as one line a terminal shows safely, in the manner of `ls -b`: a backslash as
// "\\", tab, newline and the other C escapes as "\t", "\n", "\r", "\a", "\b", "\f", "\v",
// the remaining control characters (and U+2028, U+2029) as their UTF-8 bytes "\x1B", and every
// byte that is not UTF-8 as "\xFF". Every other character, spaces included, stays as it is.
QString escapedText(QStringView text);

// The exact bytes of the path followed by a NUL, for --print0.
QByteArray nulTerminatedPath(QStringView path);

} // namespace selfsame::cli
