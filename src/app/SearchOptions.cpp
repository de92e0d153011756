#include "SearchOptions.h"

#include "SearchDefaults.h"
#include "Settings.h"
#include "format/ByteSize.h"

#include <algorithm>

namespace selfsame {

SearchOptions loadSearchOptions(const Settings &settings)
{
    SearchOptions o;
    o.skipHiddenFiles = settings.boolValue(key::skipHiddenFiles);
    o.findAllDupesForSingleFiles = settings.boolValue(key::findAllDupesForSingleFiles);
    o.ignoreMp4Header = settings.boolValue(key::ignoreMp4Header);
    o.ignoreClones = settings.boolValue(key::ignoreClones);
    o.compareFolders = settings.boolValue(key::compareFolders);
    o.containedFolders = settings.boolValue(key::containedFolders);

    const qint64 depth = settings.integerValue(key::limitFolderDepth);
    o.limitFolderDepth = depth >= 0;
    o.folderDepthField = int(std::max<qint64>(depth, 0) + 1);

    const int extensionsMode = int(settings.integerValue(key::extensionsMode));
    o.extensionsOn = extensionsMode != 0;
    if (o.extensionsOn)
        o.extensionsPopupTag = extensionsMode;

    o.skipFilenames = settings.boolValue(key::skipFilenameMatchingPatterns);
    o.skipFilenamesText = settings.stringValue(key::skipFilenamePatterns);
    o.extensionsText = settings.stringValue(key::extensionsList);

    o.filterFileSize = settings.boolValue(key::filterFileSize);
    const SizeFieldTexts sizes =
        sizeFieldTexts(settings.integerValue(key::minFileSize), settings.integerValue(key::maxFileSize));
    o.minFileSizeText = sizes.min;
    o.maxFileSizeText = sizes.max;

    o.ignoreNonWritable = settings.boolValue(key::ignoreNonWritable);
    o.ignoreOtherOwner = settings.boolValue(key::ignoreOtherOwner);
    o.detectionMode = int(settings.integerValue(key::detectionMode));
    o.durationTolerance = settings.doubleValue(key::durationTolerance);
    o.filenameIgnoreExtension = settings.boolValue(key::filenameIgnoreExtension);
    o.filenameIgnoreCommonSuffixes = settings.boolValue(key::filenameIgnoreCommonSuffixes);
    o.commonSuffixesText = settings.stringValue(key::commonSuffixes);
    o.spotlightAttribute = settings.stringValue(key::spotlightAttribute);
    o.spotlightTolerance = settings.doubleValue(key::spotlightTolerance);
    o.similarity = int(std::clamp<qint64>(settings.integerValue(key::similarity), 0, 100));
    o.distinguishGreyscale = settings.boolValue(key::distinguishGreyscale);
    return o;
}

QStringList skipPatternLines(const QString &text)
{
    QStringList lines;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString trimmed = line.trimmed();
        if (!trimmed.isEmpty())
            lines.append(trimmed);
    }
    return lines;
}

SearchStart startSearch(const SearchOptions &options, const QStringList &locations, Settings &settings)
{
    SearchStart start;
    SearchOptions &shown = start.shownOptions;
    shown = options;
    SearchRequest r;
    r.searchInFolderURLs = locations;

    r.findAllDupesForSingleFiles = options.findAllDupesForSingleFiles;
    settings.setValue(key::findAllDupesForSingleFiles, r.findAllDupesForSingleFiles);
    r.skipHiddenFiles = options.skipHiddenFiles;
    settings.setValue(key::skipHiddenFiles, r.skipHiddenFiles);
    r.ignoreMp4Header = options.ignoreMp4Header;
    settings.setValue(key::ignoreMp4Header, r.ignoreMp4Header);
    r.limitFolderDepth = options.limitFolderDepth ? options.folderDepthField - 1 : -1;
    settings.setValue(key::limitFolderDepth, r.limitFolderDepth);
    const int extensionsMode = options.extensionsOn ? options.extensionsPopupTag : 0;
    r.extensionsMode = ExtensionsMode(extensionsMode);
    settings.setValue(key::extensionsMode, extensionsMode);

    if (options.skipFilenames) {
        auto compiled =
            compileSkipPatterns(skipPatternLines(options.skipFilenamesText), &start.invalidPattern);
        if (!compiled)
            return start;
        r.skipFilenameRegexes = *compiled;
    }
    settings.setValue(key::skipFilenameMatchingPatterns, options.skipFilenames);
    settings.setValue(key::skipFilenamePatterns, options.skipFilenamesText);

    r.extensions = normalizedExtensions(options.extensionsText);
    shown.extensionsText = joinedExtensions(r.extensions);
    settings.setValue(key::extensionsList, shown.extensionsText);

    r.ignoreClones = options.ignoreClones;
    settings.setValue(key::ignoreClones, r.ignoreClones);
    r.compareFolders = options.compareFolders;
    settings.setValue(key::compareFolders, r.compareFolders);
    r.containedFolders = options.containedFolders;
    settings.setValue(key::containedFolders, r.containedFolders);
    r.filterFileSize = options.filterFileSize;
    settings.setValue(key::filterFileSize, r.filterFileSize);

    r.minFileSize = stringToBytes(options.minFileSizeText);
    settings.setValue(key::minFileSize, r.minFileSize);
    r.maxFileSize = stringToBytes(options.maxFileSizeText);
    settings.setValue(key::maxFileSize, r.maxFileSize);
    const SizeFieldTexts sizes = sizeFieldTexts(r.minFileSize, r.maxFileSize);
    shown.minFileSizeText = sizes.min;
    shown.maxFileSizeText = sizes.max;

    r.ignoreNonWritable = options.ignoreNonWritable;
    settings.setValue(key::ignoreNonWritable, r.ignoreNonWritable);
    r.ignoreOtherOwner = options.ignoreOtherOwner;
    settings.setValue(key::ignoreOtherOwner, r.ignoreOtherOwner);

    r.detectionMode = DetectionMode(options.detectionMode);
    settings.setValue(key::detectionMode, options.detectionMode);
    r.durationTolerance = options.durationTolerance;
    settings.setValue(key::durationTolerance, r.durationTolerance);
    r.spotlightAttribute = options.spotlightAttribute;
    settings.setValue(key::spotlightAttribute, r.spotlightAttribute);
    // The field keeps its value for later, but a hidden tolerance means exact comparison.
    settings.setValue(key::spotlightTolerance, options.spotlightTolerance);
    r.spotlightTolerance = options.spotlightToleranceVisible ? options.spotlightTolerance : 0.0;

    r.filenameIgnoreExtension = options.filenameIgnoreExtension;
    settings.setValue(key::filenameIgnoreExtension, r.filenameIgnoreExtension);
    settings.setValue(key::filenameIgnoreCommonSuffixes, options.filenameIgnoreCommonSuffixes);
    if (shown.commonSuffixesText.isEmpty())
        shown.commonSuffixesText = QString(kDefaultCommonSuffixes);
    settings.setValue(key::commonSuffixes, shown.commonSuffixesText);
    QList<QRegularExpression> suffixes = compileCommonSuffixes(shown.commonSuffixesText);
    if (options.filenameIgnoreCommonSuffixes)
        r.filenameIgnoreCommonSuffixRegexes = std::move(suffixes);

    r.similarity = std::clamp(options.similarity, 0, 100);
    settings.setValue(key::similarity, r.similarity);
    r.distinguishGreyscale = options.distinguishGreyscale;
    settings.setValue(key::distinguishGreyscale, r.distinguishGreyscale);

    start.request = std::move(r);
    return start;
}

} // namespace selfsame
