#include "search/SweepSearch.h"

#include "names/FileNames.h"
#include "results/FileAttributes.h"
#include "search/FilenameSortKey.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>
#include <numeric>

namespace selfsame
{

namespace
{

enum class ValueKind { None, Number, Date, String };

ValueKind kindOf(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Double:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Bool:
        return ValueKind::Number;
    case QMetaType::QDateTime:
        return ValueKind::Date;
    case QMetaType::QString:
        return value.toString().isEmpty() ? ValueKind::None : ValueKind::String;
    default:
        return ValueKind::None;
    }
}

template <typename T> int order(const T &a, const T &b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

std::vector<std::size_t> identity(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

} // namespace

std::vector<SweepRun> sweep(std::size_t count, const std::function<bool(std::size_t)> &usable,
                            const std::function<bool(std::size_t, std::size_t)> &matches)
{
    std::vector<SweepRun> runs;
    for (std::size_t anchor = 0; anchor + 1 < count;) {
        if (!usable(anchor)) {
            ++anchor;
            continue;
        }
        std::size_t end = anchor + 1;
        while (end < count && matches(anchor, end))
            ++end;
        if (end - anchor >= 2) runs.push_back({anchor, end});
        anchor = end;
    }
    return runs;
}

int compareAttributeValues(const QVariant &a, const QVariant &b)
{
    const ValueKind ka = kindOf(a), kb = kindOf(b);
    if (ka != kb) return order(int(ka), int(kb));
    switch (ka) {
    case ValueKind::Number:
        return order(a.toDouble(), b.toDouble());
    case ValueKind::Date:
        return order(a.toDateTime().toMSecsSinceEpoch(), b.toDateTime().toMSecsSinceEpoch());
    case ValueKind::String:
        return order(a.toString(), b.toString());
    case ValueKind::None:
        break;
    }
    return 0;
}

bool attributeValueMatches(const QVariant &anchor, const QVariant &value, double tolerance)
{
    const ValueKind kind = kindOf(anchor);
    if (kind == ValueKind::None || kindOf(value) != kind) return false;
    switch (kind) {
    case ValueKind::Number:
        return value.toDouble() >= anchor.toDouble() - tolerance;
    case ValueKind::Date:
        return value.toDateTime().toMSecsSinceEpoch() >=
               anchor.toDateTime().toMSecsSinceEpoch() - qint64(std::llround(tolerance * 1000));
    default:
        return value.toString() == anchor.toString();
    }
}

std::vector<std::size_t> SweepSearch::sortedByDuration(std::vector<SweepRun> &runs)
{
    std::vector<std::size_t> sorted = identity(m_entries.size());
    std::stable_sort(sorted.begin(), sorted.end(), [&](std::size_t a, std::size_t b) {
        return m_entries.metadata(a).duration > m_entries.metadata(b).duration;
    });
    const double tolerance = m_request.durationTolerance;
    const auto duration = [&](std::size_t k) { return m_entries.metadata(sorted[k]).duration; };
    runs = sweep(
        sorted.size(), [&](std::size_t anchor) { return duration(anchor) > 0; },
        [&](std::size_t anchor, std::size_t k) {
            return std::fabs(duration(k) - duration(anchor)) <= tolerance;
        });
    return sorted;
}

std::vector<std::size_t> SweepSearch::sortedByName(std::vector<SweepRun> &runs)
{
    const FilenameSortKey key =
        getFilenameSortKey(m_request.filenameIgnoreExtension, m_request.filenameIgnoreCommonSuffixRegexes);
    // The compared text is made once per item rather than at every comparison.
    std::vector<QString> comparable(m_entries.size());
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const std::string_view name = m_entries.name(m_entries[i]);
        comparable[i] = key.comparable(key.keyValue(pathFromBytes(name)));
    }
    std::vector<std::size_t> sorted = identity(m_entries.size());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](std::size_t a, std::size_t b) { return comparable[a] < comparable[b]; });
    runs = sweep(
        sorted.size(), [](std::size_t) { return true; },
        [&](std::size_t anchor, std::size_t k) {
            return comparable[sorted[k]] == comparable[sorted[anchor]];
        });
    return sorted;
}

std::vector<std::size_t> SweepSearch::sortedByAttribute(std::vector<SweepRun> &runs)
{
    std::vector<std::size_t> sorted = identity(m_entries.size());
    const auto value = [&](std::size_t entry) -> const QVariant & {
        return m_entries.metadata(entry).spotlight;
    };
    std::stable_sort(sorted.begin(), sorted.end(), [&](std::size_t a, std::size_t b) {
        return compareAttributeValues(value(a), value(b)) > 0;
    });
    const double tolerance = m_request.spotlightTolerance;
    runs = sweep(
        sorted.size(), [&](std::size_t anchor) { return kindOf(value(sorted[anchor])) != ValueKind::None; },
        [&](std::size_t anchor, std::size_t k) {
            return attributeValueMatches(value(sorted[anchor]), value(sorted[k]), tolerance);
        });
    return sorted;
}

ResultItem SweepSearch::makeItem(std::size_t index) const
{
    const FileEntry &entry = m_entries[index];
    ResultItem item = m_entries.resultItem(entry);
    item.setTagList(readUserTags(pathBytes(item.path).constData()));
    if (m_request.detectionMode != DetectionMode::FileName) {
        const ItemMetadata &metadata = m_entries.metadata(index);
        item.setDuration(metadata.duration);
        item.setLatitude(metadata.latitude);
        item.setLongitude(metadata.longitude);
        item.setSpotlight(metadata.spotlight);
        item.setPixelSize(metadata.pixelSize);
        item.setCodecs(metadata.codecs);
        item.setBitrate(metadata.bitrate);
    }
    return item;
}

QList<ResultItem> SweepSearch::run()
{
    std::vector<SweepRun> runs;
    std::vector<std::size_t> sorted;
    switch (m_request.detectionMode) {
    case DetectionMode::Duration:
        sorted = sortedByDuration(runs);
        break;
    case DetectionMode::FileName:
        sorted = sortedByName(runs);
        break;
    case DetectionMode::Attribute:
        sorted = sortedByAttribute(runs);
        break;
    case DetectionMode::Content:
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        return {};
    }
    QList<ResultItem> items;
    int group = 0;
    for (const SweepRun &run : runs) {
        for (std::size_t k = run.begin; k < run.end; ++k) {
            ResultItem item = makeItem(sorted[k]);
            item.group = group;
            item.dupes = int(run.end - run.begin);
            items.push_back(std::move(item));
        }
        ++group;
    }
    return items;
}

} // namespace selfsame
