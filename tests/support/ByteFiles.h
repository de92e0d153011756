#pragma once

#include <QByteArray>

// Files named by their exact bytes. Qt's file classes encode names as UTF-8, so they can
// neither make, read nor remove a name that is not: tests of such names use these.

// Writes the file whole, making its missing folders; false when any step fails.
bool writeBytes(const QByteArray &path, const QByteArray &content);
// The file's content; empty when it cannot be read.
QByteArray readBytes(const QByteArray &path);
// Whether an entry stands at the path (a dangling link counts).
bool existsBytes(const QByteArray &path);
// Removes everything inside the folder, whatever the names, making read-only folders writable.
void removeContentsBytes(const QByteArray &folder);
