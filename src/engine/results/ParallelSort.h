#pragma once

#include <algorithm>
#include <thread>

namespace selfsame
{

// std::stable_sort on several cores: the range is cut in halves that are sorted at the same
// time and merged, which keeps equal elements in their order, so the result is exactly the
// one of std::stable_sort. `less` is called from several threads at once and must only read.
template <typename Iterator, typename Less>
void parallelStableSort(Iterator first, Iterator last, Less less, unsigned threads = 0)
{
    constexpr auto kWorthSharing = 32'768; // below this a thread costs more than it saves
    if (threads == 0) threads = std::clamp(std::thread::hardware_concurrency(), 1u, 8u);
    if (threads < 2 || last - first < kWorthSharing) {
        std::stable_sort(first, last, less);
        return;
    }
    const Iterator middle = first + (last - first) / 2;
    std::thread firstHalf([&] { parallelStableSort(first, middle, less, threads / 2); });
    parallelStableSort(middle, last, less, threads - threads / 2);
    firstHalf.join();
    std::inplace_merge(first, middle, last, less);
}

} // namespace selfsame
