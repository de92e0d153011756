#pragma once

#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QStringList>

#include <memory>
#include <unordered_map>
#include <vector>

namespace selfsame {

// Where the files of one exact size are found, for duplicates of single files anywhere:
// the desktop's file index when one answers, else a walk of the folders in scope.
class ExactSizeIndex {
public:
    virtual ~ExactSizeIndex() = default;

    // Every file known with one of the sizes, by size; one walk or query serves them all.
    virtual std::unordered_map<qint64, QStringList> findFilesWithExactSizes(const std::vector<qint64> &sizes) = 0;
    QStringList findFilesWithExactSize(qint64 size) { return findFilesWithExactSizes({size})[size]; }

    // The desktop's index when it answers on the session bus, else a walk of `scope` (folders;
    // empty: the volumes of the request's locations). The index keeps to an explicit scope too.
    static std::unique_ptr<ExactSizeIndex> create(const QStringList &scope, const SearchRequest &request,
                                                  RunContext &context);
};

// The walk: every folder of the scope on the search's walker, pseudo file systems left out.
// An abort ends it within one item.
class VolumeScanIndex : public ExactSizeIndex {
public:
    VolumeScanIndex(QStringList folders, bool skipHiddenFiles, RunContext &context);
    std::unordered_map<qint64, QStringList> findFilesWithExactSizes(const std::vector<qint64> &sizes) override;

private:
    QStringList m_folders;
    bool m_skipHiddenFiles;
    RunContext &m_context;
};

// The top folder of the volume that holds `path` (the highest folder on its device).
QString volumeRoot(const QString &path);
// The volumes that hold `paths`, each once.
QStringList volumeRoots(const QStringList &paths);

} // namespace selfsame
