#include "autoselect/AutoSelectRules.h"

#include "results/ItemKeys.h"
#include "results/ListSort.h"
#include "results/NameCompare.h"

#include <algorithm>
#include <tuple>

namespace selfsame
{

namespace
{

struct NamedCopy {
    ResultItem *item;
    QString folder;
    QString baseName;  // lower case, without extension
    QString extension; // lower case
};

// Keeps the present member of the group with the greatest key and selects the other present
// members, unless no key tells them anything (`known` false for all).
template <typename KeyOf, typename Known>
void keepGreatest(AutoSelection &selection, const QList<ResultItem *> &from, qsizetype first, qsizetype last,
                  KeyOf keyOf, Known known)
{
    QList<ResultItem *> present;
    for (qsizetype i = first; i <= last; ++i)
        if (!isGone(*from[i])) present.append(from[i]);
    if (present.size() < 2 || std::none_of(present.begin(), present.end(), known)) return;
    // The first of equals stays: the group's own order decides ties.
    ResultItem *kept = present.first();
    for (ResultItem *item : present)
        if (keyOf(*kept) < keyOf(*item)) kept = item;
    selection.skip(kept);
    for (ResultItem *item : present)
        if (item != kept) selection.select(item);
}

} // namespace

void AutoSelection::select(ResultItem *item)
{
    if (!m_selectedSet.contains(item)) {
        m_selectedSet.insert(item);
        m_selected.append(item);
    }
}

void AutoSelection::skip(ResultItem *item)
{
    if (!m_skippedSet.contains(item)) {
        m_skippedSet.insert(item);
        m_skipped.append(item);
    }
}

QString dateKeyForTag(int tag)
{
    switch (tag) {
    case 0:
        return QStringLiteral("created");
    case 2:
        return QStringLiteral("lastUsed");
    case 3:
        return QStringLiteral("addedDate");
    default:
        return QStringLiteral("modified");
    }
}

int reverseInsideFolder(int condition)
{
    switch (condition) {
    case 1:
        return 3;
    case 2:
        return 0;
    case 3:
        return 1;
    default:
        return 2;
    }
}

bool isGone(const ResultItem &item)
{
    return !item.trashedURL().isEmpty() || item.has(Deleted);
}

void automaticallySelectSameFolderAndName(AutoSelection &selection, const QList<ResultItem *> &from,
                                          qsizetype first, qsizetype last)
{
    QList<NamedCopy> copies;
    for (qsizetype i = first; i <= last; ++i) {
        const QStringView name = from[i]->nameView();
        copies.append({from[i], from[i]->folder(), deletingPathExtension(name).toString().toLower(),
                       pathExtension(name).toString().toLower()});
    }
    std::stable_sort(copies.begin(), copies.end(), [](const NamedCopy &a, const NamedCopy &b) {
        return a.folder != b.folder ? a.folder < b.folder : a.baseName < b.baseName;
    });
    for (qsizetype start = 0; start < copies.size();) {
        const NamedCopy &original = copies[start];
        qsizetype end = start + 1;
        // Every copy is compared with the run's first name, not with the one before it.
        while (end < copies.size() && copies[end].folder == original.folder &&
               copies[end].extension == original.extension &&
               copies[end].baseName.startsWith(original.baseName))
            ++end;
        if (end - start >= 2 && !isGone(*original.item)) {
            selection.skip(original.item);
            for (qsizetype k = start + 1; k < end; ++k)
                if (!isGone(*copies[k].item)) selection.select(copies[k].item);
        }
        start = end;
    }
}

void automaticallySelectSameFolderWhateverTheName(AutoSelection &selection, const QString &dateKey,
                                                  bool oldest, const QList<ResultItem *> &from,
                                                  qsizetype first, qsizetype last)
{
    QList<NamedCopy> copies;
    for (qsizetype i = first; i <= last; ++i)
        copies.append({from[i], from[i]->folder(), {}, {}});
    std::stable_sort(copies.begin(), copies.end(), [&](const NamedCopy &a, const NamedCopy &b) {
        if (a.folder != b.folder) return a.folder < b.folder;
        const int byDate = compareItems(*a.item, *b.item, dateKey);
        return oldest ? byDate < 0 : byDate > 0;
    });
    for (qsizetype start = 0; start < copies.size();) {
        qsizetype end = start + 1;
        while (end < copies.size() && copies[end].folder == copies[start].folder)
            ++end;
        QList<ResultItem *> present;
        for (qsizetype k = start; k < end; ++k)
            if (!isGone(*copies[k].item)) present.append(copies[k].item);
        if (present.size() > 1) {
            selection.skip(present.first());
            for (qsizetype k = 1; k < present.size(); ++k)
                selection.select(present[k]);
        }
        start = end;
    }
}

void automaticallySelectLocated(AutoSelection &selection, int located, const QString &folder,
                                int dateCriterion, const QString &dateKey, const QList<ResultItem *> &from,
                                qsizetype first, qsizetype last)
{
    const QString below = folder + QLatin1Char('/');
    QList<ResultItem *> in, out;
    for (qsizetype i = first; i <= last; ++i) {
        ResultItem *item = from[i];
        if (isGone(*item)) continue;
        const QString parent = item->folder();
        const bool directly = parent == folder;
        const bool anyDepth = directly || parent.startsWith(below);
        bool matches = false;
        switch (located) {
        case DirectlyInside:
            matches = directly;
            break;
        case InsideAtAnyDepth:
            matches = anyDepth;
            break;
        case NotDirectlyInside:
            matches = !directly;
            break;
        case OutsideAtAnyDepth:
            matches = !anyDepth;
            break;
        default:
            break;
        }
        (matches ? in : out).append(item);
    }
    if (in.isEmpty() || out.isEmpty()) return;
    if (dateCriterion == AnyDate) {
        for (ResultItem *item : in)
            selection.select(item);
        for (ResultItem *item : out)
            selection.skip(item);
        return;
    }
    if (dateCriterion < LaterDate || dateCriterion > SameDate) return;
    for (ResultItem *a : in)
        for (ResultItem *b : out) {
            const QVariant dateA = itemValue(*a, dateKey), dateB = itemValue(*b, dateKey);
            if (!dateA.isValid() || !dateB.isValid()) continue;
            const int order = compareItems(*a, *b, dateKey);
            const bool holds = dateCriterion == LaterDate     ? order > 0
                               : dateCriterion == EarlierDate ? order < 0
                                                              : order == 0;
            if (holds) {
                selection.select(a);
                selection.skip(b);
            }
        }
}

void automaticallySelectHavingTag(AutoSelection &selection, bool exceptHaving, const QString &tag,
                                  const QList<ResultItem *> &from, qsizetype first, qsizetype last)
{
    const QString colourPrefix = tag.toLower() + QLatin1Char('\n');
    QList<ResultItem *> chosen, kept;
    for (qsizetype i = first; i <= last; ++i) {
        ResultItem *item = from[i];
        if (isGone(*item)) continue;
        const QStringList &tags = item->tagList();
        const bool has =
            tag.isEmpty() ? !tags.isEmpty() : std::any_of(tags.begin(), tags.end(), [&](const QString &t) {
                return t.compare(tag, Qt::CaseInsensitive) == 0 || t.toLower().startsWith(colourPrefix);
            });
        (has != exceptHaving ? chosen : kept).append(item);
    }
    if (chosen.isEmpty() || kept.isEmpty()) return;
    for (ResultItem *item : chosen)
        selection.select(item);
    for (ResultItem *item : kept)
        selection.skip(item);
}

void automaticallySelectContainedFolders(AutoSelection &selection, const QList<ResultItem *> &from,
                                         qsizetype first, qsizetype last)
{
    ResultItem *contained = nullptr, *container = nullptr;
    for (qsizetype i = first; i <= last; ++i) {
        if (from[i]->has(ContainedFolder)) contained = from[i];
        if (from[i]->has(ContainingFolder)) container = from[i];
    }
    // With either side gone, nothing is left to choose between.
    if (!contained || !container || isGone(*contained) || isGone(*container)) return;
    selection.select(contained);
    selection.skip(container);
}

bool hasLosslessAudio(const QString &codecs)
{
    // The decoder library's names; "pcm_…" covers WAV, AIFF and raw samples of every width.
    static const QStringList lossless{QStringLiteral("flac"),    QStringLiteral("alac"),   QStringLiteral("ape"),
                                      QStringLiteral("wavpack"), QStringLiteral("tta"),    QStringLiteral("tak"),
                                      QStringLiteral("shorten"), QStringLiteral("mlp"),    QStringLiteral("truehd"),
                                      QStringLiteral("wmalossless"), QStringLiteral("mp4als")};
    for (const QString &codec : codecs.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QString name = codec.trimmed().toLower();
        if (name.startsWith(QLatin1String("pcm_")) || lossless.contains(name)) return true;
    }
    return false;
}

void automaticallySelectKeepingLargestPicture(AutoSelection &selection, const QList<ResultItem *> &from,
                                              qsizetype first, qsizetype last)
{
    keepGreatest(
        selection, from, first, last,
        [](const ResultItem &item) { return std::make_tuple(pixelCount(item.pixelSize()).value_or(0), item.size); },
        [](const ResultItem *item) { return pixelCount(item->pixelSize()).has_value(); });
}

void automaticallySelectKeepingBestRecording(AutoSelection &selection, const QList<ResultItem *> &from,
                                             qsizetype first, qsizetype last)
{
    keepGreatest(
        selection, from, first, last,
        [](const ResultItem &item) { return std::make_tuple(item.bitrate(), hasLosslessAudio(item.codecs())); },
        [](const ResultItem *item) { return item->bitrate() > 0 || hasLosslessAudio(item->codecs()); });
}

} // namespace selfsame
