#include "search/Digest.h"
#include "search/DigestCache.h"
#include "support/TempTree.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <thread>

using namespace selfsame;

namespace {

DigestKey keyOf(quint64 inode)
{
    return {7, inode, qint64(inode) * 10, 1'600'000'000'123'456'789, 1'600'000'001'000'000'001, false};
}

// Even inodes carry their placement: tags, and for every fourth an allocation digest.
CachedDigest valueOf(quint64 inode)
{
    std::optional<CachedDigest::Attributes> attributes;
    if (inode % 2 == 0)
        attributes = CachedDigest::Attributes{inode % 4 == 0 ? std::optional(sha512(&inode, 4)) : std::nullopt,
                                              {QStringLiteral("Red"), QStringLiteral("with, comma")}};
    return {inode * 3, sha512(&inode, sizeof(inode)), Fingerprint{inode, ~inode}, attributes};
}

std::vector<std::pair<DigestKey, CachedDigest>> records(quint64 from, quint64 to)
{
    std::vector<std::pair<DigestKey, CachedDigest>> result;
    for (quint64 inode = from; inode < to; ++inode)
        result.emplace_back(keyOf(inode), valueOf(inode));
    return result;
}

std::vector<DigestKey> keys(quint64 from, quint64 to)
{
    std::vector<DigestKey> result;
    for (quint64 inode = from; inode < to; ++inode)
        result.push_back(keyOf(inode));
    return result;
}

qsizetype hits(DigestCache &cache, quint64 from, quint64 to)
{
    const auto answers = cache.lookup(keys(from, to));
    return std::count_if(answers.begin(), answers.end(), [](const auto &a) { return a.has_value(); });
}

void execute(const QString &path, const char *sql)
{
    sqlite3 *db = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &db), SQLITE_OK);
    char *error = nullptr;
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, &error), SQLITE_OK) << (error ? error : "");
    sqlite3_free(error);
    sqlite3_close(db);
}

qint64 rowCount(const QString &path)
{
    sqlite3 *db = nullptr;
    sqlite3_stmt *count = nullptr;
    qint64 rows = -1;
    if (sqlite3_open(QFile::encodeName(path).constData(), &db) == SQLITE_OK &&
        sqlite3_prepare_v2(db, "SELECT count(*) FROM digests", -1, &count, nullptr) == SQLITE_OK &&
        sqlite3_step(count) == SQLITE_ROW)
        rows = sqlite3_column_int64(count, 0);
    sqlite3_finalize(count);
    sqlite3_close(db);
    return rows;
}

// Counts the warnings logged while it lives.
struct WarningCounter {
    static inline int count = 0;
    QtMessageHandler previous;
    WarningCounter() : previous(qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &) {
        if (type == QtWarningMsg)
            ++count;
    }))
    {
        count = 0;
    }
    ~WarningCounter() { qInstallMessageHandler(previous); }
};

TEST(DigestCache, AnswersOnlyForTheStoredStateOfAFile)
{
    TempTree tree;
    const QString path = tree.path(QStringLiteral("cache/digests.sqlite"));
    {
        DigestCache cache(path);
        ASSERT_TRUE(cache.isOpen());
        cache.store(records(1, 1000));
        cache.store({{keyOf(5000), {42, std::nullopt, std::nullopt, std::nullopt}}}); // a sample alone
    }
    DigestCache cache(path);
    std::vector<DigestKey> asked = {keyOf(3), keyOf(3), keyOf(4), keyOf(5), keyOf(6), keyOf(7), keyOf(5000),
                                    keyOf(999), keyOf(1000)};
    asked[2].modifiedNs += 1; // one nanosecond later
    asked[3].changedNs += 1;
    asked[4].size += 1;
    asked[5].headerSkipped = true;
    asked[7].device = 8;
    const auto answers = cache.lookup(asked);
    ASSERT_EQ(answers.size(), asked.size());
    ASSERT_TRUE(answers[0] && answers[1]) << "two paths of one file";
    EXPECT_EQ(answers[0]->digest, valueOf(3).digest);
    EXPECT_EQ(answers[0]->sample, valueOf(3).sample);
    EXPECT_EQ(answers[0]->fingerprint, valueOf(3).fingerprint);
    EXPECT_FALSE(answers[0]->attributes);
    for (quint64 inode : {6, 8}) {
        const auto placed = cache.lookup({keyOf(inode)}).front();
        ASSERT_TRUE(placed && placed->attributes) << inode;
        EXPECT_EQ(placed->attributes->allocDigest, valueOf(inode).attributes->allocDigest) << inode;
        EXPECT_EQ(placed->attributes->tags, valueOf(inode).attributes->tags) << inode;
    }
    for (int changed : {2, 3, 4, 5, 7, 8})
        EXPECT_FALSE(answers[std::size_t(changed)]) << changed;
    ASSERT_TRUE(answers[6]);
    EXPECT_EQ(answers[6]->sample, 42u);
    EXPECT_FALSE(answers[6]->digest);
    EXPECT_FALSE(answers[6]->fingerprint);

    // Many keys of one device are answered by walking their range: the same answers.
    EXPECT_EQ(hits(cache, 1, 1000), 999);
    std::vector<DigestKey> many = keys(0, 1200);
    many[500].changedNs = 0;
    const auto walked = cache.lookup(many);
    for (quint64 inode = 0; inode < 1200; ++inode)
        EXPECT_EQ(walked[inode].has_value(), inode >= 1 && inode < 1000 && inode != 500) << inode;
    EXPECT_EQ(walked[999]->digest, valueOf(999).digest);

    // A newer state of a file replaces the older one.
    DigestKey newer = keyOf(10);
    newer.changedNs += 5;
    cache.store({{newer, valueOf(11)}});
    cache.flush();
    const auto replaced = cache.lookup({keyOf(10), newer});
    EXPECT_FALSE(replaced[0]);
    ASSERT_TRUE(replaced[1]);
    EXPECT_EQ(replaced[1]->digest, valueOf(11).digest);
}

TEST(DigestCache, UnusableDatabasesAreMovedAsideWithOneLogLine)
{
    TempTree tree;
    const QString path = tree.path(QStringLiteral("digests.sqlite"));
    auto reopensEmpty = [&](const char *what) {
        WarningCounter warnings;
        DigestCache cache(path, {.busyTimeoutMs = 100});
        EXPECT_TRUE(cache.isOpen()) << what;
        EXPECT_EQ(hits(cache, 1, 100), 0) << what;
        EXPECT_TRUE(QFileInfo::exists(path + QStringLiteral(".broken"))) << what;
        EXPECT_EQ(WarningCounter::count, 1) << what;
        cache.store(records(1, 100));
        cache.flush();
        EXPECT_EQ(hits(cache, 1, 100), 99) << what << ": rebuilt";
    };

    tree.file(QStringLiteral("digests.sqlite"), QByteArray(8192, 'x'));
    reopensEmpty("not a database");

    QFile::remove(path + QStringLiteral(".broken"));
    execute(path, "PRAGMA user_version = 99");
    reopensEmpty("another version");

    QFile::remove(path + QStringLiteral(".broken"));
    execute(path, "PRAGMA application_id = 1");
    reopensEmpty("another program's database");

    // A process that keeps the database locked.
    QFile::remove(path + QStringLiteral(".broken"));
    sqlite3 *holder = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(path).constData(), &holder), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(holder, "PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; "
                                   "INSERT INTO digests SELECT * FROM digests WHERE 0;",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    reopensEmpty("locked");
    sqlite3_close(holder);
}

TEST(DigestCache, DamagedRecordsAreNeverAnswered)
{
    TempTree tree;
    const QString path = tree.path(QStringLiteral("digests.sqlite"));
    {
        DigestCache cache(path);
        cache.store(records(1, 10));
    }
    // One bit of a digest changed behind the cache's back, and a record that claims another file.
    execute(path, "UPDATE digests SET digest = zeroblob(64) WHERE inode = (3 - 9223372036854775807 - 1);"
                  "UPDATE digests SET size = 40 WHERE inode = (5 - 9223372036854775807 - 1);"
                  "UPDATE digests SET tags = 'Green' WHERE inode = (6 - 9223372036854775807 - 1);");
    DigestCache cache(path);
    const auto answers = cache.lookup(keys(1, 10));
    for (quint64 inode = 1; inode < 10; ++inode)
        EXPECT_EQ(answers[inode - 1].has_value(), inode != 3 && inode != 5 && inode != 6) << inode;
}

TEST(DigestCache, TwoProcessesMayWriteAtOnce)
{
    TempTree tree;
    const QString path = tree.path(QStringLiteral("digests.sqlite"));
    DigestCache(path).flush(); // created before the race, as a first search would
    auto writer = [&](quint64 from) {
        DigestCache cache(path);
        ASSERT_TRUE(cache.isOpen());
        for (quint64 at = from; at < from + 5000; at += 500) {
            cache.store(records(at, at + 500));
            hits(cache, from, at);
        }
    };
    std::thread a(writer, 1), b(writer, 100001);
    a.join();
    b.join();
    DigestCache cache(path);
    EXPECT_EQ(hits(cache, 1, 5001), 5000);
    EXPECT_EQ(hits(cache, 100001, 105001), 5000);
    EXPECT_FALSE(QFileInfo::exists(path + QStringLiteral(".broken")));
}

TEST(DigestCache, LeastRecentlyUsedRecordsGoFirstAndClearRemovesAll)
{
    TempTree tree;
    const QString path = tree.path(QStringLiteral("digests.sqlite"));
    const DigestCache::Options small{.sizeLimit = 400 << 10};
    {
        DigestCache cache(path, small);
        cache.store(records(1, 1001));
    }
    // Those were used ten days ago; the first hundred are looked up again today.
    execute(path, "UPDATE digests SET used = used - 10");
    {
        DigestCache cache(path, small);
        EXPECT_EQ(hits(cache, 1, 101), 100);
        // Records are added until the first eviction, which takes a quarter of them.
        quint64 end = 1001;
        while (rowCount(path) == qint64(end - 1) && end < 20001) {
            cache.store(records(end, end + 100));
            cache.flush();
            end += 100;
        }
        EXPECT_LT(end, 20001u) << "the size limit was never reached";
        EXPECT_EQ(hits(cache, 1, 101), 100) << "used today";
        EXPECT_LT(hits(cache, 101, 1001), 900) << "unused for ten days";
        EXPECT_EQ(hits(cache, 1001, end), qsizetype(end - 1001)) << "written today";
    }
    EXPECT_TRUE(DigestCache::clear(path));
    EXPECT_FALSE(QFileInfo::exists(path));
    DigestCache cache(path);
    EXPECT_EQ(hits(cache, 1, 101), 0);
}

} // namespace
