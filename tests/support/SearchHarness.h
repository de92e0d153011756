#pragma once

#include "search/SearchRun.h"

#include <QStringList>

#include <map>
#include <mutex>
#include <string>
#include <vector>

namespace selfsame {

// Runs searches on the calling thread and records the status texts they post, with their
// progress values. The clock stands still, so only the first message of every step gets
// through the throttle; once `clockRuns`, every reading of it is 0.1 s after the last, and
// every message gets through.
struct SearchHarness {
    std::atomic<int> state{Running};
    std::atomic<qint64> now{10'000'000};
    std::atomic<bool> clockRuns{false};
    StatusThrottle throttle{[this] { return clockRuns ? now += 100'001 : now.load(); }};
    std::mutex mutex;
    QStringList posted;
    std::vector<double> values;
    std::function<void(const QString &)> onPost;
    RunContext context{state, throttle,
                       [this](const QString &text, double value) {
                           std::lock_guard lock(mutex);
                           posted.append(text);
                           values.push_back(value);
                           if (onPost)
                               onPost(text);
                       },
                       {}, {}};

    QList<ResultItem> run(SearchRequest request, const QString &location)
    {
        if (request.searchInFolderURLs.isEmpty())
            request.searchInFolderURLs = {location};
        return SearchRun(request, context).run();
    }
};

// The groups in group order, each as its members' paths below `root` (folders end in "/"),
// sorted and joined by blanks; groups are separated by " | ".
inline std::string describeGroups(const QList<ResultItem> &items, const QString &root)
{
    std::map<int, QStringList> groups;
    for (const ResultItem &item : items) {
        groups[item.group].append(item.path.mid(root.size() + 1));
        if (item.has(IsFolder))
            groups[item.group].last() += u'/';
    }
    QStringList described;
    for (auto &[group, members] : groups) {
        members.sort();
        described.append(members.join(u' '));
    }
    return described.join(QStringLiteral(" | ")).toStdString();
}

inline std::string searchGroups(const QString &root, const SearchRequest &request = {})
{
    SearchHarness harness;
    return describeGroups(harness.run(request, root), root);
}

} // namespace selfsame
