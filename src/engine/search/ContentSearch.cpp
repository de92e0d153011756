#include "search/ContentSearch.h"

#include "containment/ContainedGroups.h"
#include "names/FileNames.h"
#include "results/FileAttributes.h"
#include "search/Digest.h"

#include <QCoreApplication>
#include <algorithm>
#include <malloc.h>
#include <numeric>

namespace selfsame {

namespace {

struct SearchStatusText {
    Q_DECLARE_TR_FUNCTIONS(DuplicateSearch)
};

std::string_view parentPath(std::string_view path)
{
    const auto slash = path.rfind('/');
    return slash == 0 ? std::string_view("/") : path.substr(0, slash);
}

// Sorted, with every entry dropped that lies inside an entry kept before it.
std::vector<std::string> outermost(std::vector<std::string> folders)
{
    std::sort(folders.begin(), folders.end());
    std::vector<std::string> kept;
    for (std::string &folder : folders)
        if (kept.empty() || !folder.starts_with(kept.back()))
            kept.push_back(std::move(folder));
    return kept;
}

bool liesInside(const std::vector<std::string> &folders, const std::string &path)
{
    const auto at = std::lower_bound(folders.begin(), folders.end(), path);
    return at != folders.begin() && path.starts_with(*(at - 1));
}

} // namespace

ContentSearch::ContentSearch(const SearchRequest &request, EnumerationResult &enumeration,
                             RunContext &context)
    : m_request(request), m_enumeration(enumeration), m_entries(enumeration.entries), m_context(context),
      m_foldersNotWhole(enumeration.foldersNotWhole)
{
}

QList<ResultItem> ContentSearch::run()
{
    // Groups from part of the files would miss members that were never listed, and folders
    // not listed to their end would look equal to others.
    if (m_context.aborted()) {
        m_context.statistics.stopped = true;
        return {};
    }
    const int steps = stepCount(m_request);
    m_context.beginStep(2, steps, true);
    m_context.status([] { return SearchStatusText::tr("Sorting files…"); }, -1);
    const std::vector<SizeRun> runs = sortAndDropRepeats();

    m_context.beginStep(3, steps, true);
    {
        // What the hasher holds (cache answers among it) goes before the result items are made.
        ContentHasher hasher(m_entries, m_context, m_request.ignoreMp4Header, !m_request.compareFolders,
                             m_enumeration.startedNs);
        hasher.hash(m_nodes, runs);
        for (auto &[node, tags] : hasher.takeTags())
            m_tags.emplace(node, std::move(tags));
    }
    malloc_trim(0); // the hashing threads' buffers, kept by their heaps
    // Stopped while reading, the files digested so far are grouped all the same: a digest is
    // only ever made of every byte of a file, so no group is false, though some are missing.
    // The steps after the reading work in memory and see no abort.
    m_context.statistics.stopped = m_context.aborted();

    if (m_request.compareFolders) {
        m_context.beginStep(4, steps, true, true);
        m_context.status([] { return SearchStatusText::tr("Hashing folders…"); }, 0);
        hashFolders();
    }
    m_context.beginStep(m_request.compareFolders ? 5 : 4, steps, true, true);
    m_context.status([] { return SearchStatusText::tr("Comparing file hashes…"); }, 0);
    std::vector<Member> members = compareDigests();

    std::vector<Containment> contained;
    if (m_request.containedFolders) {
        m_context.beginStep(m_request.compareFolders ? 6 : 5, steps, true, true);
        m_context.status([] { return SearchStatusText::tr("Finding folders contained in others…"); }, 0);
        contained = findContainedFolders(members);
        // Their groups stand for everything inside them, as a duplicate folder's does.
        for (const Containment &found : contained)
            m_duplicateFolders.push_back(found.contained + '/');
    }
    if ((m_request.compareFolders || !contained.empty()) && members.size() >= 2) {
        if (m_request.compareFolders) {
            m_context.beginStep(steps, steps, true, true);
            m_context.status(
                [] { return SearchStatusText::tr("Filtering out contents of duplicate folders…"); }, 0);
        }
        members = filterDuplicateFolderContents(members);
    }
    // Empty files and folders are never worth listing, and links only count inside folders.
    // Groups keep their numbers.
    std::erase_if(members, [&](const Member &m) {
        return m_nodes[m.node].size == 0 || m_nodes[m.node].has(IsSymlink);
    });
    const int firstContainedGroup =
        members.empty() ? 0 : std::max_element(members.begin(), members.end(), [](const Member &a, const Member &b) {
                                  return a.group < b.group;
                              })->group + 1;
    QList<ResultItem> items = makeItems(members);
    items.append(containedGroupItems(contained, firstContainedGroup));
    return items;
}

std::vector<SizeRun> ContentSearch::sortAndDropRepeats()
{
    std::vector<quint32> order(m_entries.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(), [&](quint32 a, quint32 b) {
        const FileEntry &ea = m_entries[a], &eb = m_entries[b];
        if (ea.size != eb.size)
            return ea.size > eb.size;
        // Within a size, hard links and repeats of one path fall next to each other, so paths
        // need comparing only there.
        if (ea.device != eb.device)
            return ea.device < eb.device;
        if (ea.inode != eb.inode)
            return ea.inode < eb.inode;
        return m_entries.comparePaths(ea, eb) > 0;
    });
    // A file reached through overlapping locations is kept once.
    std::erase_if(order, [&, previous = quint32(-1)](quint32 i) mutable {
        const bool repeat = previous != quint32(-1) && m_entries[previous].size == m_entries[i].size &&
                            m_entries[previous].device == m_entries[i].device &&
                            m_entries[previous].inode == m_entries[i].inode &&
                            m_entries.comparePaths(m_entries[previous], m_entries[i]) == 0;
        previous = i;
        return repeat;
    });

    std::vector<SizeRun> runs;
    m_nodes.clear();
    std::size_t candidates = 0;
    for (std::size_t begin = 0, end; begin < order.size(); begin = end) {
        for (end = begin + 1; end < order.size() && m_entries[order[end]].size == m_entries[order[begin]].size;)
            ++end;
        if (end - begin >= 2 || m_request.compareFolders)
            candidates += end - begin;
    }
    m_nodes.reserve(candidates);
    if (m_request.containedFolders)
        m_filesWithoutCopy.assign(m_entries.folderCount(), {});
    for (std::size_t begin = 0; begin < order.size();) {
        std::size_t end = begin + 1;
        while (end < order.size() && m_entries[order[end]].size == m_entries[order[begin]].size)
            ++end;
        // Only items that share their size can be duplicates; folder comparison needs every item.
        if (end - begin >= 2 || m_request.compareFolders) {
            const std::size_t first = m_nodes.size();
            for (std::size_t k = begin; k < end; ++k) {
                const FileEntry &entry = m_entries[order[k]];
                ContentNode node;
                node.entry = order[k];
                node.flags = entry.flags;
                node.size = entry.size;
                node.physicalSize = entry.physicalSize;
                m_nodes.push_back(std::move(node));
            }
            if (end - begin >= 2)
                runs.push_back({first, m_nodes.size()});
        } else if (m_request.containedFolders && m_entries[order[begin]].size > 0) {
            // A file alone in its size has no copy: no folder around it can be contained.
            const FileEntry &entry = m_entries[order[begin]];
            FolderSums &sums = m_filesWithoutCopy[entry.folder];
            sums.size += entry.size;
            sums.physicalSize += entry.physicalSize;
            ++sums.files;
        }
        begin = end;
    }
    // Files alone in their size are done with; the hashing needs only the candidates' entries.
    std::vector<quint32>().swap(order);
    keepOnlyEntriesOfNodes();
    return runs;
}

void ContentSearch::keepOnlyEntriesOfNodes()
{
    std::vector<quint32> kept;
    kept.reserve(m_nodes.size());
    for (const ContentNode &node : m_nodes)
        kept.push_back(node.entry);
    std::sort(kept.begin(), kept.end());
    m_entries.keepOnly(kept);
    for (ContentNode &node : m_nodes)
        node.entry = quint32(std::lower_bound(kept.begin(), kept.end(), node.entry) - kept.begin());
}

const std::string &ContentSearch::nodePath(std::size_t node)
{
    if (m_paths.empty()) {
        m_paths.reserve(m_nodes.size());
        for (const ContentNode &n : m_nodes)
            m_paths.push_back(m_entries.path(m_entries[n.entry]));
    }
    return m_paths[node];
}

void ContentSearch::hashFolders()
{
    const std::size_t n = m_nodes.size();
    if (n == 0)
        return;
    nodePath(0);
    std::vector<std::size_t> byPath(n);
    std::iota(byPath.begin(), byPath.end(), 0);
    std::sort(byPath.begin(), byPath.end(), [&](std::size_t a, std::size_t b) { return m_paths[a] < m_paths[b]; });

    // A folder is empty when the next path does not begin with its own (a plain prefix test).
    // One whose contents were not listed only looks empty: it gets no digest, and neither
    // does any folder around it, so none of them can be taken for a copy of another.
    std::vector<std::string> notListed = m_enumeration.foldersNotListed;
    std::sort(notListed.begin(), notListed.end());
    for (std::size_t k = 0; k < n; ++k) {
        m_context.status([] { return SearchStatusText::tr("Hashing folders…"); }, double(k) / double(2 * n));
        ContentNode &node = m_nodes[byPath[k]];
        if (!node.has(IsFolder) || std::binary_search(notListed.begin(), notListed.end(), m_paths[byPath[k]]))
            continue;
        if (k + 1 == n || !m_paths[byPath[k + 1]].starts_with(m_paths[byPath[k]])) {
            node.size = 0;
            node.setItemCount(0);
            node.setDigest(emptyFolderDigest());
        }
    }

    // Deepest parents first, so that every folder is complete before it counts as a child.
    std::vector<std::size_t> byParent = byPath;
    std::stable_sort(byParent.begin(), byParent.end(), [&](std::size_t a, std::size_t b) {
        return parentPath(m_paths[a]) > parentPath(m_paths[b]);
    });
    for (std::size_t begin = 0; begin < n;) {
        const std::string_view parent = parentPath(m_paths[byParent[begin]]);
        std::size_t end = begin + 1;
        while (end < n && parentPath(m_paths[byParent[end]]) == parent)
            ++end;
        m_context.status([] { return SearchStatusText::tr("Hashing folders…"); },
                         0.5 + double(begin) / double(2 * n));
        const bool complete = std::all_of(byParent.begin() + qsizetype(begin), byParent.begin() + qsizetype(end),
                                          [&](std::size_t i) { return m_nodes[i].has(HasDigest); });
        const auto found = std::lower_bound(byPath.begin(), byPath.end(), parent,
                                            [&](std::size_t i, std::string_view p) { return m_paths[i] < p; });
        if (complete && found != byPath.end() && m_paths[*found] == parent) {
            Sha512 contents, allocation;
            qint64 size = 0, physicalSize = 0, itemCount = 0;
            quint16 inherited = 0;
            for (std::size_t k = begin; k < end; ++k) {
                const ContentNode &child = m_nodes[byParent[k]];
                const std::string_view name = m_entries.name(m_entries[child.entry]);
                contents.update(name.data(), name.size());
                contents.update(child.digest().data(), child.digest().size());
                if (child.has(HasAllocDigest))
                    allocation.update(child.allocDigest().data(), child.allocDigest().size());
                size += child.size;
                physicalSize += child.physicalSize;
                itemCount += child.has(IsFolder) ? child.itemCount() : 1;
                inherited |= child.flags & (ReadOnly | OtherOwner);
            }
            ContentNode &folder = m_nodes[*found];
            folder.size = size;
            folder.physicalSize = physicalSize;
            folder.setItemCount(itemCount);
            folder.flags |= inherited;
            folder.setDigest(contents.final());
            folder.setAllocDigest(allocation.final());
        }
        begin = end;
    }
}

std::vector<ContentSearch::Member> ContentSearch::compareDigests()
{
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < m_nodes.size(); ++i)
        if (m_nodes[i].has(HasDigest))
            order.push_back(i);
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const ContentNode &na = m_nodes[a], &nb = m_nodes[b];
        if (na.size != nb.size)
            return na.size > nb.size;
        if (na.itemCount() != nb.itemCount())
            return na.itemCount() > nb.itemCount();
        return selfsame::compareDigests(na.digest(), nb.digest()) < 0;
    });

    std::vector<Member> members;
    int group = 0;
    const std::size_t n = order.size();
    for (std::size_t anchor = 0; anchor + 1 < n; ) {
        m_context.status([] { return SearchStatusText::tr("Comparing file hashes…"); },
                         double(anchor) / double(n));
        const ContentNode &first = m_nodes[order[anchor]];
        std::size_t end = anchor + 1;
        while (end < n && m_nodes[order[end]].size == first.size && m_nodes[order[end]].digest() == first.digest())
            ++end;
        const bool allClones =
            first.has(HasAllocDigest) && std::all_of(order.begin() + qsizetype(anchor) + 1, order.begin() + qsizetype(end),
                                                     [&](std::size_t i) {
                                                         return m_nodes[i].has(HasAllocDigest) &&
                                                                m_nodes[i].allocDigest() == first.allocDigest();
                                                     });
        if (end - anchor >= 2 && !(m_request.ignoreClones && allClones)) {
            for (std::size_t k = anchor; k < end; ++k) {
                members.push_back({order[k], group, int(end - anchor)});
                if (m_request.compareFolders && m_nodes[order[k]].has(IsFolder))
                    m_duplicateFolders.push_back(nodePath(order[k]) + '/');
            }
            ++group;
        }
        anchor = end;
    }
    return members;
}

std::vector<Containment> ContentSearch::findContainedFolders(const std::vector<Member> &members)
{
    ContainmentInput input;
    input.folderPaths.reserve(m_entries.folderCount());
    for (quint32 folder = 0; folder < m_entries.folderCount(); ++folder)
        input.folderPaths.emplace_back(m_entries.folderPath(folder));
    // A file's group names its content: a file in none has no copy.
    std::vector<qint32> groupOf(m_nodes.size(), -1);
    for (const Member &member : members)
        groupOf[member.node] = member.group;
    for (std::size_t i = 0; i < m_nodes.size(); ++i) {
        const ContentNode &node = m_nodes[i];
        if (node.size > 0 && !node.has(IsFolder) && !node.has(IsSymlink))
            input.files.push_back({m_entries[node.entry].folder, groupOf[i], node.size, node.physicalSize});
    }
    input.foldersNotWhole = std::move(m_foldersNotWhole);
    input.filesWithoutCopy = std::move(m_filesWithoutCopy);
    input.accountedFor = m_duplicateFolders;
    return selfsame::findContainedFolders(input, [&](double progress) {
        m_context.status([] { return SearchStatusText::tr("Finding folders contained in others…"); }, progress);
    });
}

std::vector<ContentSearch::Member> ContentSearch::filterDuplicateFolderContents(const std::vector<Member> &members)
{
    const std::vector<std::string> folders = outermost(m_duplicateFolders);
    const std::vector<std::string> packages = outermost(m_enumeration.packages);
    std::vector<Member> kept;
    for (std::size_t i = 0; i < members.size(); ++i) {
        m_context.status([] { return SearchStatusText::tr("Filtering out contents of duplicate folders…"); },
                         double(i) / double(members.size()));
        // Without folder comparison no node's path is kept: the members' are made one at a time.
        std::string path = m_paths.empty() ? m_entries.path(m_entries[m_nodes[members[i].node].entry])
                                           : nodePath(members[i].node);
        if (m_nodes[members[i].node].has(IsFolder))
            path.push_back('/');
        if (!liesInside(folders, path) && !(m_request.skipHiddenFiles && liesInside(packages, path)))
            kept.push_back(members[i]);
    }
    // Groups that lost members to a duplicate folder shrink; those left alone disappear.
    std::stable_sort(kept.begin(), kept.end(), [](const Member &a, const Member &b) { return a.group < b.group; });
    std::vector<Member> renumbered;
    int group = 0;
    for (std::size_t begin = 0; begin < kept.size();) {
        std::size_t end = begin + 1;
        while (end < kept.size() && kept[end].group == kept[begin].group)
            ++end;
        if (end - begin >= 2) {
            for (std::size_t k = begin; k < end; ++k)
                renumbered.push_back({kept[k].node, group, int(end - begin)});
            ++group;
        }
        begin = end;
    }
    return renumbered;
}

QList<ResultItem> ContentSearch::makeItems(const std::vector<Member> &members)
{
    // The members' nodes and entries are moved to the front of their tables, which then give
    // the rest of their memory back before the items take their place: a large search never
    // holds both, nor a copy of what it keeps.
    std::vector<std::size_t> byNode(members.size());
    std::iota(byNode.begin(), byNode.end(), 0);
    std::sort(byNode.begin(), byNode.end(),
              [&](std::size_t a, std::size_t b) { return members[a].node < members[b].node; });
    std::vector<std::size_t> slot(members.size()); // per member: its node's place in the kept nodes
    std::vector<QStringList> tags(members.size());
    for (std::size_t k = 0; k < byNode.size(); ++k) {
        const std::size_t m = byNode[k];
        if (const auto found = m_tags.find(members[m].node); found != m_tags.end())
            tags[m] = std::move(found->second);           // read by the hasher while the file was open
        m_nodes[k] = std::move(m_nodes[members[m].node]); // ascending: never over a node still to come
        slot[m] = k;
    }
    m_nodes.resize(members.size());
    releaseUnusedCapacity(m_nodes);
    decltype(m_tags)().swap(m_tags);
    std::vector<std::string>().swap(m_paths);
    keepOnlyEntriesOfNodes();

    // Items take everything but their paths first. Then the nodes, the entries and the
    // digests' own blocks, scattered over the hashing threads' heaps, are given back before
    // the paths need room.
    QList<ResultItem> items(qsizetype(members.size()));
    struct Name { // kept small: there is one for every grouped file
        quint32 folder;
        quint32 offset;
        quint16 length;
    };
    std::vector<Name> names(members.size());
    for (std::size_t m = 0; m < members.size(); ++m) {
        ContentNode &node = m_nodes[slot[m]];
        const FileEntry &entry = m_entries[node.entry];
        ResultItem &item = items[qsizetype(m)];
        m_entries.describe(entry, item);
        item.size = node.size; // a compared folder's sums
        item.physicalSize = node.physicalSize;
        if (!node.has(IsFolder)) item.setTagList(std::move(tags[m]));
        item.digest = node.has(HasDigest) ? node.digest() : Digest{};
        item.allocDigest = node.has(HasAllocDigest) ? node.allocDigest() : AllocationKey{};
        item.setItemCount(node.itemCount());
        item.group = members[m].group;
        item.dupes = members[m].dupes;
        item.flags = node.flags;
        node.releaseDigests();
        names[m] = {entry.folder, entry.nameOffset, entry.nameLength};
    }
    ContentNodes().swap(m_nodes);
    std::vector<QStringList>().swap(tags);
    m_entries.keepOnly({});
    malloc_trim(0);
    for (std::size_t m = 0; m < members.size(); ++m) {
        ResultItem &item = items[qsizetype(m)];
        const Name &name = names[m];
        item.path =
            pathFromBytes(m_entries.path(name.folder, m_entries.name(name.offset, name.length)));
        if (item.has(IsFolder)) item.setTagList(readUserTags(pathBytes(item.path).constData()));
    }
    return items;
}

} // namespace selfsame
