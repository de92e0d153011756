#include "SearchDefaults.h"

#include "Settings.h"
#include "attributes/SpotlightAttributesManager.h"
#include "search/NamePatterns.h"
#include "search/SearchRequest.h"

#include <QStringList>

namespace selfsame {

void registerSearchDefaults(Settings &settings)
{
    settings.registerDefaults({
        {key::mainWindowInitialPosition, false},
        {key::skipHiddenFiles, true},
        {key::findAllDupesForSingleFiles, true},
        {key::ignoreMp4Header, false},
        {key::ignoreClones, false},
        {key::compareFolders, false},
        {key::containedFolders, false},
        {key::limitFolderDepth, qint64(-1)},
        {key::skipFilenameMatchingPatterns, false},
        {key::skipFilenamePatterns, QString()},
        {key::extensionsMode, 0},
        {key::extensionsList, QString()},
        {key::filterFileSize, true},
        {key::minFileSize, qint64(1)},
        {key::maxFileSize, qint64(0)},
        {key::ignoreNonWritable, true},
        {key::ignoreOtherOwner, true},
        {key::detectionMode, 0},
        {key::durationTolerance, 0.1},
        {key::spotlightAttribute, QStringLiteral("kMDItemTitle")},
        {key::spotlightTolerance, 0.0},
        {key::activeSpotlightAttributes, defaultActiveSpotlightAttributes()},
        {key::filenameIgnoreExtension, false},
        {key::filenameIgnoreCommonSuffixes, false},
        {key::commonSuffixes, QString(kDefaultCommonSuffixes)},
        {key::similarity, kDefaultSimilarity},
        {key::distinguishGreyscale, false},
        {key::useDigestCache, true},
    });
}

void migrateColumnsLayout(Settings &settings)
{
    if (settings.boolValue(key::columnsLayoutV2))
        return;
    settings.remove(key::mainListColumns);
    settings.remove(key::cloneListColumns);
    settings.setValue(key::columnsLayoutV2, true);
}

} // namespace selfsame
