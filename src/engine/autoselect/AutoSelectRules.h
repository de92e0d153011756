#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QSet>
#include <QString>

namespace selfsame
{

// What a rule decided over all groups: the items to select (to discard) and the items it
// explicitly keeps. An item enters each list at most once.
class AutoSelection
{
public:
    void select(ResultItem *item);
    void skip(ResultItem *item);
    bool isSelected(const ResultItem *item) const { return m_selectedSet.contains(item); }
    bool isSkipped(const ResultItem *item) const { return m_skippedSet.contains(item); }
    const QList<ResultItem *> &selected() const { return m_selected; }
    const QList<ResultItem *> &skipped() const { return m_skipped; }

private:
    QList<ResultItem *> m_selected, m_skipped;
    QSet<const ResultItem *> m_selectedSet, m_skippedSet;
};

// Where the folder rule looks for the copies it selects, relative to its folder.
enum FolderLocation : int {
    DirectlyInside = 0,
    InsideAtAnyDepth = 1,
    NotDirectlyInside = 2,
    OutsideAtAnyDepth = 3
};
// Which of the folder rule's copies it selects: all of them, or those later, earlier or
// equal by a date than a copy elsewhere.
enum DateCriterion : int { AnyDate = 0, LaterDate = 1, EarlierDate = 2, SameDate = 3 };
// The tag rule selects the copies having the tag, having any tag, lacking the tag, or having none.
enum TagCondition : int { HavingTag = 0, HavingAnyTag = 1, NotHavingTag = 2, HavingNoTag = 3 };

// The item key of a date pop-up's tag: 0 "created", 1 "modified", 2 "lastUsed", 3 "addedDate".
QString dateKeyForTag(int tag);
// The opposite condition, in whose words the kept copies are described: 1→3, 2→0, 3→1, else 2.
int reverseInsideFolder(int condition);
inline int reverseHavingTag(int condition)
{
    return reverseInsideFolder(condition);
}

// Moved to the Bin or deleted already: no rule selects or keeps it.
bool isGone(const ResultItem &item);

// The rules, each applied to the items first..last (inclusive) of one group in `from`.
// Copies named like "name copy.ext" beside "name.ext" in one folder: the shortest name is kept.
void automaticallySelectSameFolderAndName(AutoSelection &selection, const QList<ResultItem *> &from,
                                          qsizetype first, qsizetype last);
// Copies in one folder whatever their names: the oldest (or newest) by the date is kept.
void automaticallySelectSameFolderWhateverTheName(AutoSelection &selection, const QString &dateKey,
                                                  bool oldest, const QList<ResultItem *> &from,
                                                  qsizetype first, qsizetype last);
// Copies located (by FolderLocation) relative to `folder`, optionally by a DateCriterion.
void automaticallySelectLocated(AutoSelection &selection, int located, const QString &folder,
                                int dateCriterion, const QString &dateKey, const QList<ResultItem *> &from,
                                qsizetype first, qsizetype last);
// Copies having the tag (any tag when `tag` is empty), or with `exceptHaving` those lacking it.
void automaticallySelectHavingTag(AutoSelection &selection, bool exceptHaving, const QString &tag,
                                  const QList<ResultItem *> &from, qsizetype first, qsizetype last);
// Pictures alike: the one of the most pixels is kept, the largest file among equals; a group
// where no picture has a known size is left alone.
void automaticallySelectKeepingLargestPicture(AutoSelection &selection, const QList<ResultItem *> &from,
                                              qsizetype first, qsizetype last);
// One recording in several files: the highest bit rate is kept, a lossless format among
// equals; a group where nothing tells them apart (no bit rate, no lossless codec) is left alone.
void automaticallySelectKeepingBestRecording(AutoSelection &selection, const QList<ResultItem *> &from,
                                             qsizetype first, qsizetype last);
// Groups of a contained folder and its container: the contained folder is selected, the
// container kept. Other groups are left alone.
void automaticallySelectContainedFolders(AutoSelection &selection, const QList<ResultItem *> &from,
                                         qsizetype first, qsizetype last);
// Whether the "codecs" text ("flac", "h264, pcm_s16le") names a lossless audio codec.
bool hasLosslessAudio(const QString &codecs);

} // namespace selfsame
