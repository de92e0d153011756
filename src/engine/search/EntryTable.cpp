#include "search/EntryTable.h"

#include <algorithm>
#include <cstring>

namespace selfsame {

void EntryBatch::add(FileEntry entry, std::string_view name)
{
    entry.nameOffset = quint32(names.size());
    entry.nameLength = quint16(name.size());
    names.append(name);
    entries.push_back(entry);
}

quint32 EntryTable::addFolder(std::string path)
{
    m_folders.push_back(std::move(path));
    return quint32(m_folders.size() - 1);
}

void EntryTable::add(FileEntry entry, std::string_view name)
{
    entry.nameOffset = quint32(m_names.size());
    entry.nameLength = quint16(name.size());
    m_names.append(name.data(), name.size());
    m_entries.push_back(entry);
}

void EntryTable::append(const EntryBatch &batch)
{
    const quint32 base = quint32(m_names.size());
    m_names.append(batch.names.data(), batch.names.size());
    const std::size_t first = m_entries.size();
    m_entries.append(batch.entries.data(), batch.entries.size());
    for (std::size_t i = first; i < m_entries.size(); ++i)
        m_entries[i].nameOffset += base;
}

void EntryTable::keepOnly(const std::vector<quint32> &ascending)
{
    for (std::size_t k = 0; k < ascending.size(); ++k)
        m_entries[k] = m_entries[ascending[k]];
    m_entries.truncate(ascending.size());
}

void EntryTable::keepWithMetadata(std::vector<std::optional<ItemMetadata>> metadata)
{
    std::size_t kept = 0;
    m_metadata.clear();
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        if (!metadata[i])
            continue;
        m_entries[kept++] = m_entries[i];
        m_metadata.push_back(std::move(*metadata[i]));
    }
    m_entries.truncate(kept);
}

std::string EntryTable::path(quint32 folder, std::string_view name) const
{
    const std::string &folderPath = m_folders[folder];
    std::string result;
    result.reserve(folderPath.size() + 1 + name.size());
    result.append(folderPath);
    if (result.empty() || result.back() != '/')
        result.push_back('/');
    result.append(name);
    return result;
}

namespace {

qint64 seconds(qint64 nanoseconds) { return nanoseconds >= 0 ? nanoseconds / 1'000'000'000 : -((-nanoseconds + 999'999'999) / 1'000'000'000); }
qint32 nanosecondPart(qint64 nanoseconds) { return qint32(nanoseconds - seconds(nanoseconds) * 1'000'000'000); }

} // namespace

ResultItem EntryTable::resultItem(const FileEntry &e) const
{
    ResultItem item;
    item.path = qPath(e);
    describe(e, item);
    return item;
}

void EntryTable::describe(const FileEntry &e, ResultItem &item) const
{
    item.size = e.size;
    item.physicalSize = e.physicalSize;
    item.modified = seconds(e.modifiedNs);
    item.modifiedNsec = nanosecondPart(e.modifiedNs);
    item.lastUsed = e.lastUsed;
    item.attributes = seconds(e.changedNs);
    item.changedNsec = nanosecondPart(e.changedNs);
    item.created = e.created;
    item.flags = e.flags;
    item.device = e.device;
    item.inode = e.inode;
}

namespace {

// The parts of a path, folder then "/" then name, walked as one string.
struct PathParts {
    std::string_view part[3];
    PathParts(std::string_view folder, std::string_view name)
        : part{folder, (!folder.empty() && folder.back() == '/') ? std::string_view() : std::string_view("/"),
               name}
    {
    }
};

} // namespace

int EntryTable::comparePaths(const FileEntry &a, const FileEntry &b) const
{
    PathParts pa(m_folders[a.folder], name(a));
    PathParts pb(m_folders[b.folder], name(b));
    int ia = 0, ib = 0;
    std::size_t oa = 0, ob = 0;
    for (;;) {
        while (ia < 3 && oa == pa.part[ia].size()) {
            ++ia;
            oa = 0;
        }
        while (ib < 3 && ob == pb.part[ib].size()) {
            ++ib;
            ob = 0;
        }
        if (ia == 3 || ib == 3)
            return (ia == 3) - (ib == 3) == 0 ? 0 : (ia == 3 ? -1 : 1);
        const std::size_t n = std::min(pa.part[ia].size() - oa, pb.part[ib].size() - ob);
        const int order = std::memcmp(pa.part[ia].data() + oa, pb.part[ib].data() + ob, n);
        if (order != 0)
            return order < 0 ? -1 : 1;
        oa += n;
        ob += n;
    }
}

} // namespace selfsame
