#pragma once

#include "search/EntryTable.h"
#include "search/MetadataFilter.h"
#include "search/SearchRequest.h"

#include <atomic>
#include <functional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace selfsame {

struct EnumerationResult {
    EntryTable entries;
    std::vector<std::string> packages;  // package folder paths, each with "/" appended
    qint64 enumerated = 0;              // items seen before any filter
    qint64 unreadableFolders = 0;       // folders that could not be listed
    std::vector<std::string> unreadableFolderPaths;
    // Folders whose contents are not in the table: unreadable, or listed already through
    // another path (a bind mount, overlapping locations). They look empty but are not.
    std::vector<std::string> foldersNotListed;
    // With contained folders only: folders (table indices) that hold something the table
    // lacks — an item filtered out, a folder not entered or not listed. Removing one of them
    // would lose more than its listed files, so none can count as contained in another.
    std::vector<quint32> foldersNotWhole;
    qint64 startedNs = 0;               // wall clock when the walk began
};

// Walks the locations of a request on several threads and keeps the items that pass its
// filters. The order of entries is not defined; everything downstream sorts.
class Enumerator {
public:
    // onItem is called, from any walking thread, with the running count of items seen.
    Enumerator(const SearchRequest &request, const std::atomic<int> &searchingState, uid_t effectiveUser,
               std::function<void(qint64 count)> onItem);

    // In the modes that compare metadata: the filter that reads it, the last one applied.
    void setMetadataFilter(MetadataFilter *filter) { m_metadataFilter = filter; }
    // For look-ups of files by size: only regular files of these sizes (sorted) are kept, and
    // folders of pseudo file systems (proc, sysfs, cgroups…) are not listed.
    void keepOnlySizes(std::vector<qint64> sortedSizes) { m_onlySizes = std::move(sortedSizes); }

    EnumerationResult run();

    // Folders with these extensions are packages (bundles from other systems).
    static bool isPackageName(std::string_view name);
    // Lower-cased text after the last dot of a name, empty for none or a leading dot only.
    static QString pathExtension(std::string_view name);

private:
    struct Job {
        quint32 folder;
        int level;
    };
    class Walk;
    void readMetadata(EntryTable &entries);

    const SearchRequest &m_request;
    const std::atomic<int> &m_searchingState;
    uid_t m_effectiveUser;
    uid_t m_realUser;
    std::function<void(qint64)> m_onItem;
    MetadataFilter *m_metadataFilter = nullptr;
    std::vector<qint64> m_onlySizes;
};

} // namespace selfsame
