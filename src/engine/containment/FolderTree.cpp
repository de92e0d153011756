#include "containment/FolderTree.h"

#include <algorithm>
#include <numeric>

namespace selfsame {

bool folderPathLess(std::string_view a, std::string_view b)
{
    // "/" sorts before every other byte; names hold no NUL.
    auto rank = [](char c) { return c == '/' ? 0 : int(static_cast<unsigned char>(c)) + 1; };
    const std::size_t n = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < n; ++i)
        if (a[i] != b[i])
            return rank(a[i]) < rank(b[i]);
    return a.size() < b.size();
}

bool liesBelow(std::string_view path, std::string_view folder)
{
    if (path.size() <= folder.size() || !path.starts_with(folder))
        return false;
    return folder.ends_with('/') || path[folder.size()] == '/';
}

FolderTree::FolderTree(const std::vector<std::string_view> &paths) : m_placeOf(paths.size())
{
    std::vector<quint32> order(paths.size());
    std::iota(order.begin(), order.end(), 0);
    std::sort(order.begin(), order.end(),
              [&](quint32 a, quint32 b) { return folderPathLess(paths[a], paths[b]); });
    for (const quint32 index : order) {
        if (m_paths.empty() || m_paths.back() != paths[index])
            m_paths.push_back(paths[index]);
        m_placeOf[index] = quint32(m_paths.size() - 1);
    }

    m_parent.assign(m_paths.size(), kNone);
    m_end.assign(m_paths.size(), size());
    std::vector<quint32> open; // the folders that enclose the current one, outermost first
    for (quint32 place = 0; place < size(); ++place) {
        while (!open.empty() && !liesBelow(m_paths[place], m_paths[open.back()])) {
            m_end[open.back()] = place;
            open.pop_back();
        }
        if (!open.empty())
            m_parent[place] = qint32(open.back());
        open.push_back(place);
    }
}

} // namespace selfsame
