#pragma once

#include "results/ResultItem.h"

#include <QByteArray>
#include <QList>

#include <chrono>
#include <ctime>
#include <random>

namespace selfsame
{

// Wall and processor time of one step: on a shared machine the processor time is the
// steadier figure (the timed steps run on one thread).
struct Timer {
    std::chrono::steady_clock::time_point wall = std::chrono::steady_clock::now();
    std::clock_t cpu = std::clock();
    double wallMs() const
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - wall).count();
    }
    QByteArray stop(int repeats = 1) const;
};

// Small blocks from the heap plus the large ones that malloc maps on their own.
std::size_t heapInUse();

// Items as a content search of a large photo and document collection leaves them: paths in a
// few thousand folders with numbered names, `groups` groups of equal digests spread evenly.
QList<ResultItem> syntheticItems(int count, int groups, std::mt19937_64 &random);

} // namespace selfsame
