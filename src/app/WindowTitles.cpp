#include "WindowTitles.h"

#include "LocationsModel.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace selfsame {

namespace {

QString tr(const char *text, int n = -1)
{
    return QCoreApplication::translate("WindowTitles", text, nullptr, n);
}

QString modeText(DetectionMode mode, const QString &attributeName)
{
    switch (mode) {
    case DetectionMode::Duration:
        return tr("by duration");
    case DetectionMode::FileName:
        return tr("by name");
    case DetectionMode::Attribute:
        return attributeName.isEmpty() ? tr("by attribute") : tr("by %1").arg(attributeName);
    case DetectionMode::Content:
    default:
        return tr("by content");
    }
}

} // namespace

QString resultsWindowTitle(const QStringList &locations, DetectionMode mode, const QString &attributeName,
                           const QString &resultsFile)
{
    QString subject;
    if (!resultsFile.isEmpty())
        subject = QFileInfo(resultsFile).fileName();
    else if (locations.size() == 1)
        subject = displayName(locations.first());
    else
        subject = tr("%Ln location(s)", int(locations.size()));
    return tr("%1 — %2 — %3").arg(subject, modeText(mode, attributeName), QCoreApplication::applicationName());
}

} // namespace selfsame
