#include "results/EnclosingFolders.h"

#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace selfsame;

TEST(EnclosingFolders, InnermostFirstUpToTheRootOfTheVolume)
{
    EXPECT_EQ(enclosingFolders(QStringLiteral("/a.txt")), QStringList{QStringLiteral("/")});

    MountedVolume volume(QStringLiteral("tmpfs"));
    if (const QString why = volume.mount(); !why.isEmpty())
        GTEST_SKIP() << why.toStdString();
    QDir().mkpath(volume.path(QStringLiteral("photos/2023")));
    EXPECT_EQ(enclosingFolders(volume.path(QStringLiteral("photos/2023/beach.jpg"))),
              (QStringList{volume.path(QStringLiteral("photos/2023")), volume.path(QStringLiteral("photos")),
                           volume.path()}));
    // A folder that is gone cannot tell its volume: the walk goes on to the root of the mount.
    EXPECT_EQ(enclosingFolders(volume.path(QStringLiteral("gone/x.jpg"))),
              (QStringList{volume.path(QStringLiteral("gone")), volume.path()}));
}
