#include "search/MappedArray.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <string_view>
#include <vector>

namespace selfsame
{
namespace
{

struct Wide {
    std::uint64_t key;
    std::uint32_t value;
};

// Growing moves the mapping several times (2 MiB, then doubling): every value written before
// a move must still be there after it, whether it came one at a time or in runs.
TEST(MappedArray, KeepsEveryValueAcrossGrowthAndTruncation)
{
    MappedArray<Wide> table;
    std::vector<Wide> run;
    for (std::uint32_t i = 0; i < 1000; ++i)
        run.push_back({std::uint64_t(i) * 7919, i});
    std::uint32_t next = 0;
    while (table.size() < 600'000) { // about 9 MiB: three moves
        if (next % 3 == 0) {
            for (Wide &w : run)
                w.key += 1;
            table.append(run.data(), run.size());
            next += 1;
        } else {
            table.push_back({0, next++});
        }
    }
    std::size_t at = 0;
    for (std::uint32_t n = 0; n < next; ++n) {
        if (n % 3 == 0) {
            for (std::uint32_t i = 0; i < 1000; ++i, ++at)
                ASSERT_EQ(table[at].key, std::uint64_t(i) * 7919 + n / 3 + 1) << "at " << at;
        } else {
            ASSERT_EQ(table[at].value, n) << "at " << at;
            ++at;
        }
    }
    ASSERT_EQ(at, table.size());

    const std::uint64_t lastKept = table[12344].key;
    table.truncate(12345);
    EXPECT_EQ(table.size(), 12345u);
    EXPECT_EQ(table[12344].key, lastKept); // the page it shares with dropped values is kept
    table.push_back({42, 42});             // pages given back come back zero-filled and writable
    EXPECT_EQ(table[12345].key, 42u);

    MappedArray<Wide> moved(std::move(table));
    EXPECT_EQ(moved.size(), 12346u);
    EXPECT_TRUE(table.empty()); // NOLINT(bugprone-use-after-move): a moved-from table is empty
    table.push_back({1, 1});
    EXPECT_EQ(table.size(), 1u);

    MappedArray<char> names;
    const std::string_view name = "a name";
    for (int i = 0; i < 1'000'000; ++i)
        names.append(name.data(), name.size());
    EXPECT_EQ(std::string_view(names.data() + 6 * 999'999, 6), name);
}

} // namespace
} // namespace selfsame
