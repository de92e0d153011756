#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <string>
#include <sys/mman.h>
#include <vector>

namespace selfsame
{

// Gives a search's large tables (an entry per enumerated file) mappings of their own that the
// kernel may back with 2 MiB pages: filling them then costs one page fault per 2 MiB instead
// of one per 4 KiB, which on virtual machines is much of the time a walk spends storing what
// it found. A freed table goes back to the system at once. Small blocks use the usual heap.
template <typename T> struct LargeBlockAllocator {
    using value_type = T;

    static constexpr std::size_t kHugePage = std::size_t(2) << 20;
    static constexpr std::size_t kThreshold = 2 * kHugePage;

    LargeBlockAllocator() = default;
    template <typename U> LargeBlockAllocator(const LargeBlockAllocator<U> &) noexcept {}

    T *allocate(std::size_t n)
    {
        const std::size_t bytes = n * sizeof(T);
        if (bytes < kThreshold) return std::allocator<T>().allocate(n);
        // Mapped with a huge page of slack, then trimmed to start on a huge-page boundary.
        const std::size_t length = rounded(bytes);
        void *mapped =
            mmap(nullptr, length + kHugePage, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapped == MAP_FAILED) throw std::bad_alloc();
        const auto start = reinterpret_cast<std::uintptr_t>(mapped);
        const std::uintptr_t aligned = (start + kHugePage - 1) & ~(std::uintptr_t(kHugePage) - 1);
        if (aligned > start) munmap(mapped, aligned - start);
        if (const std::uintptr_t end = start + length + kHugePage; end > aligned + length)
            munmap(reinterpret_cast<void *>(aligned + length), end - aligned - length);
        madvise(reinterpret_cast<void *>(aligned), length, MADV_HUGEPAGE);
        return reinterpret_cast<T *>(aligned);
    }

    void deallocate(T *p, std::size_t n) noexcept
    {
        const std::size_t bytes = n * sizeof(T);
        if (bytes < kThreshold)
            std::allocator<T>().deallocate(p, n);
        else
            munmap(p, rounded(bytes));
    }

    template <typename U> bool operator==(const LargeBlockAllocator<U> &) const noexcept { return true; }

private:
    static std::size_t rounded(std::size_t bytes) { return (bytes + kHugePage - 1) & ~(kHugePage - 1); }
};

template <typename T> using LargeVector = std::vector<T, LargeBlockAllocator<T>>;

// Gives the pages past a large vector's last element back to the system; its capacity stays
// reserved and a page comes back, zero-filled, when the vector grows into it again.
template <typename T> void releaseUnusedCapacity(LargeVector<T> &vector)
{
    if (vector.capacity() * sizeof(T) < LargeBlockAllocator<T>::kThreshold)
        return; // on the heap, not a mapping of its own
    constexpr std::uintptr_t kPage = 4096;
    const auto used = reinterpret_cast<std::uintptr_t>(vector.data() + vector.size());
    const auto end = reinterpret_cast<std::uintptr_t>(vector.data() + vector.capacity());
    const std::uintptr_t from = (used + kPage - 1) & ~(kPage - 1);
    if (end > from) madvise(reinterpret_cast<void *>(from), end - from, MADV_DONTNEED);
}
using LargeString = std::basic_string<char, std::char_traits<char>, LargeBlockAllocator<char>>;

} // namespace selfsame
