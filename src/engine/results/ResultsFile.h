#pragma once

#include "results/ListSort.h"
#include "results/ResultModel.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace selfsame {

class JsonWriter;

// Saved results: a search's request, its items with every stored key and state, and how the
// top list showed them, as versioned JSON (gzip-compressed when large). The format is
// described in docs/results-format.md.
namespace ResultsFile {

inline constexpr int kFormatVersion = 1;
inline constexpr QLatin1String kFormatName("selfsame-results");
inline constexpr QLatin1String kSuffix("selfsame");
// Results above this many bytes of JSON are saved compressed.
inline constexpr qsizetype kCompressAbove = 1 << 20;

// What a file holds besides the items of its groups.
struct Content {
    const SearchRequest *request = nullptr;
    QList<QList<const ResultItem *>> groups; // in file order; items in their group's order
    // The top list when saved from a window: its rows (a hidden item is in none) and sort.
    std::optional<QList<const ResultItem *>> topList;
    std::optional<SortDescriptor> topSort;
    bool hiddenByAutomaticSelection = false;
    bool partial = false; // the search was stopped before its end; written only when true
    // Extra keys of an item or of the whole file (the command line's selection and counts).
    std::function<void(JsonWriter &, const ResultItem &)> writeItemExtras;
    std::function<void(JsonWriter &)> writeFileExtras;
};

// The content of a results window: every item grouped by group number.
Content contentOf(const ResultModel &model);

// Writes the JSON text a piece at a time to `sink`.
void write(const Content &content, const std::function<void(const QByteArray &)> &sink);

// Saves the window's results to `path`, replacing it only once the whole file is written.
// Returns an error message, empty on success.
QString save(const ResultModel &model, const QString &path);

struct Loaded {
    std::optional<ResultModel> model; // set on success
    QString error;                    // why the file could not be opened, otherwise
};

// Reads a results file, compressed or plain, and marks the items that vanished or changed
// since (Missing). A truncated, foreign, damaged or newer file gives a message naming the
// problem and no model.
Loaded load(const QString &path);
// The same from the file's bytes; `name` is how messages call the file.
Loaded fromBytes(QByteArray bytes, const QString &name);

} // namespace ResultsFile

} // namespace selfsame
