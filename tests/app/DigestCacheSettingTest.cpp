#include "AppDelegate.h"
#include "Dupes.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "search/DigestCache.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

using namespace selfsame;

TEST(DigestCacheSetting, SearchesUseTheCacheUnlessTurnedOffAndTheMenuClearsIt)
{
    TempTree tree;
    tree.build({"a:3", "b:3"});
    QTemporaryDir config;
    Settings settings(config.filePath(QStringLiteral("Selfsame.conf")));
    AppDelegate window(settings);
    const QString cache = DigestCache::defaultPath();
    ASSERT_TRUE(cache.startsWith(qEnvironmentVariable("XDG_CACHE_HOME"))) << "never the user's own cache";
    DigestCache::clear(cache);
    auto search = [&] {
        Dupes *dupes = window.searchInFolderURLs({tree.path()});
        EXPECT_TRUE(dupes && QTest::qWaitFor([&] { return window.searchingCount() == 0; }, 20000));
        if (dupes)
            dupes->close();
    };

    settings.setValue(key::useDigestCache, false);
    search();
    EXPECT_FALSE(QFileInfo::exists(cache));

    settings.setValue(key::useDigestCache, true);
    search();
    EXPECT_TRUE(QFileInfo::exists(cache));

    QAction *clear = nullptr;
    for (QAction *menu : window.menuBar()->actions())
        for (QAction *action : menu->menu()->actions())
            if (action->text() == QStringLiteral("Clear Digest &Cache"))
                clear = action;
    ASSERT_TRUE(clear);
    clear->trigger();
    EXPECT_FALSE(QFileInfo::exists(cache));
}
