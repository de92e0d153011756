#pragma once

#include "search/NamePatterns.h"
#include "search/SearchRequest.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace selfsame {

class Settings;

// The state of the main window's option controls, as the user sees them.
struct SearchOptions {
    bool findAllDupesForSingleFiles = true;
    bool skipHiddenFiles = true;
    bool ignoreMp4Header = false;
    bool ignoreClones = false;
    bool compareFolders = false;
    bool containedFolders = false;
    bool limitFolderDepth = false;
    int folderDepthField = 1; // levels shown in the field, 1 = direct children only
    bool skipFilenames = false;
    QString skipFilenamesText; // one pattern per line
    bool extensionsOn = false;
    int extensionsPopupTag = 1; // 1 only the listed extensions, 2 all but them
    QString extensionsText;
    bool filterFileSize = true;
    QString minFileSizeText;
    QString maxFileSizeText;
    bool ignoreNonWritable = true;
    bool ignoreOtherOwner = true;
    int detectionMode = 0;
    double durationTolerance = 0.1;
    QString spotlightAttribute;
    double spotlightTolerance = 0.0;
    bool spotlightToleranceVisible = true; // hidden for attributes that are neither numbers nor dates
    bool filenameIgnoreExtension = false;
    bool filenameIgnoreCommonSuffixes = false;
    QString commonSuffixesText;
    int similarity = kDefaultSimilarity; // the similar modes' threshold, 0–100
    bool distinguishGreyscale = false;
};

// The controls as loaded from the settings when the window is built.
SearchOptions loadSearchOptions(const Settings &settings);

// Skip lines as the token field hands them over: split at line breaks, trimmed, empty ones dropped.
QStringList skipPatternLines(const QString &text);

struct SearchStart {
    std::optional<SearchRequest> request; // none when a skip pattern does not compile
    PatternError invalidPattern;          // the last failing expression, when request is none
    SearchOptions shownOptions;           // the options with the fields written back in canonical form
};

// Reads the options in their fixed order, saving each under its key, and builds the request
// for these locations. A skip pattern that does not compile stops at that step: what came
// before it is saved, nothing after it.
SearchStart startSearch(const SearchOptions &options, const QStringList &locations, Settings &settings);

} // namespace selfsame
