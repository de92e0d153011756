#pragma once

#include "names/FileNames.h"
#include "results/ResultItem.h"
#include "search/ItemMetadata.h"
#include "search/MappedArray.h"

#include <QString>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace selfsame {

// One enumerated item, kept small: a search may enumerate millions. The path is its folder
// (an index into the table's folder paths) and its name (a slice of the table's name arena).
struct FileEntry {
    quint32 folder = 0;
    quint32 nameOffset = 0;
    quint16 nameLength = 0;
    quint16 flags = 0; // ItemFlag bits set at enumeration
    qint64 size = 0;
    qint64 physicalSize = 0;
    qint64 modifiedNs = 0; // nanoseconds: with the change time, they tell a file's state apart
    qint64 changedNs = 0;  // status change time
    qint64 lastUsed = kNoDate;
    qint64 created = kNoDate;
    quint64 device = 0;
    quint64 inode = 0;

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    bool isRegularFile() const { return !(flags & (IsFolder | IsSymlink)); }
};

// Items gathered by one enumerating thread before they join the table.
struct EntryBatch {
    std::vector<FileEntry> entries;
    std::string names;
    void add(FileEntry entry, std::string_view name);
    void clear()
    {
        entries.clear();
        names.clear();
    }
};

// The items of one search in enumeration order, with their folder paths and names.
class EntryTable {
public:
    quint32 addFolder(std::string path);
    void add(FileEntry entry, std::string_view name);
    void append(const EntryBatch &batch);
    // Keeps the entries that have metadata, each with its own; the others are dropped.
    void keepWithMetadata(std::vector<std::optional<ItemMetadata>> metadata);
    void shrinkToFit()
    {
        m_entries.truncate(m_entries.size());
        m_names.truncate(m_names.size());
        m_metadata.shrink_to_fit();
    }

    // Keeps the entries at `ascending` (indices in increasing order), renumbered from 0, and
    // gives the memory of the others back. Folders and names stay as they are.
    void keepOnly(const std::vector<quint32> &ascending);

    std::size_t size() const { return m_entries.size(); }
    const FileEntry &operator[](std::size_t i) const { return m_entries[i]; }
    FileEntry &operator[](std::size_t i) { return m_entries[i]; }
    // The metadata of entry i; only in the modes that read metadata.
    const ItemMetadata &metadata(std::size_t i) const { return m_metadata[i]; }

    std::string_view name(const FileEntry &e) const { return name(e.nameOffset, e.nameLength); }
    std::string_view name(quint32 offset, quint16 length) const { return {m_names.data() + offset, length}; }
    const std::string &folderPath(quint32 folder) const { return m_folders[folder]; }
    std::size_t folderCount() const { return m_folders.size(); }
    std::string path(const FileEntry &e) const { return path(e.folder, name(e)); }
    QString qPath(const FileEntry &e) const { return pathFromBytes(path(e)); }
    // The path of a name in one of the table's folders; the names outlive the entries.
    std::string path(quint32 folder, std::string_view name) const;

    // A result item with what enumeration recorded of the entry: path, sizes, dates, flags.
    ResultItem resultItem(const FileEntry &e) const;
    // The same without the path, into an existing item.
    void describe(const FileEntry &e, ResultItem &item) const;

    // Compares the full paths of two entries as byte strings without building them.
    int comparePaths(const FileEntry &a, const FileEntry &b) const;

private:
    MappedArray<FileEntry> m_entries;
    MappedArray<char> m_names;
    std::vector<ItemMetadata> m_metadata;
    std::vector<std::string> m_folders;
};

} // namespace selfsame
