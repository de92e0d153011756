// Saving and reopening results: reads results written by `selfsame-cli --format json` (the
// same format), then saves them as a results window would and opens the saved file again,
// five times each. Opening includes checking every item against its file.
//   selfsame-results-file-bench RESULTS.json [WORK_FOLDER]

#include "results/ResultsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

using namespace selfsame;

namespace
{

double millisecondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void report(const char *step, std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("%-8s best %6.0f ms, median %6.0f ms, worst %6.0f ms\n", step, times.front(),
                times[times.size() / 2], times.back());
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() < 2) {
        std::fprintf(stderr, "usage: %s RESULTS.json [WORK_FOLDER]\n", argv[0]);
        return 2;
    }
    ResultsFile::Loaded source = ResultsFile::load(arguments[1]);
    if (!source.model) {
        std::fprintf(stderr, "%s\n", qPrintable(source.error));
        return 1;
    }
    const QTemporaryDir work(arguments.size() > 2 ? arguments[2] + QStringLiteral("/results-bench-XXXXXX")
                                                   : QDir::tempPath() + QStringLiteral("/results-bench-XXXXXX"));
    const QString saved = work.filePath(QStringLiteral("large.selfsame"));
    constexpr int kRuns = 5;
    std::vector<double> saving, opening;
    qsizetype missing = 0, items = 0;
    for (int run = 0; run < kRuns; ++run) {
        auto start = std::chrono::steady_clock::now();
        if (const QString error = ResultsFile::save(*source.model, saved); !error.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return 1;
        }
        saving.push_back(millisecondsSince(start));
        start = std::chrono::steady_clock::now();
        ResultsFile::Loaded reopened = ResultsFile::load(saved);
        opening.push_back(millisecondsSince(start));
        if (!reopened.model) {
            std::fprintf(stderr, "%s\n", qPrintable(reopened.error));
            return 1;
        }
        items = reopened.model->allItems().size();
        missing = std::count_if(reopened.model->allItems().begin(), reopened.model->allItems().end(),
                                [](const ResultItem &item) { return item.has(Missing); });
    }
    QSet<int> groups;
    for (const ResultItem &item : source.model->allItems()) groups.insert(item.group);
    std::printf("%lld items in %lld groups; saved file %.1f MB (the JSON read: %.1f MB); %lld marked missing\n",
                qint64(items), qint64(groups.size()), double(QFileInfo(saved).size()) / 1e6,
                double(QFileInfo(arguments[1]).size()) / 1e6, qint64(missing));
    report("save", saving);
    report("reopen", opening);
    return 0;
}
