#pragma once

#include "containment/ContainedFolders.h"
#include "results/ResultItem.h"

#include <QList>

namespace selfsame {

// One group per contained folder, numbered on from `firstGroup`: the contained folder first,
// then its container, each with the sums of its listed files. A folder gone since it was
// listed leaves its group out.
QList<ResultItem> containedGroupItems(const std::vector<Containment> &found, int firstGroup);

// Whether the items form a group of a folder and its container.
inline bool isContainedGroup(const ResultItem &member)
{
    return member.has(ContainedFolder) || member.has(ContainingFolder);
}

} // namespace selfsame
