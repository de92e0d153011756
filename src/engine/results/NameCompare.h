#pragma once

#include <QString>
#include <QStringView>
#include <string>

namespace selfsame
{

// The extension of a file name: what follows its last dot, empty when the name has none or
// only a leading dot (".profile").
QStringView pathExtension(QStringView name);
QStringView deletingPathExtension(QStringView name);

// Plain string order of the lower-cased texts, without building them.
int compareLowercase(QStringView a, QStringView b);

// The order people expect in file lists: case and accents ignored, runs of digits compared by their
// value ("file 9" before "file 10"); texts equal that way fall back to plain order.
int naturalCompare(QStringView a, QStringView b);
// A text whose plain order is naturalCompare's before its final fall-back: folded alike, and
// each run of digits as a marker, its length and its digits without leading zeros. Sorting
// many items computes these once instead of comparing texts over and over.
void appendNaturalSortKey(QStringView text, std::u16string &out);

} // namespace selfsame
