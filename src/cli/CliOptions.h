#pragma once

#include "autoselect/AutomaticSelection.h"
#include "search/SearchRequest.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace selfsame::cli {

// NulTerminated is the text format with each path as its exact bytes ended by a NUL (--print0).
enum class OutputFormat { Text, Json, Csv, NulTerminated };

struct CliOptions {
    SearchRequest request;
    OutputFormat format = OutputFormat::Text;
    bool summary = false;
    bool useCache = true; // keep and use file digests between searches
    QStringList singleFileScope; // --anywhere: the folders searched for copies; empty: the file's volume
    bool help = false;
    bool version = false;
    std::optional<QString> listAttributes; // list the catalogue: all of it (""), or for an extension
    QStringList missingPaths; // named on the command line but not found; the others are searched
    std::optional<AutoSelectSettings> select; // the rule whose choice is shown with the groups
};

struct ParseResult {
    CliOptions options;
    QString error; // empty when the command line is good
    bool showUsage = false; // the error is about the command line itself
};

// Turns the command line (without the program name) into a search request.
ParseResult parseCommandLine(const QStringList &arguments);
QString usageText();

} // namespace selfsame::cli
