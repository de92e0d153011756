#include "fileops/CachedDigestsCarrier.h"

#include "autoselect/AutoSelectRules.h"

namespace selfsame
{

DigestKey digestKeyOf(const ResultItem &item, bool headerSkipped)
{
    return {item.device,
            item.inode,
            item.size,
            item.modified * 1'000'000'000 + item.modifiedNsec,
            qint64(item.attributes) * 1'000'000'000 + item.changedNsec,
            headerSkipped};
}

CachedDigestsCarrier::CachedDigestsCarrier(const QList<ResultItem *> &items)
{
    for (ResultItem *item : items) {
        // A file in the trash may come back: put back, it keeps its content.
        const bool present = !isGone(*item) || (!item->trashedURL().isEmpty() && !item->has(Deleted));
        if (!item->has(IsFolder) && present && item->modifiedNsec >= 0 && item->changedNsec >= 0)
            m_before.insert(item, digestKeyOf(*item));
    }
}

int CachedDigestsCarrier::carryOver(DigestCache &cache) const
{
    std::vector<DigestKey> oldKeys;
    std::vector<DigestKey> newKeys;
    for (auto it = m_before.cbegin(); it != m_before.cend(); ++it) {
        const ResultItem &item = *it.key();
        // Links and desktop links stand for the file but are not it; trashed and deleted
        // files are gone from their path (a replacement deleted for good is marked deleted too,
        // while its clone or hard link holds the content at the path).
        const QString status = item.statusImage();
        const bool sameContent = status.isEmpty() ? !isGone(item) : status == u"hard linked" || status == u"cloned";
        const DigestKey &before = it.value();
        const DigestKey after = digestKeyOf(item);
        if (!sameContent || after.size != before.size || after.modifiedNs != before.modifiedNs ||
            (after.inode == before.inode && after.device == before.device && after.changedNs == before.changedNs))
            continue;
        for (const bool headerSkipped : {false, true}) {
            DigestKey from = before, to = after;
            from.headerSkipped = to.headerSkipped = headerSkipped;
            oldKeys.push_back(from);
            newKeys.push_back(to);
        }
    }
    std::vector<std::pair<DigestKey, CachedDigest>> records;
    cache.lookup(oldKeys, [&](std::size_t i, const CachedDigest &known) {
        // Where the file lies on the disk may have changed (a clone shares another's): that
        // part is worked out again.
        CachedDigest content;
        content.sample = known.sample;
        content.digest = known.digest;
        content.fingerprint = known.fingerprint;
        records.emplace_back(newKeys[i], content);
    });
    const int carried = int(records.size());
    cache.store(std::move(records));
    cache.flush();
    return carried;
}

} // namespace selfsame
