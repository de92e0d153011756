#include "PutBackCommand.h"

#include "CliPaths.h"
#include "CliText.h"
#include "FileActions.h"
#include "fileops/PutBack.h"
#include "fileops/Trash.h"

#include <QCoreApplication>

namespace selfsame::cli
{

int runPutBack(const QStringList &files, const std::function<void(const QByteArray &)> &out,
               const std::function<void(const QByteArray &)> &err)
{
    if (files.isEmpty()) {
        err(CliText::tr("selfsame-cli: put-back needs the files in the trash to put back\n"
                        "Usage: selfsame-cli put-back FILE...\n")
                .toUtf8());
        return 2;
    }
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    const BatchScope batch(&*journal, QStringLiteral("put back"));
    int failures = 0;
    for (const QString &file : files) {
        const QString trashed = absolutePath(file);
        const QString destination = putBackPath(trashed);
        if (destination.isEmpty()) {
            ++failures;
            err(CliText::tr("not put back: %1: no record of where it came from\n")
                    .arg(escapedText(trashed))
                    .toUtf8());
            continue;
        }
        const PutBackResult result = putBackFile(trashed, destination, &*journal);
        if (!result.ok()) {
            ++failures;
            err(CliText::tr("not put back: %1 -> %2: %3\n")
                    .arg(escapedText(trashed), escapedText(destination), escapedText(result.errorText))
                    .toUtf8());
            continue;
        }
        out(CliText::tr("put back: %1 -> %2\n").arg(escapedText(trashed), escapedText(destination)).toUtf8());
    }
    err(CliText::tr("%1 put back, %2 failed\n").arg(files.size() - failures).arg(failures).toUtf8());
    return failures == 0 ? 0 : 1;
}

} // namespace selfsame::cli
