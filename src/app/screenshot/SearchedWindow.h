#pragma once

#include "search/SearchRequest.h"

#include <QDir>
#include <QSize>
#include <QStringList>

namespace selfsame {
class Dupes;
class Settings;

// Lets the event loop run for `ms` milliseconds: thumbnails and repaints land.
void settle(int ms);

// A results window, shown (at `size` when one is given, else at its default size) with the
// search of `locations` in `mode` finished.
Dupes *searchedWindow(Settings &settings, DetectionMode mode, const QStringList &locations,
                      const QString &attribute = {}, QSize size = {});
// The same for a request of any options.
Dupes *searchedWindow(Settings &settings, const SearchRequest &request, QSize size = {});

// Selects one row of the top list and gives that list the focus.
void selectRow(Dupes *dupes, int row);
// Saves the window's picture once its thumbnails have come, and deletes the window.
void save(Dupes *dupes, const QDir &output, const QString &name);

} // namespace selfsame
