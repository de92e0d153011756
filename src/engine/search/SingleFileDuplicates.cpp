#include "search/SingleFileDuplicates.h"

#include "names/FileNames.h"
#include "search/DigestCache.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <time.h>
#include <unistd.h>

namespace selfsame {

namespace {

qint64 nanoseconds(const statx_timestamp &t) { return qint64(t.tv_sec) * 1'000'000'000 + t.tv_nsec; }

// The size of a readable regular file, else nothing.
std::optional<qint64> regularFileSize(const QString &path)
{
    const QByteArray name = pathBytes(path);
    struct stat st;
    if (lstat(name.constData(), &st) != 0 || !S_ISREG(st.st_mode) || access(name.constData(), R_OK) != 0)
        return std::nullopt;
    return qint64(st.st_size);
}

} // namespace

SingleFileDuplicates::SingleFileDuplicates(const SearchRequest &request, RunContext &context, ExactSizeIndex &index)
    : m_request(request), m_context(context), m_index(index)
{
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    m_startedNs = qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

QStringList SingleFileDuplicates::extendedLocations()
{
    QStringList locations = m_request.searchInFolderURLs;
    std::vector<std::pair<QString, qint64>> singleFiles;
    std::vector<qint64> sizes;
    for (const QString &location : m_request.searchInFolderURLs)
        if (const auto size = regularFileSize(location)) {
            singleFiles.emplace_back(location, *size);
            sizes.push_back(*size);
        }
    if (singleFiles.empty())
        return locations;
    // One walk or query for all of them.
    std::unordered_map<qint64, QStringList> candidates = m_index.findFilesWithExactSizes(sizes);
    for (const auto &[path, size] : singleFiles) {
        if (m_context.aborted())
            break;
        for (const QString &copy : identicalAmong(path, size, candidates[size]))
            if (!m_request.searchInFolderURLs.contains(copy))
                locations.append(copy);
    }
    return locations;
}

QStringList SingleFileDuplicates::searchIdenticalUsingMDQuery(const QString &path)
{
    const auto size = regularFileSize(path);
    if (!size)
        return {};
    return identicalAmong(path, *size, m_index.findFilesWithExactSize(*size));
}

QStringList SingleFileDuplicates::identicalAmong(const QString &path, qint64 size, const QStringList &candidates)
{
    const QString own = QDir::cleanPath(path);
    if (candidates.isEmpty() || (candidates.size() == 1 && QDir::cleanPath(candidates.front()) == own))
        return {};
    const std::optional<Digest> digest = digestOf(own, size);
    QStringList identical;
    if (!digest)
        return identical;
    for (const QString &candidate : candidates) {
        if (m_context.aborted())
            break;
        if (QDir::cleanPath(candidate) == own)
            continue;
        const std::optional<Digest> other = digestOf(candidate, size);
        // A digest cut short by an abort covers only part of the file: it proves nothing.
        if (other && *other == *digest && !m_context.aborted())
            identical.append(candidate);
    }
    return identical;
}

std::optional<Digest> SingleFileDuplicates::digestOf(const QString &path, qint64 size)
{
    const QByteArray name = pathBytes(path);
    DigestCache *cache = m_context.digestCache;
    std::optional<DigestKey> key;
    std::optional<quint64> knownSample;
    struct statx st {};
    if (cache && statx(AT_FDCWD, name.constData(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS, &st) == 0 &&
        qint64(st.stx_size) == size && nanoseconds(st.stx_ctime) < m_startedNs - cache->options().settleNs &&
        nanoseconds(st.stx_mtime) < m_startedNs - cache->options().settleNs) {
        const auto slash = path.lastIndexOf(u'/');
        const bool skipped = skipsMp4Header(m_request.ignoreMp4Header, pathStdBytes(path.mid(slash + 1)), size);
        key = DigestKey{quint64(makedev(st.stx_dev_major, st.stx_dev_minor)), st.stx_ino, size,
                        nanoseconds(st.stx_mtime), nanoseconds(st.stx_ctime), skipped};
        if (const auto known = cache->lookup({*key}).front(); known && known->digest) {
            ++m_context.statistics.filesFromCache;
            return known->digest;
        } else if (known) {
            knownSample = known->sample;
        }
    }
    const DigestResult result = computeDigest(name.constData(), size, m_request.ignoreMp4Header, m_buffer,
                                              m_allocStorage, &m_context.searchingState, key.has_value());
    m_context.statistics.bytesRead += result.bytesRead;
    if (!result.digest) {
        if (!result.stopped)
            ++m_context.statistics.unreadableFiles;
        return std::nullopt;
    }
    ++m_context.statistics.filesHashed;
    const qint64 hashed = size - (key && key->headerSkipped ? kMp4HeaderSize : 0);
    if (key && result.bytesRead == hashed && !m_context.aborted())
        cache->store({{*key, {knownSample, result.digest, result.fingerprint, std::nullopt}}});
    return result.digest;
}

} // namespace selfsame
