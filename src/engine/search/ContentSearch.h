#pragma once

#include "containment/ContainedFolders.h"
#include "results/ResultItem.h"
#include "search/ContentHasher.h"
#include "search/Enumerator.h"
#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QStringList>

#include <unordered_map>

namespace selfsame {

// Groups enumerated items by content: files of one size are digested and equal digests
// make a group; with folder comparison, folders are digested from their children too and
// whatever lies inside a duplicate folder is dropped.
class ContentSearch {
public:
    // The enumeration's entries are cut down to the candidates once sizes are sorted, and
    // released once the result items are made from them.
    ContentSearch(const SearchRequest &request, EnumerationResult &enumeration, RunContext &context);

    // Steps 2 to the last of a content search, then the clean-up: the grouped items in group
    // order, the groups of contained folders last.
    QList<ResultItem> run();

    static int stepCount(const SearchRequest &request)
    {
        return (request.compareFolders ? 6 : 4) + (request.containedFolders ? 1 : 0);
    }

private:
    struct Member {
        std::size_t node;
        int group;
        int dupes;
    };

    std::vector<SizeRun> sortAndDropRepeats();
    void hashFolders();
    std::vector<Member> compareDigests();
    std::vector<Containment> findContainedFolders(const std::vector<Member> &members);
    std::vector<Member> filterDuplicateFolderContents(const std::vector<Member> &members);
    QList<ResultItem> makeItems(const std::vector<Member> &members);
    const std::string &nodePath(std::size_t node);
    // Keeps only the entries that nodes refer to, renumbered, and gives the others' memory back.
    void keepOnlyEntriesOfNodes();

    const SearchRequest &m_request;
    const EnumerationResult &m_enumeration;
    EntryTable &m_entries;
    RunContext &m_context;
    ContentNodes m_nodes;
    std::vector<std::string> m_paths;       // full path of every node, with folder comparison only
    std::vector<std::string> m_duplicateFolders; // each with "/" appended
    // With contained folders: the folders holding items not listed, and per folder the files
    // alone in their size.
    std::vector<quint32> m_foldersNotWhole;
    std::vector<FolderSums> m_filesWithoutCopy;
    std::unordered_map<std::size_t, QStringList> m_tags; // user tags of the files that have any
};

} // namespace selfsame
