#pragma once

#include <QString>
#include <QStringList>

namespace selfsame {

// What a start of the executable asks for: open files (or just the window), or search paths.
struct LaunchRequest {
    bool search = false; // `selfsame --search PATH…`
    QStringList paths;   // absolute local paths

    // The form handed to a running instance, and back.
    QStringList toMessage() const;
    static LaunchRequest fromMessage(const QStringList &message);
};

// Saved results, which open in a results window of their own rather than as locations.
bool isResultsFile(const QString &path);

// Reads arguments given as paths relative to `workingDirectory` or as file URLs (as file
// managers pass them); other URLs are dropped.
QStringList absoluteLocalPaths(const QStringList &arguments, const QString &workingDirectory);

// The arguments of main() (what QApplication left of them) and the working folder, with
// names that are not UTF-8 kept exactly, unlike QCoreApplication::arguments and QDir.
QStringList commandLineArguments(int argc, const char *const *argv);
QString currentFolder();

} // namespace selfsame
