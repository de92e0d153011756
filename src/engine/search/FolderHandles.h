#pragma once

#include "search/EntryTable.h"

#include <atomic>
#include <memory>

namespace selfsame {

// Path-only descriptors of the enumerated folders, opened on first use and shared by all
// hashing threads, so that a file is opened relative to its folder instead of walking its
// whole path again. Where descriptors are scarce, callers fall back to full paths.
class FolderHandles {
public:
    explicit FolderHandles(const EntryTable &entries);
    ~FolderHandles();
    FolderHandles(const FolderHandles &) = delete;
    FolderHandles &operator=(const FolderHandles &) = delete;

    // Opens the entry's file for reading; -1 when it cannot be opened.
    int openFile(const FileEntry &entry);

private:
    int folder(quint32 index);

    const EntryTable &m_entries;
    std::size_t m_count;
    std::unique_ptr<std::atomic<int>[]> m_handles; // -1: not opened yet, -2: could not be opened
    std::atomic<long> m_budget;                     // descriptors this table may still open
};

} // namespace selfsame
