#include "similar/SimilarSearch.h"

#include "attributes/MetadataReader.h"
#include "format/Formatters.h"
#include "names/FileNames.h"
#include "results/FileAttributes.h"
#include "search/DigestCache.h"
#include "search/MetadataFilter.h"
#include "similar/MediaDecoding.h"
#include "similar/SimilarGrouping.h"

#include <QCoreApplication>
#include <QSet>
#include <algorithm>
#include <atomic>
#include <cmath>
#include <thread>

namespace selfsame
{

namespace
{

QStringView extensionOf(QStringView name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot <= 0 ? QStringView() : name.mid(dot + 1);
}

bool hasExtension(QStringView name, const QSet<QString> &extensions)
{
    return extensions.contains(extensionOf(name).toString().toLower());
}

// What a file's print stands beside: its size in pixels, or its duration, bit rate and codecs.
struct Details {
    qint64 width = 0, height = 0;
    bool rough = false; // a picture's print made from its thumbnail
    double duration = 0, bitrate = 0;
    QString codecs;

    QByteArray encoded(bool picture) const
    {
        if (picture)
            return QByteArray::number(width) + '\t' + QByteArray::number(height) +
                   (rough ? "\tthumbnail" : "");
        return QByteArray::number(duration, 'g', 17) + '\t' + QByteArray::number(bitrate, 'g', 17) + '\t' +
               codecs.toUtf8();
    }
    static Details decoded(const QByteArray &bytes, bool picture)
    {
        const QList<QByteArray> fields = bytes.split('\t');
        Details d;
        if (picture && (fields.size() == 2 || fields.size() == 3)) {
            d.width = fields[0].toLongLong();
            d.height = fields[1].toLongLong();
            d.rough = fields.size() == 3;
        } else if (!picture && fields.size() == 3) {
            d.duration = fields[0].toDouble();
            d.bitrate = fields[1].toDouble();
            d.codecs = QString::fromUtf8(fields[2]);
        }
        return d;
    }
};

struct Candidate {
    std::size_t entry = 0;
    QByteArray print; // encoded; empty when the file could not be decoded
    Details details;
    QString problem; // why it could not be
    bool fromCache = false;
    bool decoded = false; // its print is new: the cache should keep it
};

struct SimilarSearchText {
    Q_DECLARE_TR_FUNCTIONS(SimilarSearch)
};

// One run of a similar mode: the candidates, their prints, and the groups.
class PrintSearch
{
public:
    PrintSearch(const SearchRequest &request, const EntryTable &entries, qint64 startedNs,
                RunContext &context)
        : m_request(request), m_entries(entries), m_startedNs(startedNs), m_context(context),
          m_pictures(request.detectionMode == DetectionMode::SimilarImages)
    {
    }

    QList<ResultItem> run();

private:
    void collectCandidates();
    void takeFromCache();
    void decode(const std::vector<std::size_t> &positions, bool mayUseThumbnail, const char *status);
    void decodeOne(Candidate &candidate, bool mayUseThumbnail);
    std::vector<SimilarGroup> group();
    void storeInCache();
    QList<ResultItem> items(const std::vector<SimilarGroup> &groups);
    std::string path(std::size_t position) const
    {
        return m_entries.path(m_entries[m_candidates[position].entry]);
    }

    const SearchRequest &m_request;
    const EntryTable &m_entries;
    qint64 m_startedNs;
    RunContext &m_context;
    bool m_pictures;
    std::vector<Candidate> m_candidates;
    std::vector<std::size_t> m_keyed; // candidates whose key the cache may use
    std::vector<DigestKey> m_keys;
    std::vector<std::size_t> m_usable; // candidates with a print, the groups' indices point here
    bool m_onlyConfirmed = false;      // prints made from thumbnails are left out
};

void PrintSearch::collectCandidates()
{
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const FileEntry &entry = m_entries[i];
        if (!entry.isRegularFile()) continue;
        const QString name = pathFromBytes(m_entries.name(entry));
        if (m_pictures ? isPictureName(name) : isRecordingName(name))
            m_candidates.push_back({i, {}, {}, {}, false, false});
    }
}

// Prints of files that did not change since an earlier search come from the cache; files
// changed moments ago are left out of it, as their key may not show a second change.
void PrintSearch::takeFromCache()
{
    DigestCache *cache = m_context.digestCache;
    if (!cache) return;
    const qint64 settledBefore = m_startedNs - cache->options().settleNs;
    for (std::size_t c = 0; c < m_candidates.size(); ++c) {
        const FileEntry &e = m_entries[m_candidates[c].entry];
        if (e.modifiedNs >= settledBefore || e.changedNs >= settledBefore) continue;
        m_keyed.push_back(c);
        m_keys.push_back({e.device, e.inode, e.size, e.modifiedNs, e.changedNs, false});
    }
    const PrintKind kind = m_pictures ? PrintKind::Picture : PrintKind::Recording;
    cache->lookupPrints(kind, m_keys, [&](std::size_t k, CachedPrint found) {
        Candidate &candidate = m_candidates[m_keyed[k]];
        candidate.print = std::move(found.print);
        candidate.details = Details::decoded(found.details, m_pictures);
        candidate.fromCache = true;
    });
}

void PrintSearch::decodeOne(Candidate &candidate, bool mayUseThumbnail)
{
    const QByteArray file = QByteArray::fromStdString(m_entries.path(m_entries[candidate.entry]));
    candidate.decoded = true;
    candidate.print.clear();
    if (m_pictures) {
        const DecodedPicture decoded = decodePicture(file, mayUseThumbnail);
        const auto print = decoded.error.isEmpty() ? imagePrintOf(decoded.picture) : std::nullopt;
        if (!print) {
            candidate.problem =
                decoded.error.isEmpty() ? SimilarSearchText::tr("The picture is empty.") : decoded.error;
            return;
        }
        candidate.print = encodeImagePrint(*print);
        candidate.details.width = decoded.width;
        candidate.details.height = decoded.height;
        candidate.details.rough = decoded.picture.fromThumbnail;
        return;
    }
    const FingerprintedRecording recording = fingerprintRecording(file);
    if (!recording.error.isEmpty()) {
        candidate.problem = recording.error;
        return;
    }
    candidate.print = encodeAudioPrint(recording.print);
    const ItemMetadata metadata = MetadataFilter::itemMetadata(readMetadata(
        pathFromBytes(file), {QStringLiteral("kMDItemDurationSeconds"), QStringLiteral("kMDItemCodecs"),
                              QStringLiteral("kMDItemTotalBitRate")}));
    candidate.details.duration = metadata.duration;
    candidate.details.bitrate = metadata.bitrate;
    candidate.details.codecs = metadata.codecs;
}

// Decodes the candidates at `positions` on every core.
void PrintSearch::decode(const std::vector<std::size_t> &positions, bool mayUseThumbnail, const char *status)
{
    m_context.throttle.reset(); // a new phase shows at once
    std::atomic<std::size_t> next{0}, done{0};
    const std::size_t total = positions.size();
    auto work = [&] {
        for (std::size_t k; (k = next.fetch_add(1)) < total && !m_context.aborted();) {
            decodeOne(m_candidates[positions[k]], mayUseThumbnail);
            const std::size_t finished = done.fetch_add(1) + 1;
            m_context.status(
                [&] {
                    return SimilarSearchText::tr(status).arg(formatCount(qint64(finished)),
                                                             formatCount(qint64(total)));
                },
                double(finished) / double(total));
        }
    };
    std::vector<std::thread> workers;
    const unsigned threads = std::max(1u, std::min(std::thread::hardware_concurrency(), unsigned(total)));
    for (unsigned t = 1; t < threads; ++t)
        workers.emplace_back(work);
    work();
    for (std::thread &worker : workers)
        worker.join();
}

std::vector<SimilarGroup> PrintSearch::group()
{
    m_usable.clear();
    for (std::size_t c = 0; c < m_candidates.size(); ++c)
        if (!m_candidates[c].print.isEmpty() && !(m_onlyConfirmed && m_candidates[c].details.rough))
            m_usable.push_back(c);
    std::vector<std::size_t> order(m_usable.size());
    for (std::size_t k = 0; k < order.size(); ++k)
        order[k] = k;
    const auto details = [&](std::size_t k) -> const Details & { return m_candidates[m_usable[k]].details; };
    const auto tieBreak = [&](std::size_t a, std::size_t b) {
        const qint64 sa = m_entries[m_candidates[m_usable[a]].entry].size;
        const qint64 sb = m_entries[m_candidates[m_usable[b]].entry].size;
        return sa != sb ? sa > sb : path(m_usable[a]) < path(m_usable[b]);
    };
    if (m_pictures) {
        // The largest picture anchors its group: it is the one most worth keeping.
        std::vector<ImagePrint> prints(m_usable.size());
        for (std::size_t k = 0; k < m_usable.size(); ++k)
            prints[k] = *decodeImagePrint(m_candidates[m_usable[k]].print);
        const auto pixels = [&](std::size_t k) { return details(k).width * details(k).height; };
        std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return pixels(a) != pixels(b) ? pixels(a) > pixels(b) : tieBreak(a, b);
        });
        return groupPictures(prints, order, m_request.similarity, m_request.distinguishGreyscale);
    }
    // The longest recording anchors, and among those of the same whole seconds the highest bit
    // rate: encoders pad recordings by a fraction of a second.
    std::vector<AudioPrint> prints(m_usable.size());
    std::vector<double> durations(m_usable.size());
    for (std::size_t k = 0; k < m_usable.size(); ++k) {
        prints[k] = decodeAudioPrint(m_candidates[m_usable[k]].print);
        durations[k] = details(k).duration;
    }
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        const double secondsA = std::round(durations[a]), secondsB = std::round(durations[b]);
        if (secondsA != secondsB) return secondsA > secondsB;
        return details(a).bitrate != details(b).bitrate ? details(a).bitrate > details(b).bitrate
                                                        : tieBreak(a, b);
    });
    return groupRecordings(prints, durations, order, m_request.similarity);
}

void PrintSearch::storeInCache()
{
    DigestCache *cache = m_context.digestCache;
    if (!cache) return;
    std::vector<std::pair<DigestKey, CachedPrint>> records;
    for (std::size_t k = 0; k < m_keyed.size(); ++k) {
        const Candidate &candidate = m_candidates[m_keyed[k]];
        if (candidate.decoded && !candidate.print.isEmpty())
            records.push_back({m_keys[k], {candidate.print, candidate.details.encoded(m_pictures)}});
    }
    cache->storePrints(m_pictures ? PrintKind::Picture : PrintKind::Recording, records);
}

QList<ResultItem> PrintSearch::items(const std::vector<SimilarGroup> &groups)
{
    QList<ResultItem> items;
    for (std::size_t g = 0; g < groups.size(); ++g) {
        const SimilarGroup &group = groups[g];
        for (std::size_t m = 0; m < group.members.size(); ++m) {
            const Candidate &candidate = m_candidates[m_usable[group.members[m]]];
            ResultItem item = m_entries.resultItem(m_entries[candidate.entry]);
            item.setTagList(readUserTags(pathBytes(item.path).constData()));
            const Details &d = candidate.details;
            if (d.width > 0 && d.height > 0)
                item.setPixelSize(QStringLiteral("%1 × %2").arg(d.width).arg(d.height));
            item.setDuration(d.duration);
            item.setBitrate(d.bitrate);
            item.setCodecs(d.codecs);
            item.setSimilarity(group.similarity[m]);
            item.setMediaPrint(candidate.print);
            item.group = int(g);
            item.dupes = int(group.members.size());
            items.push_back(std::move(item));
        }
    }
    return items;
}

QList<ResultItem> PrintSearch::run()
{
    collectCandidates();
    takeFromCache();
    std::vector<std::size_t> toDecode;
    for (std::size_t c = 0; c < m_candidates.size(); ++c)
        if (!m_candidates[c].fromCache) toDecode.push_back(c);
    decode(toDecode, true,
           m_pictures ? QT_TRANSLATE_NOOP("SimilarSearch", "Looking at pictures… %1 of %2")
                      : QT_TRANSLATE_NOOP("SimilarSearch", "Listening to recordings… %1 of %2"));
    std::vector<SimilarGroup> groups;
    bool settled = false;
    if (!m_context.aborted()) {
        groups = group();
        // A match found through thumbnails is confirmed on the pictures themselves.
        std::vector<std::size_t> closer;
        for (const SimilarGroup &g : groups)
            for (const std::size_t member : g.members)
                if (m_candidates[m_usable[member]].details.rough) closer.push_back(m_usable[member]);
        settled = closer.empty();
        if (!settled)
            decode(closer, false,
                   QT_TRANSLATE_NOOP("SimilarSearch", "Looking closer at similar pictures… %1 of %2"));
    }
    if (!settled) {
        // Stopped, the groups hold the files looked at so far, and no match left unconfirmed.
        m_onlyConfirmed = m_context.aborted();
        groups = group();
    }

    storeInCache();
    for (const Candidate &candidate : m_candidates) {
        if (candidate.fromCache && !candidate.decoded) ++m_context.statistics.filesFromCache;
        if (candidate.problem.isEmpty()) continue;
        ++m_context.statistics.unreadableFiles;
        m_context.statistics.unreadableFilePaths.append(m_entries.qPath(m_entries[candidate.entry]));
    }
    return items(groups);
}

} // namespace

bool isPictureName(QStringView name)
{
    static const QSet<QString> extensions = {
        QStringLiteral("jpg"),  QStringLiteral("jpeg"), QStringLiteral("jpe"),  QStringLiteral("jfif"),
        QStringLiteral("png"),  QStringLiteral("webp"), QStringLiteral("gif"),  QStringLiteral("bmp"),
        QStringLiteral("tif"),  QStringLiteral("tiff"), QStringLiteral("heic"), QStringLiteral("heif"),
        QStringLiteral("avif"), QStringLiteral("cr2"),  QStringLiteral("cr3"),  QStringLiteral("nef"),
        QStringLiteral("nrw"),  QStringLiteral("arw"),  QStringLiteral("srf"),  QStringLiteral("sr2"),
        QStringLiteral("dng"),  QStringLiteral("orf"),  QStringLiteral("rw2"),  QStringLiteral("raf"),
        QStringLiteral("pef"),  QStringLiteral("srw"),  QStringLiteral("x3f"),  QStringLiteral("3fr"),
        QStringLiteral("erf"),  QStringLiteral("kdc"),  QStringLiteral("mrw"),  QStringLiteral("rwl"),
        QStringLiteral("iiq")};
    return hasExtension(name, extensions);
}

bool isRecordingName(QStringView name)
{
    static const QSet<QString> extensions = {
        QStringLiteral("wav"),  QStringLiteral("flac"), QStringLiteral("mp3"),  QStringLiteral("ogg"),
        QStringLiteral("oga"),  QStringLiteral("opus"), QStringLiteral("m4a"),  QStringLiteral("aac"),
        QStringLiteral("alac"), QStringLiteral("wma"),  QStringLiteral("ape"),  QStringLiteral("wv"),
        QStringLiteral("aif"),  QStringLiteral("aiff"), QStringLiteral("aifc"), QStringLiteral("mka"),
        QStringLiteral("mpc"),  QStringLiteral("mp2"),  QStringLiteral("tta"),  QStringLiteral("dsf"),
        QStringLiteral("m4b"),  QStringLiteral("caf")};
    return hasExtension(name, extensions);
}

QList<ResultItem> SimilarSearch::run()
{
    return PrintSearch(m_request, m_enumeration.entries, m_enumeration.startedNs, m_context).run();
}

} // namespace selfsame
