#pragma once

#include <QList>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace selfsame {

enum class DetectionMode : int {
    Content = 0,
    Duration = 1,
    FileName = 2,
    Attribute = 3,
    SimilarImages = 4, // pictures that look alike: perceptual hashes
    SimilarAudio = 5,  // the same recording in any format: acoustic fingerprints
};
inline constexpr DetectionMode kLastDetectionMode = DetectionMode::SimilarAudio;
inline bool isSimilarityMode(DetectionMode mode)
{
    return mode == DetectionMode::SimilarImages || mode == DetectionMode::SimilarAudio;
}

// 0 to 100: how alike two pictures or recordings must be to share a group. The default is
// what a person calls "very similar": a picture scaled, recompressed or slightly cropped, a
// recording at another bit rate or in another format.
inline constexpr int kDefaultSimilarity = 90;
enum class ExtensionsMode : int { All = 0, Only = 1, AllBut = 2 };

// The parameters of one search, in their fixed order.
struct SearchRequest {
    QStringList searchInFolderURLs;          // locations: absolute paths of folders or single files
    bool findAllDupesForSingleFiles = false;
    bool skipHiddenFiles = true;
    bool ignoreMp4Header = false;
    bool ignoreClones = false;
    qint64 limitFolderDepth = -1;            // deepest enumerator level entered, minus one; < 0: none
    QList<QRegularExpression> skipFilenameRegexes;
    ExtensionsMode extensionsMode = ExtensionsMode::All;
    QSet<QString> extensions;                // lower case, without dots
    bool filterFileSize = true;
    bool compareFolders = false;
    bool containedFolders = false;           // folders whose files all lie in another searched folder
    qint64 minFileSize = 1;
    qint64 maxFileSize = 0;                  // ignored when below minFileSize
    bool ignoreNonWritable = true;
    bool ignoreOtherOwner = true;
    DetectionMode detectionMode = DetectionMode::Content;
    double durationTolerance = 0.1;          // seconds
    QString spotlightAttribute;
    double spotlightTolerance = 0.0;
    bool filenameIgnoreExtension = false;
    std::optional<QList<QRegularExpression>> filenameIgnoreCommonSuffixRegexes;
    int similarity = kDefaultSimilarity;     // the similar modes' threshold, 0–100
    bool distinguishGreyscale = false;       // similar pictures: a grey copy is not like its colour original
};

// The request as the search keeps it: folder comparison and contained folders only in the
// content mode, and latitude/longitude tolerances turned from seconds of arc into degrees.
SearchRequest storedRequest(SearchRequest request);

} // namespace selfsame
