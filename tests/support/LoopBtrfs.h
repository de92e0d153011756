#pragma once

#include "support/TempTree.h"

#include <QString>

#include <string>

// A btrfs image mounted on a loop device inside a TempTree, for reflink clones. Mounting
// needs root and mkfs.btrfs; `skipReason` says why it could not be had.
class LoopBtrfs {
public:
    LoopBtrfs(TempTree &tree, const QString &mountRel);
    ~LoopBtrfs();
    LoopBtrfs(const LoopBtrfs &) = delete;
    LoopBtrfs &operator=(const LoopBtrfs &) = delete;

    bool mounted() const { return m_mounted; }
    const std::string &skipReason() const { return m_skipReason; }
    // A reflink clone of `source` at `rel` (below the tree); the path, or empty on failure.
    QString clone(const QString &source, const QString &rel);

private:
    TempTree &m_tree;
    QString m_mountPoint;
    bool m_mounted = false;
    std::string m_skipReason;
};
