#include "results/ParallelSort.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

using namespace selfsame;

// Equal keys must keep their order exactly as a sequential stable sort keeps it, whatever
// the number of threads, or a re-sorted list would shuffle the rows of a group.
TEST(ParallelSort, GivesExactlyTheOrderOfAStableSort)
{
    struct Row {
        int key, position;
        bool operator==(const Row &) const = default;
    };
    std::mt19937 random(7);
    std::vector<Row> rows;
    for (int i = 0; i < 200'000; ++i)
        rows.push_back({int(random() % 500), i});
    const auto byKey = [](const Row &a, const Row &b) { return a.key < b.key; };
    std::vector<Row> expected = rows;
    std::stable_sort(expected.begin(), expected.end(), byKey);
    for (unsigned threads : {1u, 2u, 3u, 8u}) {
        std::vector<Row> sorted = rows;
        parallelStableSort(sorted.begin(), sorted.end(), byKey, threads);
        EXPECT_TRUE(sorted == expected) << threads << " threads";
    }
    std::vector<Row> descending = rows;
    parallelStableSort(descending.begin(), descending.end(), [](const Row &a, const Row &b) { return a.key > b.key; });
    EXPECT_EQ(descending.front().key, 499);
    EXPECT_LT(descending.front().position, descending[1].position);
}
