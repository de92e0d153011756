#pragma once

#include <QLatin1String>

namespace selfsame {

class Settings;

// Keys of the search options, exactly as stored.
namespace key {
inline constexpr QLatin1String mainWindowInitialPosition("main window initial position");
inline constexpr QLatin1String skipHiddenFiles("skip hidden files");
inline constexpr QLatin1String findAllDupesForSingleFiles("find all dupes for single files");
inline constexpr QLatin1String ignoreMp4Header("ignore mp4 header");
inline constexpr QLatin1String ignoreClones("ignore clones");
inline constexpr QLatin1String compareFolders("compare folders");
inline constexpr QLatin1String containedFolders("contained folders");
inline constexpr QLatin1String limitFolderDepth("limit folder depth");
inline constexpr QLatin1String skipFilenameMatchingPatterns("skip filename matching patterns");
inline constexpr QLatin1String skipFilenamePatterns("skip filename patterns");
inline constexpr QLatin1String extensionsMode("extensions mode");
inline constexpr QLatin1String extensionsList("extensions list");
inline constexpr QLatin1String filterFileSize("filter file size");
inline constexpr QLatin1String minFileSize("min file size");
inline constexpr QLatin1String maxFileSize("max file size");
inline constexpr QLatin1String ignoreNonWritable("ignore non writable");
inline constexpr QLatin1String ignoreOtherOwner("ignore other owner");
inline constexpr QLatin1String detectionMode("detection mode");
inline constexpr QLatin1String durationTolerance("duration tolerance");
inline constexpr QLatin1String spotlightAttribute("spotlight attribute");
inline constexpr QLatin1String spotlightTolerance("spotlight tolerance");
inline constexpr QLatin1String activeSpotlightAttributes("activeSpotlightAttributes");
inline constexpr QLatin1String filenameIgnoreExtension("filename ignore extension");
inline constexpr QLatin1String filenameIgnoreCommonSuffixes("filename ignore common suffixes");
inline constexpr QLatin1String commonSuffixes("common suffixes");
inline constexpr QLatin1String similarity("similarity");
inline constexpr QLatin1String distinguishGreyscale("distinguishGreyscale");
// Content searches keep file digests between searches (off: every compared file is read).
inline constexpr QLatin1String useDigestCache("use digest cache");

inline constexpr QLatin1String columnsLayoutV2("columns layout v2");
inline constexpr QLatin1String mainListColumns("NSTableView Columns v3 mainList");
inline constexpr QLatin1String cloneListColumns("NSTableView Columns v3 cloneList");

inline constexpr QLatin1String searchLocations("search locations");
inline constexpr QLatin1String previousDirectory("previous directory");
inline constexpr QLatin1String welcomeShowAtStartup("welcomeShowAtStartup");
inline constexpr QLatin1String doNotShowAgain("do not show again");
inline constexpr QLatin1String mainWindowGeometry("main window geometry");
} // namespace key

// Registers the defaults of every search option.
void registerSearchDefaults(Settings &settings);

// Once after an upgrade, the result lists start again from their built-in column layout.
void migrateColumnsLayout(Settings &settings);

} // namespace selfsame
