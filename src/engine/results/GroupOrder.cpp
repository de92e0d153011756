#include "results/GroupOrder.h"

#include "search/Digest.h"
#include "search/SweepSearch.h"

#include <QDateTime>
#include <algorithm>

namespace selfsame
{

namespace
{

template <typename T> int order(const T &a, const T &b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

int compareDigestsOf(const ResultItem &a, const ResultItem &b)
{
    if (!a.has(HasDigest) || !b.has(HasDigest)) return order(a.has(HasDigest), b.has(HasDigest));
    return compareDigests(a.digest, b.digest);
}

// A contained folder and its container share no content digest: their group number is their
// key, and they follow every group of equal content.
int containedGroupKey(const ResultItem &item)
{
    return item.has(ContainedFolder) || item.has(ContainingFolder) ? item.group : -1;
}

int compareContentKeys(const ResultItem &a, const ResultItem &b)
{
    if (const int byGroup = order(containedGroupKey(a), containedGroupKey(b))) return byGroup;
    return compareDigestsOf(a, b);
}

bool isNumber(const QVariant &v)
{
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Bool:
        return true;
    default:
        return false;
    }
}

// A probe of the attribute mode: the value moved by the tolerance where it has a distance.
QVariant shifted(const QVariant &value, double by)
{
    if (value.typeId() == QMetaType::QDateTime) return value.toDateTime().addMSecs(qint64(by * 1000.0));
    if (isNumber(value)) return value.toDouble() + by;
    return value;
}

// The first bytes of a digest in their order, ties decided by the whole digests.
struct DigestPrefix {
    int containedGroup;
    quint64 prefix;
    const ResultItem *item;
    bool operator<(const DigestPrefix &other) const
    {
        if (containedGroup != other.containedGroup) return containedGroup < other.containedGroup;
        if (prefix != other.prefix) return prefix < other.prefix;
        return compareDigestsOf(*item, *other.item) < 0;
    }
};

quint64 digestPrefix(const ResultItem &item)
{
    if (!item.has(HasDigest))
        return 0; // absent digests order first, and tie with digests of leading zero bytes
    quint64 prefix = 0;
    for (int i = 0; i < 8; ++i)
        prefix = prefix << 8 | item.digest[std::size_t(i)];
    return prefix;
}

// A stable sort by a key computed once per item.
template <typename KeyOf> void sortByKey(QList<ResultItem *> &items, KeyOf keyOf)
{
    using Key = decltype(keyOf(items.first()));
    std::vector<std::pair<Key, ResultItem *>> keyed;
    keyed.reserve(std::size_t(items.size()));
    for (ResultItem *item : items)
        keyed.emplace_back(keyOf(item), item);
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        items[qsizetype(i)] = keyed[i].second;
}

} // namespace

GroupOrder::GroupOrder(const SearchRequest &request)
    : m_mode(request.detectionMode), m_durationTolerance(request.durationTolerance),
      m_spotlightTolerance(request.spotlightTolerance),
      m_nameKey(
          getFilenameSortKey(request.filenameIgnoreExtension, request.filenameIgnoreCommonSuffixRegexes))
{
}

bool GroupOrder::isOrdered() const
{
    return int(m_mode) >= 0 && int(m_mode) <= int(kLastDetectionMode);
}

QString GroupOrder::nameKey(const ResultItem &item) const
{
    return m_nameKey.comparable(m_nameKey.keyValue(item.path));
}

int GroupOrder::compare(const ResultItem &a, const ResultItem &b) const
{
    switch (m_mode) {
    case DetectionMode::Content:
        return compareContentKeys(a, b);
    case DetectionMode::Duration:
        return order(a.duration(), b.duration());
    case DetectionMode::FileName:
        return order(nameKey(a), nameKey(b));
    case DetectionMode::Attribute:
        return compareAttributeValues(a.spotlight(), b.spotlight());
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        // Likeness is no equivalence (a is like b, b like c, a not like c): the search's
        // group number is the only key that puts exactly one group together.
        return order(a.group, b.group);
    }
    return 0;
}

void GroupOrder::sort(QList<ResultItem *> &items) const
{
    // The keys are taken out of the items first: comparing items in place would cost a cache
    // miss per item and comparison, and the names of the file-name mode cost regular expressions.
    switch (m_mode) {
    case DetectionMode::Content:
        sortByKey(items, [](const ResultItem *item) {
            return DigestPrefix{containedGroupKey(*item), digestPrefix(*item), item};
        });
        break;
    case DetectionMode::Duration:
        sortByKey(items, [](const ResultItem *item) { return item->duration(); });
        break;
    case DetectionMode::FileName:
        sortByKey(items, [this](const ResultItem *item) { return nameKey(*item); });
        break;
    case DetectionMode::Attribute:
        std::stable_sort(items.begin(), items.end(),
                         [this](const ResultItem *a, const ResultItem *b) { return compare(*a, *b) < 0; });
        break;
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        sortByKey(items, [](const ResultItem *item) { return item->group; });
        break;
    }
}

GroupOrder::Range GroupOrder::equalRange(const QList<ResultItem *> &sorted, const ResultItem &low,
                                         const ResultItem &high, bool lowMustBeEqual) const
{
    // First-equal search for the low probe, then last-equal search for the high one from there.
    const auto begin = std::lower_bound(
        sorted.begin(), sorted.end(), &low,
        [this](const ResultItem *x, const ResultItem *probe) { return compare(*x, *probe) < 0; });
    if (begin == sorted.end() || (lowMustBeEqual && compare(**begin, low) != 0)) return {0, 0};
    const auto end =
        std::upper_bound(begin, sorted.end(), &high, [this](const ResultItem *probe, const ResultItem *x) {
            return compare(*probe, *x) < 0;
        });
    return {begin - sorted.begin(), end - sorted.begin()};
}

QList<ResultItem *> GroupOrder::duplicatesFor(const QList<ResultItem *> &sorted, const ResultItem &item) const
{
    Range range{0, 0};
    switch (m_mode) {
    case DetectionMode::Content:
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        range = equalRange(sorted, item, item, true);
        break;
    case DetectionMode::FileName:
        range = equalRange(sorted, item, item, false);
        break;
    case DetectionMode::Duration: {
        ResultItem low, high;
        low.setDuration(item.duration() - m_durationTolerance);
        high.setDuration(item.duration() + m_durationTolerance);
        range = equalRange(sorted, low, high, false);
        break;
    }
    case DetectionMode::Attribute: {
        ResultItem low, high;
        low.setSpotlight(shifted(item.spotlight(), -m_spotlightTolerance));
        high.setSpotlight(shifted(item.spotlight(), m_spotlightTolerance));
        range = equalRange(sorted, low, high, false);
        break;
    }
    }
    QList<ResultItem *> members = sorted.mid(range.begin, range.end - range.begin);
    // An item the similar search placed in no group is like nothing: it stands alone.
    if (isSimilarityMode(m_mode) && item.group < 0) members.removeIf([&item](const ResultItem *x) { return x != &item; });
    return members;
}

} // namespace selfsame
