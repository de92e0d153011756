#include "CliOptions.h"

#include "format/ByteSize.h"
#include "search/NamePatterns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace selfsame::cli {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("selfsame-cli", text); }

bool takesValue(const QString &option)
{
    static const QStringList withValue = {"--min-size", "--max-size", "--ext", "--exclude-ext",
                                          "--skip", "--depth", "--format"};
    return withValue.contains(option);
}

// Sizes are read as the application's size fields read them, but a text without any digit
// is refused here: on a command line it is a mistake, not an empty field.
bool parseSize(const QString &text, qint64 *bytes)
{
    if (!text.contains(QRegularExpression(QStringLiteral("\\d"))))
        return false;
    *bytes = stringToBytes(text);
    return true;
}

} // namespace

QString usageText()
{
    return tr("Usage: selfsame-cli [OPTIONS] PATH...\n"
              "       selfsame-cli put-back FILE...   (files in the trash, back to where they came from)\n"
              "Finds files (and with --compare-folders, folders) of equal content.\n"
              "\n"
              "  --include-hidden           search hidden files and folders (default: skipped)\n"
              "  --min-size SIZE            smallest file searched, default 1 (\"10 MB\", \"4KiB\", \"500\")\n"
              "  --max-size SIZE            largest file searched, default none\n"
              "  --no-size-filter           no size limits at all\n"
              "  --ext LIST                 only these extensions (comma or blank separated)\n"
              "  --exclude-ext LIST         all files but these extensions\n"
              "  --skip PATTERN             skip names matching a glob or /regex/ (repeatable)\n"
              "  --depth N                  levels below each location (1 = its direct children only)\n"
              "  --compare-folders          also find folders of equal content\n"
              "  --ignore-mp4-header        compare MP4 files without their first 16 KiB\n"
              "  --ignore-clones            leave out groups whose files already share their storage\n"
              "  --include-read-only        also search items you may not modify or delete\n"
              "  --include-other-owner      also search items owned by other users\n"
              "  --format text|json|csv     output format (default text: a blank line between groups)\n"
              "  --summary                  counts to standard error\n"
              "  -h, --help                 show this help\n"
              "  --version                  show the version\n"
              "\n"
              "Exit status: 0 duplicates found, 1 none found, 2 bad usage or input, 130 interrupted.\n");
}

ParseResult parseCommandLine(const QStringList &arguments)
{
    ParseResult result;
    CliOptions &options = result.options;
    SearchRequest &request = options.request;
    request.findAllDupesForSingleFiles = false;
    QStringList skipLines, paths;
    bool extensionGiven = false;
    auto fail = [&](const QString &error) {
        result.error = error;
        result.showUsage = true;
        return result;
    };

    for (qsizetype i = 0; i < arguments.size(); ++i) {
        QString argument = arguments[i];
        QString value;
        const qsizetype equals = argument.indexOf(QLatin1Char('='));
        if (argument.startsWith(QLatin1String("--")) && equals > 0) {
            value = argument.mid(equals + 1);
            argument.truncate(equals);
            if (!takesValue(argument))
                return fail(tr("option %1 takes no value").arg(argument));
        } else if (takesValue(argument)) {
            if (++i == arguments.size())
                return fail(tr("option %1 needs a value").arg(argument));
            value = arguments[i];
        }

        if (argument == QLatin1String("--")) {
            paths.append(arguments.mid(i + 1));
            break;
        } else if (argument == QLatin1String("-h") || argument == QLatin1String("--help")) {
            options.help = true;
        } else if (argument == QLatin1String("--version")) {
            options.version = true;
        } else if (argument == QLatin1String("--include-hidden")) {
            request.skipHiddenFiles = false;
        } else if (argument == QLatin1String("--min-size")) {
            if (!parseSize(value, &request.minFileSize))
                return fail(tr("invalid size for --min-size: '%1'").arg(value));
        } else if (argument == QLatin1String("--max-size")) {
            if (!parseSize(value, &request.maxFileSize))
                return fail(tr("invalid size for --max-size: '%1'").arg(value));
        } else if (argument == QLatin1String("--no-size-filter")) {
            request.filterFileSize = false;
        } else if (argument == QLatin1String("--ext") || argument == QLatin1String("--exclude-ext")) {
            if (extensionGiven)
                return fail(tr("give only one of --ext and --exclude-ext"));
            extensionGiven = true;
            request.extensions = normalizedExtensions(QString(value).replace(QLatin1Char(','), QLatin1Char(' ')));
            if (request.extensions.isEmpty())
                return fail(tr("%1 needs at least one extension").arg(argument));
            request.extensionsMode =
                argument == QLatin1String("--ext") ? ExtensionsMode::Only : ExtensionsMode::AllBut;
        } else if (argument == QLatin1String("--skip")) {
            skipLines.append(value);
        } else if (argument == QLatin1String("--depth")) {
            bool ok = false;
            const qint64 depth = value.toLongLong(&ok);
            if (!ok || depth < 1)
                return fail(tr("--depth needs a whole number of at least 1, not '%1'").arg(value));
            request.limitFolderDepth = depth - 1;
        } else if (argument == QLatin1String("--compare-folders")) {
            request.compareFolders = true;
        } else if (argument == QLatin1String("--ignore-mp4-header")) {
            request.ignoreMp4Header = true;
        } else if (argument == QLatin1String("--ignore-clones")) {
            request.ignoreClones = true;
        } else if (argument == QLatin1String("--include-read-only")) {
            request.ignoreNonWritable = false;
        } else if (argument == QLatin1String("--include-other-owner")) {
            request.ignoreOtherOwner = false;
        } else if (argument == QLatin1String("--format")) {
            if (value == QLatin1String("text"))
                options.format = OutputFormat::Text;
            else if (value == QLatin1String("json"))
                options.format = OutputFormat::Json;
            else if (value == QLatin1String("csv"))
                options.format = OutputFormat::Csv;
            else
                return fail(tr("--format takes text, json or csv, not '%1'").arg(value));
        } else if (argument == QLatin1String("--summary")) {
            options.summary = true;
        } else if (argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            return fail(tr("unknown option %1").arg(argument));
        } else {
            paths.append(argument);
        }
    }
    if (options.help || options.version)
        return result;

    if (!skipLines.isEmpty()) {
        PatternError error;
        const auto expressions = compileSkipPatterns(skipLines, &error);
        if (!expressions) {
            result.error = invalidRegexMessage(error.pattern) + QLatin1Char('\n') + error.message;
            return result;
        }
        request.skipFilenameRegexes = *expressions;
    }

    if (paths.isEmpty())
        return fail(tr("no folder or file to search"));
    for (const QString &path : paths) {
        const QFileInfo info(path);
        if (!info.exists()) {
            options.missingPaths.append(path);
            continue;
        }
        request.searchInFolderURLs.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    if (request.searchInFolderURLs.isEmpty())
        result.error = tr("none of the given paths exists");
    return result;
}

} // namespace selfsame::cli
