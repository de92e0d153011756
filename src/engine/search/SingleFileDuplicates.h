#pragma once

#include "search/Digest.h"
#include "search/ExactSizeIndex.h"
#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QStringList>

#include <optional>

namespace selfsame {

// Copies of single files anywhere in scope: the files of the same size that an index or a
// walk finds are digested, and those of equal content join the search as locations.
class SingleFileDuplicates {
public:
    SingleFileDuplicates(const SearchRequest &request, RunContext &context, ExactSizeIndex &index);

    // The request's locations, followed by the copies of each single-file location in the
    // order found, leaving out those that are locations already.
    QStringList extendedLocations();

    // The files with the content of `path`, itself excluded. Nothing is digested when no
    // other file has its size.
    QStringList searchIdenticalUsingMDQuery(const QString &path);

private:
    QStringList identicalAmong(const QString &path, qint64 size, const QStringList &candidates);
    std::optional<Digest> digestOf(const QString &path, qint64 size);

    const SearchRequest &m_request;
    RunContext &m_context;
    ExactSizeIndex &m_index;
    ReadBuffer m_buffer;
    std::vector<qint64> m_allocStorage;
    qint64 m_startedNs;
};

} // namespace selfsame
