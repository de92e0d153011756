#pragma once

#include <QtGlobal>

#include <string_view>
#include <vector>

namespace selfsame {

// Orders paths component by component: "/a" < "/a/b" < "/a b", so that every folder's
// subtree follows it as one run.
bool folderPathLess(std::string_view a, std::string_view b);
// Whether `path` lies below `folder` (not the folder itself).
bool liesBelow(std::string_view path, std::string_view folder);

// A search's folders as one tree in path order: a folder's subtree is the run of folders
// from it up to end(). Paths repeated in the input (a folder reached twice) become one.
class FolderTree {
public:
    static constexpr qint32 kNone = -1;

    // `paths` must outlive the tree.
    explicit FolderTree(const std::vector<std::string_view> &paths);

    quint32 size() const { return quint32(m_paths.size()); }
    // The tree's place of the folder given at `index` of the input paths.
    quint32 placeOf(quint32 index) const { return m_placeOf[index]; }
    std::string_view path(quint32 place) const { return m_paths[place]; }
    // The nearest enclosing folder in the tree, kNone for a top folder.
    qint32 parent(quint32 place) const { return m_parent[place]; }
    quint32 end(quint32 place) const { return m_end[place]; }
    bool inSubtree(quint32 place, quint32 root) const { return root <= place && place < m_end[root]; }

private:
    std::vector<std::string_view> m_paths;
    std::vector<quint32> m_placeOf;
    std::vector<qint32> m_parent;
    std::vector<quint32> m_end;
};

} // namespace selfsame
