#include "similar/SimilarGrouping.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace selfsame
{

namespace
{

// The hash split into `parts` runs of bits: two hashes within `parts - 1` bits of each other
// agree on at least one run.
class MultiIndex
{
public:
    MultiIndex(const std::vector<ImagePrint> &prints, int parts) : m_parts(std::clamp(parts, 1, 64))
    {
        m_tables.resize(std::size_t(m_parts));
        for (std::size_t i = 0; i < prints.size(); ++i)
            for (int p = 0; p < m_parts; ++p)
                m_tables[std::size_t(p)][part(prints[i].hash, p)].push_back(i);
    }

    template <typename Visit> void candidates(std::uint64_t hash, Visit &&visit) const
    {
        for (int p = 0; p < m_parts; ++p) {
            const auto &table = m_tables[std::size_t(p)];
            if (const auto it = table.find(part(hash, p)); it != table.end())
                for (std::size_t i : it->second)
                    visit(i);
        }
    }

private:
    std::uint64_t part(std::uint64_t hash, int p) const
    {
        const int begin = 64 * p / m_parts, end = 64 * (p + 1) / m_parts;
        const int bits = end - begin;
        return (hash >> begin) & (bits >= 64 ? ~std::uint64_t(0) : (std::uint64_t(1) << bits) - 1);
    }

    int m_parts;
    std::vector<std::unordered_map<std::uint64_t, std::vector<std::size_t>>> m_tables;
};

} // namespace

std::vector<SimilarGroup> groupPictures(const std::vector<ImagePrint> &prints,
                                        const std::vector<std::size_t> &order, int similarity,
                                        bool distinguishGreyscale)
{
    const int maxDistance = maxImageDistance(similarity);
    const MultiIndex index(prints, maxDistance + 1);
    std::vector<std::size_t> rank(prints.size());
    for (std::size_t k = 0; k < order.size(); ++k)
        rank[order[k]] = k;
    std::vector<bool> grouped(prints.size(), false);
    std::vector<std::size_t> seenBy(prints.size(), SIZE_MAX);
    std::vector<SimilarGroup> groups;
    for (const std::size_t anchor : order) {
        if (grouped[anchor]) continue;
        const ImagePrint &a = prints[anchor];
        std::vector<std::pair<std::size_t, int>> found; // (rank, distance)
        index.candidates(a.hash, [&](std::size_t i) {
            if (i == anchor || grouped[i] || seenBy[i] == anchor || rank[i] < rank[anchor]) return;
            seenBy[i] = anchor;
            if (distinguishGreyscale && prints[i].isGreyscale() != a.isGreyscale()) return;
            if (const int distance = hashDistance(a.hash, prints[i].hash); distance <= maxDistance)
                found.emplace_back(rank[i], distance);
        });
        if (found.empty()) continue;
        std::sort(found.begin(), found.end());
        SimilarGroup group;
        group.members.push_back(anchor);
        group.similarity.push_back(100.0);
        grouped[anchor] = true;
        for (const auto &[r, distance] : found) {
            group.members.push_back(order[r]);
            group.similarity.push_back(imageSimilarity(distance));
            grouped[order[r]] = true;
        }
        groups.push_back(std::move(group));
    }
    return groups;
}

double durationTolerance(double seconds)
{
    return std::max(1.0, 0.01 * seconds);
}

std::vector<SimilarGroup> groupRecordings(const std::vector<AudioPrint> &prints,
                                          const std::vector<double> &durations,
                                          const std::vector<std::size_t> &order, int similarity)
{
    std::vector<bool> grouped(prints.size(), false);
    std::vector<SimilarGroup> groups;
    for (std::size_t k = 0; k < order.size(); ++k) {
        const std::size_t anchor = order[k];
        if (grouped[anchor] || prints[anchor].empty()) continue;
        const double tolerance = durationTolerance(durations[anchor]);
        // Past this many whole seconds no later recording can be within the tolerance.
        const double lastSecond = std::round(durations[anchor]) - std::ceil(tolerance) - 1;
        SimilarGroup group;
        for (std::size_t j = k + 1; j < order.size() && std::round(durations[order[j]]) >= lastSecond; ++j) {
            const std::size_t other = order[j];
            if (grouped[other] || prints[other].empty() ||
                std::abs(durations[other] - durations[anchor]) > tolerance)
                continue;
            const double rate = fingerprintBitErrorRate(prints[anchor], prints[other]);
            const double alike = audioSimilarity(rate);
            if (rate > 0.5 || alike < similarity) continue;
            if (group.members.empty()) {
                group.members.push_back(anchor);
                group.similarity.push_back(100.0);
                grouped[anchor] = true;
            }
            group.members.push_back(other);
            group.similarity.push_back(std::round(alike));
            grouped[other] = true;
        }
        if (!group.members.empty()) groups.push_back(std::move(group));
    }
    return groups;
}

} // namespace selfsame
