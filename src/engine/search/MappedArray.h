#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <sys/mman.h>
#include <type_traits>
#include <utility>

namespace selfsame
{

// A table of plain values in one anonymous mapping that grows in place. A vector that
// outgrows its block copies it into one twice as large, so a walk of a million files briefly
// holds its table twice; the kernel moves a mapping's pages instead (mremap), and the last
// growth costs nothing beyond the table itself. The pages may be backed by 2 MiB pages, which
// saves most of the page faults of filling the table.
template <typename T> class MappedArray
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    MappedArray() = default;
    MappedArray(const MappedArray &) = delete;
    MappedArray &operator=(const MappedArray &) = delete;
    MappedArray(MappedArray &&other) noexcept { swap(other); }
    MappedArray &operator=(MappedArray &&other) noexcept
    {
        MappedArray(std::move(other)).swap(*this);
        return *this;
    }
    ~MappedArray()
    {
        if (m_data) munmap(m_data, m_capacityBytes);
    }

    std::size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    T *data() { return m_data; }
    const T *data() const { return m_data; }
    T &operator[](std::size_t i) { return m_data[i]; }
    const T &operator[](std::size_t i) const { return m_data[i]; }
    T *begin() { return m_data; }
    T *end() { return m_data + m_size; }
    const T *begin() const { return m_data; }
    const T *end() const { return m_data + m_size; }

    void push_back(const T &value)
    {
        reserve(m_size + 1);
        m_data[m_size++] = value;
    }
    void append(const T *values, std::size_t count)
    {
        if (count == 0) return;
        reserve(m_size + count);
        std::memcpy(static_cast<void *>(m_data + m_size), values, count * sizeof(T));
        m_size += count;
    }
    // Keeps the first `count` values and gives the pages past them back to the system.
    void truncate(std::size_t count)
    {
        m_size = std::min(count, m_size);
        const auto used = reinterpret_cast<std::uintptr_t>(m_data + m_size);
        const std::uintptr_t from = (used + kPage - 1) & ~(kPage - 1);
        const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(m_data) + m_capacityBytes;
        if (m_data && end > from) madvise(reinterpret_cast<void *>(from), end - from, MADV_DONTNEED);
    }

    void reserve(std::size_t count)
    {
        if (count * sizeof(T) <= m_capacityBytes) return;
        // Doubling keeps the number of moves small; a move copies page tables, not pages.
        const std::size_t bytes = rounded(std::max(count * sizeof(T), 2 * m_capacityBytes));
        void *grown = m_data
                          ? mremap(m_data, m_capacityBytes, bytes, MREMAP_MAYMOVE)
                          : mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (grown == MAP_FAILED) throw std::bad_alloc();
        madvise(grown, bytes, MADV_HUGEPAGE);
        m_data = static_cast<T *>(grown);
        m_capacityBytes = bytes;
    }

    void swap(MappedArray &other) noexcept
    {
        std::swap(m_data, other.m_data);
        std::swap(m_size, other.m_size);
        std::swap(m_capacityBytes, other.m_capacityBytes);
    }

private:
    static constexpr std::uintptr_t kPage = 4096;
    static constexpr std::size_t kHugePage = std::size_t(2) << 20;
    static std::size_t rounded(std::size_t bytes) { return (bytes + kHugePage - 1) & ~(kHugePage - 1); }

    T *m_data = nullptr;
    std::size_t m_size = 0;
    std::size_t m_capacityBytes = 0;
};

} // namespace selfsame
