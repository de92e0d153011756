#pragma once

// What the command-line tests that act on files share: a fixture that runs selfsame-cli in a
// private home, on the temporary folder's file system ("root") or on a volume mounted for the
// test, and a listing of the tree the actions leave.

#include "cli/CliProcess.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QDirIterator>
#include <QSet>
#include <gtest/gtest.h>

// Every entry below `folder`, relative to it, trash folders left out.
inline QSet<QString> entriesBelow(const QString &folder)
{
    QSet<QString> entries;
    QDirIterator it(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString relative = it.next().mid(folder.size() + 1);
        if (!relative.startsWith(QStringLiteral(".Trash"))) entries.insert(relative);
    }
    return entries;
}

class CliOnVolume : public ::testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        if (type() == u"root") {
            root = tree.path(QStringLiteral("files"));
        } else {
            if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
            root = volume.path();
        }
        const QString home = tree.path(QStringLiteral("home"));
        environment.insert(QStringLiteral("HOME"), home);
        environment.insert(QStringLiteral("XDG_CACHE_HOME"), home + QStringLiteral("/cache"));
        environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QStringLiteral("/data"));
        environment.insert(QStringLiteral("XDG_STATE_HOME"), home + QStringLiteral("/state"));
    }

    QString type() const { return QString::fromUtf8(GetParam()); }
    bool clones() const { return type() == u"btrfs" || type() == u"xfs"; }

    TempTree tree;
    MountedVolume volume{QString::fromUtf8(GetParam())};
    QString root;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
};
