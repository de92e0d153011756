// selfsame-cli: the duplicate search without a window, for scripts and benchmarks.

#include "AttributeListing.h"
#include "CliOptions.h"
#include "CliPaths.h"
#include "CliText.h"
#include "FileActionOptions.h"
#include "FileActions.h"
#include "JournalCommands.h"
#include "PutBackCommand.h"
#include "ResultOutput.h"
#include "attributes/SpotlightAttributesManager.h"
#include "autoselect/AutomaticSelection.h"
#include "fileops/Replacement.h"
#include "language/Translations.h"
#include "results/ResultModel.h"
#include "search/DigestCache.h"
#include "search/DuplicateSearch.h"
#include "search/ReadingThreads.h"

#include <QCoreApplication>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace selfsame;
using namespace selfsame::cli;

namespace {

DuplicateSearch *g_search = nullptr;
std::atomic<bool> g_interrupted{false};

void interrupt(int)
{
    g_interrupted = true;
    if (g_search)
        g_search->abort(); // only atomics: safe in a signal handler
}

void writeAll(FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream);
    std::fflush(stream);
}

// The engine's status line, rewritten in place on a terminal.
void showProgress(const QString &status)
{
    winsize size{};
    const int width = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1 ? size.ws_col - 1 : 79;
    writeAll(stderr, "\r\x1b[K" + escapedText(status).left(width).toUtf8());
}

} // namespace

int main(int argc, char *argv[])
{
    selfsame::limitHeapsToCores();
    // Paths are bytes: read them before Qt decodes them lossily (or takes out its own options).
    const QStringList commandLine = argumentsFromBytes(argc, argv);
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("selfsame-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(SELFSAME_VERSION));
    installTranslations(&app);

    if (commandLine.value(1) == u"put-back")
        return runPutBack(commandLine.mid(2), [](const QByteArray &b) { writeAll(stdout, b); },
                          [](const QByteArray &b) { writeAll(stderr, b); });

    if (commandLine.value(1) == u"journal" && commandLine.size() == 2)
        return runJournalListing([](const QByteArray &b) { writeAll(stdout, b); },
                                 [](const QByteArray &b) { writeAll(stderr, b); });

    if (commandLine.value(1) == u"undo")
        return runUndo(commandLine.mid(2), [](const QByteArray &b) { writeAll(stdout, b); },
                       [](const QByteArray &b) { writeAll(stderr, b); });

    if (commandLine.value(1) == u"recover" && commandLine.size() == 2)
        return runRecover([](const QByteArray &b) { writeAll(stdout, b); },
                          [](const QByteArray &b) { writeAll(stderr, b); });

    if (commandLine.value(1) == u"clear-cache" && commandLine.size() == 2) {
        const QString path = escapedText(DigestCache::defaultPath());
        if (!DigestCache::clear(DigestCache::defaultPath())) {
            writeAll(stderr,
                     CliText::tr("selfsame-cli: cannot remove the digest cache %1\n").arg(path).toUtf8());
            return 1;
        }
        writeAll(stdout, CliText::tr("cleared the digest cache %1\n").arg(path).toUtf8());
        return 0;
    }

    QStringList arguments = commandLine.mid(1);
    FileActionOptions actionOptions;
    bool acting = false;
    if (const QString error = takeFileActionOptions(arguments, &actionOptions, &acting); !error.isEmpty()) {
        writeAll(stderr, QStringLiteral("selfsame-cli: %1\n").arg(error).toUtf8());
        return 2;
    }
    const ParseResult parsed = parseCommandLine(arguments);
    const CliOptions &options = parsed.options;
    if (options.help) {
        writeAll(stdout, (usageText() + u'\n' + fileActionUsageText()).toUtf8());
        return 0;
    }
    actionOptions.print0 = options.format == OutputFormat::NulTerminated;
    if (actionOptions.replaceWith != ReplaceWithNone && isSimilarityMode(options.request.detectionMode)) {
        writeAll(stderr, CliText::tr("selfsame-cli: --replace-with needs copies of the same content; the similar "
                                     "modes find files that only look or sound alike\n")
                             .toUtf8());
        return 2;
    }
    if (acting && !options.select && parsed.error.isEmpty()) {
        writeAll(stderr, CliText::tr("selfsame-cli: --trash, --delete and "
                                     "--replace-with act on the copies that "
                                     "--select selects\n")
                             .toUtf8());
        return 2;
    }
    if (options.version) {
        writeAll(stdout, "selfsame-cli " SELFSAME_VERSION "\n");
        return 0;
    }
    if (options.listAttributes) {
        const QString &extension = *options.listAttributes;
        const auto records =
            extension.isEmpty()
                ? std::optional<AttributeRecords>(*SpotlightAttributesManager::GetAllSpotlightAttributes())
                : SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension(extension, false);
        if (!records) {
            writeAll(stderr, CliText::tr("selfsame-cli: no file type is known for "
                                         "the extension '%1'\n")
                                 .arg(extension)
                                 .toUtf8());
            return 1;
        }
        writeAll(stdout, attributeListing(*records));
        return 0;
    }
    for (const QString &missing : options.missingPaths)
        writeAll(
            stderr,
            CliText::tr("selfsame-cli: no such file or folder: %1\n").arg(escapedText(missing)).toUtf8());
    if (!parsed.error.isEmpty()) {
        writeAll(stderr, QStringLiteral("selfsame-cli: %1\n").arg(parsed.error).toUtf8());
        if (parsed.showUsage)
            writeAll(stderr, "\n" + usageText().toUtf8());
        return 2;
    }

    DuplicateSearch::setDigestCachePath(options.useCache ? DigestCache::defaultPath() : QString());
    actionOptions.digestCachePath = options.useCache ? DigestCache::defaultPath() : QString();
    DuplicateSearch search;
    search.setSingleFileScope(options.singleFileScope);
    const bool terminal = isatty(STDERR_FILENO);
    if (terminal)
        QObject::connect(&search, &DuplicateSearch::progress, &app,
                         [](const QString &status, double) { showProgress(status); });
    int exitCode = 1;
    QObject::connect(&search, &DuplicateSearch::searchDone, &app, [&] {
        if (terminal)
            writeAll(stderr, "\r\x1b[K");
        for (const QString &path : search.statistics().unreadableFilePaths)
            writeAll(stderr,
                     (CliText::tr("selfsame-cli: cannot decode %1").arg(escapedText(path)) + u'\n').toUtf8());
        // With a selection rule the items go through the result model, as in a results window.
        ResultModel model;
        std::optional<AutoSelectOutcome> selected;
        if (options.select) {
            model.setResults(search.mainItems(), search.request());
            selected = performAutomaticallySelect(model, *options.select);
        }
        if (acting && selected && !search.aborted()) {
            exitCode = runFileActions(actionOptions, actionGroupsFor(model, selected->selection),
                                      [](const QByteArray &bytes) { writeAll(stdout, bytes); },
                                      [](const QByteArray &bytes) { writeAll(stderr, bytes); });
            QCoreApplication::exit(exitCode);
            return;
        }
        const QList<ResultItem> &items = options.select ? model.allItems() : search.mainItems();
        writeResults(items, search.request(), options.format, search.statistics(),
                     [](const QByteArray &bytes) { writeAll(stdout, bytes); },
                     selected ? &selected->selection : nullptr);
        if (options.summary)
            writeAll(stderr, summaryText(items, search.statistics()));
        if (search.statistics().stopped)
            writeAll(stderr, CliText::tr("selfsame-cli: interrupted: the output is partial, it holds only "
                                         "the groups found so far\n")
                                 .toUtf8());
        if (search.aborted())
            exitCode = 130;
        else if (!items.isEmpty())
            exitCode = 0;
        else if (terminal || options.summary)
            writeAll(stderr, emptyResultMessage(search.request().detectionMode, search.statistics())
                                 .message.toUtf8() + '\n');
        QCoreApplication::exit(exitCode);
    });

    g_search = &search;
    std::signal(SIGINT, interrupt);
    std::signal(SIGTERM, interrupt);
    search.searchInFolderURLs(options.request);
    // A signal that came before the search was running had nothing to abort.
    if (g_interrupted)
        search.abort();
    QCoreApplication::exec();
    g_search = nullptr;
    return exitCode;
}
