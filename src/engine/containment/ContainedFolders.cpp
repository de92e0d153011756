#include "containment/ContainedFolders.h"

#include "containment/FolderTree.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <unordered_map>

namespace selfsame {

namespace {

// The files of each folder, and the folders of each content, in compressed rows.
class ContentIndex {
public:
    ContentIndex(const FolderTree &tree, const ContainmentInput &input)
    {
        const quint32 folders = tree.size();
        m_fileStart.assign(folders + 1, 0);
        qint32 lastContent = -1;
        for (const ContainmentFile &file : input.files) {
            ++m_fileStart[tree.placeOf(file.folder) + 1];
            lastContent = std::max(lastContent, file.content);
        }
        for (quint32 f = 0; f < folders; ++f)
            m_fileStart[f + 1] += m_fileStart[f];
        m_fileContent.resize(input.files.size());
        std::vector<quint32> next(m_fileStart.begin(), m_fileStart.end() - 1);
        for (const ContainmentFile &file : input.files)
            m_fileContent[next[tree.placeOf(file.folder)]++] = file.content;

        // Walking the folders in tree order leaves each content's folders sorted.
        m_copyStart.assign(std::size_t(lastContent) + 2, 0);
        for (const qint32 content : m_fileContent)
            if (content >= 0)
                ++m_copyStart[std::size_t(content) + 1];
        for (std::size_t k = 0; k + 1 < m_copyStart.size(); ++k)
            m_copyStart[k + 1] += m_copyStart[k];
        m_copyFolder.resize(m_copyStart.back());
        std::vector<quint32> free(m_copyStart.begin(), m_copyStart.end() - 1);
        for (quint32 f = 0; f < folders; ++f)
            for (quint32 q = m_fileStart[f]; q < m_fileStart[f + 1]; ++q)
                if (m_fileContent[q] >= 0)
                    m_copyFolder[free[std::size_t(m_fileContent[q])]++] = f;
    }

    // The files of a folder's whole subtree, which follow one another up to the first file
    // of the folder at its end (one past the last folder: the end of all files).
    quint32 firstFile(quint32 folder) const { return m_fileStart[folder]; }
    qint32 content(quint32 file) const { return m_fileContent[file]; }
    quint32 copies(qint32 content) const
    {
        return m_copyStart[std::size_t(content) + 1] - m_copyStart[std::size_t(content)];
    }
    const quint32 *copiesBegin(qint32 content) const { return m_copyFolder.data() + m_copyStart[std::size_t(content)]; }
    const quint32 *copiesEnd(qint32 content) const { return m_copyFolder.data() + m_copyStart[std::size_t(content) + 1]; }

private:
    std::vector<quint32> m_fileStart;  // per folder, into m_fileContent; one more at the end
    std::vector<qint32> m_fileContent; // files grouped by folder in tree order
    std::vector<quint32> m_copyStart;  // per content, into m_copyFolder
    std::vector<quint32> m_copyFolder; // the folders holding each content, ascending
};

class Search {
public:
    explicit Search(const ContainmentInput &input) : m_tree(input.folderPaths), m_index(m_tree, input)
    {
        const quint32 folders = m_tree.size();
        m_sums.resize(folders);
        m_whole.assign(folders, true);
        for (const ContainmentFile &file : input.files) {
            const quint32 place = m_tree.placeOf(file.folder);
            m_sums[place].size += file.size;
            m_sums[place].physicalSize += file.physicalSize;
            ++m_sums[place].files;
            if (file.content < 0)
                m_whole[place] = false;
        }
        for (const quint32 index : input.foldersNotWhole)
            m_whole[m_tree.placeOf(index)] = false;
        for (std::size_t index = 0; index < input.filesWithoutCopy.size(); ++index) {
            const FolderSums &unique = input.filesWithoutCopy[index];
            if (unique.files == 0)
                continue;
            // Counted in the sums only: the index never lists them.
            FolderSums &sums = m_sums[m_tree.placeOf(quint32(index))];
            sums.size += unique.size;
            sums.physicalSize += unique.physicalSize;
            sums.files += unique.files;
            m_whole[m_tree.placeOf(quint32(index))] = false;
        }
        markAccountedFor(input.accountedFor);

        // Children follow their parents in tree order: walking backwards sums every subtree.
        m_rarest.assign(folders, -1);
        for (quint32 f = 0; f < folders; ++f)
            for (quint32 q = m_index.firstFile(f); q < m_index.firstFile(f + 1); ++q)
                keepRarer(m_rarest[f], m_index.content(q));
        for (quint32 f = folders; f-- > 0;) {
            const qint32 parent = m_tree.parent(f);
            if (parent == FolderTree::kNone)
                continue;
            const auto p = quint32(parent);
            m_sums[p].size += m_sums[f].size;
            m_sums[p].physicalSize += m_sums[f].physicalSize;
            m_sums[p].files += m_sums[f].files;
            m_whole[p] = m_whole[p] && m_whole[f];
            keepRarer(m_rarest[p], m_rarest[f]);
        }
    }

    std::vector<Containment> run(const std::function<void(double)> &progress)
    {
        std::vector<quint32> candidates;
        for (quint32 f = 0; f < m_tree.size(); ++f)
            if (m_whole[f] && !m_accountedFor[f] && m_sums[f].size > 0)
                candidates.push_back(f);
        // Larger folders first, so a folder comes before everything inside it; of two that hold
        // each other's files, the larger is the copy, the first in path order among equals.
        std::stable_sort(candidates.begin(), candidates.end(),
                         [&](quint32 a, quint32 b) { return m_sums[a].size > m_sums[b].size; });
        m_removed.assign(m_tree.size(), false);
        m_kept.assign(m_tree.size(), false);
        std::vector<std::pair<quint32, quint32>> pairs;
        for (std::size_t i = 0; i < candidates.size(); ++i) {
            if (progress)
                progress(double(i) / double(candidates.size()));
            const quint32 folder = candidates[i];
            // What lies in a reported folder goes with it; a container, and all it holds, stays.
            if (within(folder, m_removed) || within(folder, m_kept) || encloses(folder, m_keptPlaces))
                continue;
            const qint32 container = containerOf(folder);
            if (container == FolderTree::kNone)
                continue;
            m_removed[folder] = true;
            m_removedPlaces.insert(folder);
            m_kept[quint32(container)] = true;
            m_keptPlaces.insert(quint32(container));
            pairs.emplace_back(folder, quint32(container));
        }
        std::sort(pairs.begin(), pairs.end());
        std::vector<Containment> found;
        for (const auto &[f, c] : pairs)
            found.push_back({std::string(m_tree.path(f)), m_sums[f], std::string(m_tree.path(c)), m_sums[c]});
        return found;
    }

private:
    void markAccountedFor(std::vector<std::string> trees)
    {
        m_accountedFor.assign(m_tree.size(), false);
        std::sort(trees.begin(), trees.end());
        std::vector<std::string> outermost;
        for (std::string &tree : trees)
            if (outermost.empty() || !tree.starts_with(outermost.back()))
                outermost.push_back(std::move(tree));
        if (outermost.empty())
            return;
        std::string path;
        for (quint32 f = 0; f < m_tree.size(); ++f) {
            path.assign(m_tree.path(f));
            if (!path.ends_with('/'))
                path.push_back('/');
            const auto at = std::upper_bound(outermost.begin(), outermost.end(), path);
            m_accountedFor[f] = at != outermost.begin() && path.starts_with(*(at - 1));
        }
    }

    void keepRarer(qint32 &kept, qint32 content) const
    {
        if (content >= 0 && (kept < 0 || m_index.copies(content) < m_index.copies(kept)))
            kept = content;
    }

    // Whether a copy of every file below `folder` lies below `container`.
    bool holdsAll(quint32 container, quint32 folder) const
    {
        const quint32 first = m_index.firstFile(folder), last = m_index.firstFile(m_tree.end(folder));
        for (quint32 q = first; q < last; ++q) {
            const qint32 content = m_index.content(q);
            const quint32 *copy = std::lower_bound(m_index.copiesBegin(content), m_index.copiesEnd(content), container);
            if (copy == m_index.copiesEnd(content) || !m_tree.inSubtree(*copy, container))
                return false;
        }
        return true;
    }

    // Whether the folder or one around it is marked.
    bool within(quint32 folder, const std::vector<bool> &marks) const
    {
        for (qint32 f = qint32(folder); f != FolderTree::kNone; f = m_tree.parent(quint32(f)))
            if (marks[std::size_t(f)])
                return true;
        return false;
    }
    // Whether the folder or one inside it is among `places`.
    bool encloses(quint32 folder, const std::set<quint32> &places) const
    {
        const auto at = places.lower_bound(folder);
        return at != places.end() && *at < m_tree.end(folder);
    }

    // The smallest folder that holds copies of all files of `folder`, neither inside it nor
    // around it, and clear of every folder reported so far: so its copies stay, whatever else
    // is removed. kNone when there is none.
    qint32 containerOf(quint32 folder)
    {
        const qint32 rarest = m_rarest[folder];
        qint32 best = FolderTree::kNone;
        std::unordered_map<quint32, bool> holds; // chains of different copies meet higher up
        auto holdsAllOf = [&](quint32 candidate) {
            const auto [at, added] = holds.try_emplace(candidate, false);
            if (added)
                at->second = holdsAll(candidate, folder);
            return at->second;
        };
        std::vector<quint32> chain;
        for (const quint32 *copy = m_index.copiesBegin(rarest); copy != m_index.copiesEnd(rarest); ++copy) {
            if (m_tree.inSubtree(*copy, folder) || (copy != m_index.copiesBegin(rarest) && *copy == copy[-1]))
                continue;
            // From the copy's folder up to below the first folder that encloses both; those in
            // or around a reported folder, a run at each end, are left out.
            chain.clear();
            for (qint32 c = qint32(*copy); c != FolderTree::kNone && !m_tree.inSubtree(folder, quint32(c));
                 c = m_tree.parent(quint32(c)))
                if (!within(quint32(c), m_removed) && !encloses(quint32(c), m_removedPlaces))
                    chain.push_back(quint32(c));
            // Every folder around one that holds all holds all too: the lowest is found by halving.
            const auto lowest = std::partition_point(chain.begin(), chain.end(),
                                                     [&](quint32 c) { return !holdsAllOf(c); });
            if (lowest != chain.end() && (best == FolderTree::kNone || smaller(*lowest, quint32(best))))
                best = qint32(*lowest);
        }
        return best;
    }

    bool smaller(quint32 a, quint32 b) const
    {
        return std::tuple(m_sums[a].size, m_sums[a].files, a) < std::tuple(m_sums[b].size, m_sums[b].files, b);
    }

    FolderTree m_tree;
    ContentIndex m_index;
    std::vector<FolderSums> m_sums;  // at any depth
    std::vector<bool> m_whole;       // every item below was listed and has a copy somewhere
    std::vector<bool> m_accountedFor; // in a tree that another group shows already
    std::vector<qint32> m_rarest;    // below the folder, the content with the fewest copies
    std::vector<bool> m_removed, m_kept;     // the reported folders and their containers
    std::set<quint32> m_removedPlaces, m_keptPlaces;
};

} // namespace

std::vector<Containment> findContainedFolders(const ContainmentInput &input,
                                                  const std::function<void(double)> &progress)
{
    if (input.files.empty())
        return {};
    return Search(input).run(progress);
}

} // namespace selfsame
