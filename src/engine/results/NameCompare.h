#pragma once

#include <QString>
#include <QStringView>

namespace selfsame {

// The extension of a file name: what follows its last dot, empty when the name has none or
// only a leading dot (".profile").
QStringView pathExtension(QStringView name);
QStringView deletingPathExtension(QStringView name);

// Plain string order of the lower-cased texts, without building them.
int compareLowercase(QStringView a, QStringView b);

// The order people expect in file lists: case ignored, runs of digits compared by their
// value ("file 9" before "file 10"); texts equal that way fall back to plain order.
int naturalCompare(QStringView a, QStringView b);

} // namespace selfsame
