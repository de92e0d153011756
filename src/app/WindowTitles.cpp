#include "WindowTitles.h"

#include "LocationsModel.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace selfsame {

namespace {

struct WindowTitlesText {
    Q_DECLARE_TR_FUNCTIONS(WindowTitles)
};

QString modeText(DetectionMode mode, const QString &attributeName)
{
    switch (mode) {
    case DetectionMode::Duration:
        return WindowTitlesText::tr("by duration");
    case DetectionMode::FileName:
        return WindowTitlesText::tr("by name");
    case DetectionMode::Attribute:
        return attributeName.isEmpty() ? WindowTitlesText::tr("by attribute")
                                       : WindowTitlesText::tr("by %1").arg(attributeName);
    case DetectionMode::SimilarImages:
        return WindowTitlesText::tr("by similar pictures");
    case DetectionMode::SimilarAudio:
        return WindowTitlesText::tr("by same recording");
    case DetectionMode::Content:
    default:
        return WindowTitlesText::tr("by content");
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
        subject = WindowTitlesText::tr("%Ln location(s)", nullptr, int(locations.size()));
    return WindowTitlesText::tr("%1 — %2 — %3")
        .arg(subject, modeText(mode, attributeName), QCoreApplication::applicationName());
}

} // namespace selfsame
