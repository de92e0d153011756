#include "CliOptions.h"

#include "CliPaths.h"
#include "CliText.h"
#include "SelectOptions.h"

#include "attributes/SpotlightAttributesManager.h"
#include "format/ByteSize.h"
#include "search/NamePatterns.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace selfsame::cli {

namespace {

bool takesValue(const QString &option)
{
    static const QStringList withValue = {"--min-size", "--max-size", "--ext", "--exclude-ext", "--skip",
                                          "--depth", "--format", "--mode", "--tolerance", "--attribute",
                                          "--suffixes", "--select", "--similarity"};
    return withValue.contains(option) || selectOptionTakesValue(option);
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
    return CliText::tr(
               "Usage: selfsame-cli [OPTIONS] PATH...\n"
               "       selfsame-cli [OPTIONS] --anywhere FILE [PATH...]\n"
               "       selfsame-cli put-back FILE...   (files in the trash, back to where they came from)\n"
               "       selfsame-cli clear-cache        (forget the file digests kept between searches)\n"
               "       selfsame-cli recover            (finish or roll back file actions that were "
               "interrupted)\n"
               "       selfsame-cli journal            (the file actions done, newest first, numbered)\n"
               "       selfsame-cli undo [ACTION]      (undo the last action, or the one of that number)\n"
               "Finds files (and with --compare-folders, folders) of equal content, or of equal duration,\n"
               "name or metadata attribute.\n"
               "\n"
               "  --include-hidden           search hidden files and folders (default: skipped)\n"
               "  --min-size SIZE            smallest file searched, default 1 (\"10 MB\", \"4KiB\", "
               "\"500\")\n"
               "  --max-size SIZE            largest file searched, default none\n"
               "  --no-size-filter           no size limits at all\n"
               "  --ext LIST                 only these extensions (comma or blank separated)\n"
               "  --exclude-ext LIST         all files but these extensions\n"
               "  --skip PATTERN             skip names matching a glob or /regex/ (repeatable)\n"
               "  --depth N                  levels below each location (1 = its direct children only)\n"
               "  --compare-folders          also find folders of equal content\n"
               "  --contained-folders        also find folders whose files all have copies inside one other\n"
               "                             searched folder, whatever their names and layout\n"
               "  --ignore-mp4-header        compare MP4 files without their first 16 KiB\n"
               "  --ignore-clones            leave out groups whose files already share their storage\n"
               "  --include-read-only        also search items you may not modify or delete\n"
               "  --include-other-owner      also search items owned by other users\n"
               "  --mode MODE                content (default), duration, name, attribute, similar-images\n"
               "                             (pictures that look alike) or similar-audio (the same "
               "recording\n"
               "                             in any format or bit rate)\n"
               "  --similarity N             similar modes: how alike, 0 to 100 (default 90: very similar)\n"
               "  --distinguish-greyscale    similar-images: a grey copy is not like its colour original\n"
               "  --tolerance N              duration and attribute modes: largest difference still equal, "
               "in\n"
               "                             seconds for durations and dates, seconds of arc for latitude "
               "and\n"
               "                             longitude, else the attribute's unit (default 0.1 s for "
               "durations, 0)\n"
               "  --attribute KEY            attribute mode: the attribute compared (default kMDItemTitle)\n"
               "  --ignore-extension         name mode: compare names without their extension\n"
               "  --ignore-suffixes          name mode: ignore copy suffixes (\" copy, copy #, #,-#, (#)\")\n"
               "  --suffixes LIST            name mode: ignore these comma-separated suffixes instead\n"
               "                             (\"#\" stands for a number from 1 to 99, \"##\" for any "
               "number)\n"
               "  --list-attributes [EXT]    list the attributes (key, name, type, description), or those\n"
               "                             that files with this extension can carry, and exit\n"
               "  --format text|json|csv     output format (default text: a blank line between groups)\n"
               "  -0, --print0               text output with each path as its exact bytes ended by a NUL\n"
               "                             instead of a newline, and one more NUL ending each group\n"
               "                             (text format only; for actions see below)\n"
               "  --summary                  counts to standard error\n"
               "  --anywhere                 the first path is a file: find its copies in the other paths,\n"
               "                             or without them anywhere on the file's drive\n"
               "  --no-cache                 read every compared file: neither use nor update the digest\n"
               "                             cache (kept in $XDG_CACHE_HOME/selfsame)\n"
               "  --select RULE [OPTIONS]    show which copies a selection rule picks (see below)\n"
               "  -h, --help                 show this help\n"
               "  --version                  show the version\n"
               "\n") +
           selectUsageText() +
           CliText::tr(
               "\n"
               "Without --print0 every path is shown on one line, escaped much as ls -b does: \\\\ for a\n"
               "backslash; \\n, \\t, \\r, \\a, \\b, \\f, \\v for those control characters; \\xHH for the\n"
               "bytes of any other control character and for each byte that is not UTF-8 (\\xFF); spaces\n"
               "stay as they are. Messages and file-action lines show paths the same way.\n"
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
    std::optional<double> tolerance;
    std::optional<int> similarity;
    bool distinguishGreyscale = false;
    std::optional<QString> suffixes;
    bool ignoreSuffixes = false, attributeGiven = false, anywhere = false, print0 = false;
    SelectRequest select;
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
            if (!takesValue(argument) && argument != QLatin1String("--list-attributes"))
                return fail(CliText::tr("option %1 takes no value").arg(argument));
        } else if (takesValue(argument)) {
            if (++i == arguments.size()) return fail(CliText::tr("option %1 needs a value").arg(argument));
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
                return fail(CliText::tr("invalid size for --min-size: '%1'").arg(value));
        } else if (argument == QLatin1String("--max-size")) {
            if (!parseSize(value, &request.maxFileSize))
                return fail(CliText::tr("invalid size for --max-size: '%1'").arg(value));
        } else if (argument == QLatin1String("--no-size-filter")) {
            request.filterFileSize = false;
        } else if (argument == QLatin1String("--ext") || argument == QLatin1String("--exclude-ext")) {
            if (extensionGiven) return fail(CliText::tr("give only one of --ext and --exclude-ext"));
            extensionGiven = true;
            request.extensions = normalizedExtensions(QString(value).replace(QLatin1Char(','), QLatin1Char(' ')));
            if (request.extensions.isEmpty())
                return fail(CliText::tr("%1 needs at least one extension").arg(argument));
            request.extensionsMode =
                argument == QLatin1String("--ext") ? ExtensionsMode::Only : ExtensionsMode::AllBut;
        } else if (argument == QLatin1String("--skip")) {
            skipLines.append(value);
        } else if (argument == QLatin1String("--depth")) {
            bool ok = false;
            const qint64 depth = value.toLongLong(&ok);
            if (!ok || depth < 1)
                return fail(CliText::tr("--depth needs a whole number of at least 1, not '%1'").arg(value));
            request.limitFolderDepth = depth - 1;
        } else if (argument == QLatin1String("--compare-folders")) {
            request.compareFolders = true;
        } else if (argument == QLatin1String("--contained-folders")) {
            request.containedFolders = true;
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
                return fail(CliText::tr("--format takes text, json or csv, not '%1'").arg(value));
        } else if (argument == QLatin1String("-0") || argument == QLatin1String("--print0")) {
            print0 = true;
        } else if (argument == QLatin1String("--summary")) {
            options.summary = true;
        } else if (argument == QLatin1String("--anywhere")) {
            anywhere = true;
        } else if (argument == QLatin1String("--no-cache")) {
            options.useCache = false;
        } else if (argument == QLatin1String("--mode")) {
            static const QStringList modes = {"content",   "duration",       "name",
                                              "attribute", "similar-images", "similar-audio"};
            const qsizetype mode = modes.indexOf(value);
            if (mode < 0)
                return fail(CliText::tr("--mode takes content, duration, name, attribute, similar-images or "
                                        "similar-audio, not '%1'")
                                .arg(value));
            request.detectionMode = DetectionMode(mode);
        } else if (argument == QLatin1String("--similarity")) {
            bool ok = false;
            similarity = value.toInt(&ok);
            if (!ok || *similarity < 0 || *similarity > 100)
                return fail(
                    CliText::tr("--similarity needs a whole number from 0 to 100, not '%1'").arg(value));
        } else if (argument == QLatin1String("--distinguish-greyscale")) {
            distinguishGreyscale = true;
        } else if (argument == QLatin1String("--tolerance")) {
            bool ok = false;
            tolerance = value.toDouble(&ok);
            if (!ok || *tolerance < 0)
                return fail(CliText::tr("--tolerance needs a number of at least 0, not '%1'").arg(value));
        } else if (argument == QLatin1String("--attribute")) {
            if (value.isEmpty()) return fail(CliText::tr("--attribute needs a key such as kMDItemTitle"));
            request.spotlightAttribute = value;
            attributeGiven = true;
        } else if (argument == QLatin1String("--ignore-extension")) {
            request.filenameIgnoreExtension = true;
        } else if (argument == QLatin1String("--ignore-suffixes")) {
            ignoreSuffixes = true;
        } else if (argument == QLatin1String("--suffixes")) {
            suffixes = value;
        } else if (argument == QLatin1String("--list-attributes")) {
            // The extension is optional: it is the next argument unless that is an option.
            options.listAttributes = QString();
            if (!value.isEmpty())
                options.listAttributes = value;
            else if (i + 1 < arguments.size() && !arguments[i + 1].startsWith(QLatin1Char('-')))
                options.listAttributes = arguments[++i];
        } else if (argument == QLatin1String("--select")) {
            if (!select.rule.isEmpty()) return fail(CliText::tr("give only one --select"));
            select.rule = value;
            const bool next = i + 1 < arguments.size();
            if (selectRuleTakesFolder(value)) {
                if (!next) return fail(CliText::tr("--select folder needs a folder"));
                select.operand = arguments[++i];
            } else if (selectRuleMayTakeTag(value) && next && !arguments[i + 1].startsWith(QLatin1Char('-'))) {
                select.operand = arguments[++i];
            }
        } else if (isSelectOption(argument)) {
            select.options.append({argument, value});
        } else if (argument.startsWith(QLatin1Char('-')) && argument.size() > 1) {
            return fail(CliText::tr("unknown option %1").arg(argument));
        } else {
            paths.append(argument);
        }
    }
    if (options.help || options.version || options.listAttributes)
        return result;

    if (print0 && options.format != OutputFormat::Text)
        return fail(CliText::tr("--print0 goes with the text format only"));
    if (print0)
        options.format = OutputFormat::NulTerminated;

    const DetectionMode mode = request.detectionMode;
    if (tolerance && mode != DetectionMode::Duration && mode != DetectionMode::Attribute)
        return fail(CliText::tr("--tolerance applies to the duration and attribute modes only"));
    if (similarity && !isSimilarityMode(mode))
        return fail(CliText::tr("--similarity applies to the similar-images and similar-audio modes only"));
    if (distinguishGreyscale && mode != DetectionMode::SimilarImages)
        return fail(CliText::tr("--distinguish-greyscale applies to the similar-images mode only"));
    request.similarity = similarity.value_or(kDefaultSimilarity);
    request.distinguishGreyscale = distinguishGreyscale;
    if (attributeGiven && mode != DetectionMode::Attribute)
        return fail(CliText::tr("--attribute applies to the attribute mode only"));
    if (request.containedFolders && mode != DetectionMode::Content)
        return fail(CliText::tr("--contained-folders applies to the content mode only"));
    if ((request.filenameIgnoreExtension || ignoreSuffixes || suffixes) && mode != DetectionMode::FileName)
        return fail(
            CliText::tr("--ignore-extension, --ignore-suffixes and --suffixes apply to the name mode only"));
    if (mode == DetectionMode::Duration && tolerance)
        request.durationTolerance = *tolerance;
    if (mode == DetectionMode::Attribute) {
        if (!attributeGiven)
            request.spotlightAttribute = QStringLiteral("kMDItemTitle");
        // Only numbers, dates and attributes of unknown type have a tolerance.
        const int type = SpotlightAttributesManager::GetTypeIDForSpotlightAttribute(request.spotlightAttribute);
        if (tolerance && (type == NumberType || type == DateType || type == AnyType))
            request.spotlightTolerance = *tolerance;
    }
    if (ignoreSuffixes || suffixes)
        request.filenameIgnoreCommonSuffixRegexes = compileCommonSuffixes(suffixes.value_or(QString()));

    if (!select.rule.isEmpty()) {
        AutoSelectSettings settings;
        const QString error = selectSettings(select, &settings);
        if (!error.isEmpty())
            return fail(error);
        options.select = settings;
    } else if (!select.options.isEmpty()) {
        return fail(CliText::tr("%1 needs --select").arg(select.options.first().first));
    }

    if (!skipLines.isEmpty()) {
        PatternError error;
        const auto expressions = compileSkipPatterns(skipLines, &error);
        if (!expressions) {
            result.error = invalidRegexMessage(error.pattern) + QLatin1Char('\n') + error.message;
            return result;
        }
        request.skipFilenameRegexes = *expressions;
    }

    if (paths.isEmpty()) return fail(CliText::tr("no folder or file to search"));
    if (anywhere) {
        const QString file = paths.takeFirst();
        if (!isRegularFile(file, Links::AsThemselves))
            return fail(CliText::tr("--anywhere needs a file, not '%1'").arg(escapedText(file)));
        request.searchInFolderURLs.append(absolutePath(file));
        request.findAllDupesForSingleFiles = true;
        for (const QString &path : paths) {
            if (pathExists(path))
                options.singleFileScope.append(absolutePath(path));
            else
                options.missingPaths.append(path);
        }
        if (!paths.isEmpty() && options.singleFileScope.isEmpty())
            result.error = CliText::tr("none of the given paths exists");
        return result;
    }
    for (const QString &path : paths) {
        if (!pathExists(path)) {
            options.missingPaths.append(path);
            continue;
        }
        request.searchInFolderURLs.append(absolutePath(path));
    }
    if (request.searchInFolderURLs.isEmpty()) result.error = CliText::tr("none of the given paths exists");
    return result;
}

} // namespace selfsame::cli
