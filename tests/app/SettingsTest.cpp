#include "Settings.h"

#include "SearchDefaults.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

struct SettingsFile {
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("Selfsame.conf"));
    QByteArray contents()
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace

TEST(Settings, RegisteredDefaultsAreReadButNeverWritten)
{
    SettingsFile file;
    {
        Settings settings(file.path);
        registerSearchDefaults(settings);
        EXPECT_TRUE(settings.boolValue(key::skipHiddenFiles));
        EXPECT_TRUE(settings.boolValue(key::findAllDupesForSingleFiles));
        EXPECT_FALSE(settings.boolValue(key::compareFolders));
        EXPECT_EQ(settings.integerValue(key::limitFolderDepth), -1);
        EXPECT_EQ(settings.integerValue(key::minFileSize), 1);
        EXPECT_EQ(settings.integerValue(key::maxFileSize), 0);
        EXPECT_DOUBLE_EQ(settings.doubleValue(key::durationTolerance), 0.1);
        EXPECT_EQ(settings.stringValue(key::spotlightAttribute), QStringLiteral("kMDItemTitle"));
        EXPECT_EQ(settings.stringValue(key::commonSuffixes), QStringLiteral(" copy, copy #, #,-#, (#)"));
        const QStringList active = settings.stringListValue(key::activeSpotlightAttributes);
        ASSERT_EQ(active.size(), 15);
        EXPECT_EQ(active.first(), QStringLiteral("kMDItemContentCreationDate"));
        EXPECT_EQ(active.last(), QStringLiteral("kMDItemAestheticScore"));
        EXPECT_FALSE(settings.isStored(key::skipHiddenFiles));
        // Saving the options of a search writes only what differs from the defaults, and a
        // value set back to its default leaves the file.
        settings.setValue(key::skipHiddenFiles, true);
        settings.setValue(key::minFileSize, qint64(1));
        settings.setValue(key::compareFolders, true);
        EXPECT_FALSE(settings.isStored(key::skipHiddenFiles));
        EXPECT_FALSE(settings.isStored(key::minFileSize)) << "an int64 1 is the default int 1";
        EXPECT_TRUE(settings.isStored(key::compareFolders));
        settings.setValue(key::compareFolders, false);
        EXPECT_FALSE(settings.isStored(key::compareFolders));
        settings.sync();
    }
    EXPECT_FALSE(file.contents().contains("skip"));
    EXPECT_FALSE(file.contents().contains("compare"));

    Settings reopened(file.path);
    EXPECT_FALSE(reopened.value(key::skipHiddenFiles).isValid()) << "defaults live in memory only";
}

TEST(Settings, StoredValuesSurviveReopeningWithTheirTypes)
{
    SettingsFile file;
    {
        Settings settings(file.path);
        registerSearchDefaults(settings);
        settings.setValue(key::skipHiddenFiles, false);
        settings.setValue(key::limitFolderDepth, qint64(-1));
        settings.setValue(key::maxFileSize, qint64(5'000'000'000'000));
        settings.setValue(key::durationTolerance, 2.5);
        settings.setValue(key::commonSuffixes, QStringLiteral(" copy, (#) "));
        settings.setValue(key::skipFilenamePatterns, QStringLiteral("*.tmp\n/^~\\$/\n"));
        settings.setValue(key::activeSpotlightAttributes, QStringList{QStringLiteral("kMDItemTitle")});
    }
    Settings settings(file.path);
    registerSearchDefaults(settings);
    EXPECT_FALSE(settings.boolValue(key::skipHiddenFiles));
    EXPECT_EQ(settings.integerValue(key::limitFolderDepth), -1);
    EXPECT_EQ(settings.integerValue(key::maxFileSize), 5'000'000'000'000);
    EXPECT_DOUBLE_EQ(settings.doubleValue(key::durationTolerance), 2.5);
    EXPECT_EQ(settings.stringValue(key::commonSuffixes), QStringLiteral(" copy, (#) "))
        << "blanks are part of suffixes";
    EXPECT_EQ(settings.stringValue(key::skipFilenamePatterns), QStringLiteral("*.tmp\n/^~\\$/\n"));
    EXPECT_EQ(settings.stringListValue(key::activeSpotlightAttributes),
              QStringList{QStringLiteral("kMDItemTitle")});
}

TEST(Settings, RecordListsAndDictionariesRoundTrip)
{
    SettingsFile file;
    {
        Settings settings(file.path);
        settings.setRecordList(
            QStringLiteral("rows"),
            {{{QStringLiteral("path"), QStringLiteral("/a b")}, {QStringLiteral("enabled"), true}},
             {{QStringLiteral("path"), QStringLiteral("/c")}, {QStringLiteral("enabled"), false}}});
        settings.setRecordList(QStringLiteral("rows"), {{{QStringLiteral("path"), QStringLiteral("/c")},
                                                         {QStringLiteral("enabled"), false}}});
        settings.setDictionaryValue(key::doNotShowAgain, QStringLiteral("some alert"), 1001);
    }
    Settings settings(file.path);
    const QList<QVariantMap> rows = settings.recordList(QStringLiteral("rows"));
    ASSERT_EQ(rows.size(), 1) << "a rewritten list replaces the old one whole";
    EXPECT_EQ(rows[0].value(QStringLiteral("path")).toString(), QStringLiteral("/c"));
    EXPECT_FALSE(rows[0].value(QStringLiteral("enabled")).toBool());
    EXPECT_EQ(settings.dictionary(key::doNotShowAgain).value(QStringLiteral("some alert")).toInt(), 1001);
    settings.remove(key::doNotShowAgain);
    EXPECT_TRUE(settings.dictionary(key::doNotShowAgain).isEmpty());
}

TEST(Settings, ColumnsLayoutMigrationRunsOnce)
{
    SettingsFile file;
    Settings settings(file.path);
    settings.setValue(key::mainListColumns, QStringLiteral("old main"));
    settings.setValue(key::cloneListColumns, QStringLiteral("old clone"));
    migrateColumnsLayout(settings);
    EXPECT_FALSE(settings.isStored(key::mainListColumns));
    EXPECT_FALSE(settings.isStored(key::cloneListColumns));
    EXPECT_TRUE(settings.boolValue(key::columnsLayoutV2));

    settings.setValue(key::mainListColumns, QStringLiteral("new layout"));
    migrateColumnsLayout(settings);
    EXPECT_EQ(settings.stringValue(key::mainListColumns), QStringLiteral("new layout"));
}
