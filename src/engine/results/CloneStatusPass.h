#pragma once

#include "results/ResultItem.h"
#include "search/Digest.h"
#include "search/SearchRequest.h"

#include <memory>
#include <vector>

namespace selfsame
{

// Decides the CloneStatus of bottom-list rows against the selected item, looking at the
// files as they are now. Outside the content mode, items of equal size get their content
// digests computed on demand (and kept in the items), sharing one large buffer per pass.
class CloneStatusPass
{
public:
    static constexpr std::size_t kBufferSize = 134'217'728;

    CloneStatusPass(DetectionMode mode, bool ignoreMp4Header)
        : m_mode(mode), m_ignoreMp4Header(ignoreMp4Header)
    {
    }
    CloneStatus statusOf(ResultItem &selected, ResultItem &other);

private:
    void ensureDigests(ResultItem &item);

    DetectionMode m_mode;
    bool m_ignoreMp4Header;
    std::unique_ptr<ReadBuffer> m_buffer; // allocated by the first digest that needs it
    std::vector<qint64> m_allocStorage;
};

} // namespace selfsame
