#include "journal/Undo.h"

#include "fileops/DeleteActions.h"
#include "fileops/Replacement.h"
#include "support/EnglishPluralsInstalled.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <QDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

using namespace selfsame;

namespace
{

// A kept file and its copy, the copy replaced by a hard link with the deletion journaled.
struct LinkedPair {
    TempTree tree;
    QString kept = tree.path(QStringLiteral("keep/a.bin")), copy = tree.path(QStringLiteral("old/b.bin"));
    QByteArray content = QByteArray(100000, 'u');
    ItemGroup group;

    qint64 replaceByHardLink(Journal &journal)
    {
        QDir().mkpath(tree.path(QStringLiteral("keep")));
        QDir().mkpath(tree.path(QStringLiteral("old")));
        writeFile(kept, content);
        writeFile(copy, content);
        ResultItem *reference = group.add(kept);
        ResultItem *duplicate = group.add(copy);
        const DeleteReport report =
            performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {duplicate}, {}, &journal);
        EXPECT_TRUE(report.outcomes.value(0).error.isEmpty());
        EXPECT_EQ(statOf(copy).st_ino, statOf(kept).st_ino);
        return journal.batches().value(0).id;
    }
};

} // namespace

TEST(Undo, CopiesAreMadeOnlyWhenTheDriveHoldsThemAll)
{
    EnglishPluralsInstalled plurals;
    LinkedPair pair;
    Journal journal(pair.tree.path(QStringLiteral("journal.sqlite")));
    const qint64 batch = pair.replaceByHardLink(journal);

    const UndoReport refused = undoBatch(journal, batch, [](const QString &) { return qint64(99999); });
    EXPECT_TRUE(refused.error.contains(QStringLiteral("Nothing was changed"))) << refused.error.toStdString();
    EXPECT_EQ(statOf(pair.copy).st_ino, statOf(pair.kept).st_ino) << "the link was left as it was";
    EXPECT_TRUE(isUndoable(*journal.batch(batch)));
    EXPECT_EQ(summarizeUndo(*journal.batch(batch), refused).title,
              QStringLiteral("“Deleted and replaced with hard links” could not be undone"));

    const UndoReport undone = undoBatch(journal, batch, [](const QString &) { return qint64(100000); });
    EXPECT_TRUE(undone.succeeded()) << undone.error.toStdString() << undone.refused.join(u'\n').toStdString();
    EXPECT_NE(statOf(pair.copy).st_ino, statOf(pair.kept).st_ino);
    EXPECT_EQ(readFile(pair.copy), pair.content);
    EXPECT_EQ(batchState(*journal.batch(batch)), QStringLiteral("undone"));
    EXPECT_EQ(summarizeUndo(*journal.batch(batch), undone).message, QStringLiteral("1 file was given back."));
    EXPECT_FALSE(undoBatch(journal, batch).error.isEmpty()) << "undone twice";
}

TEST(Undo, AJournalOfAnEarlierVersionOpensWithItsUnfinishedSteps)
{
    TempTree tree;
    const QString file = tree.path(QStringLiteral("journal.sqlite"));
    sqlite3 *db = nullptr;
    ASSERT_EQ(sqlite3_open(file.toUtf8().constData(), &db), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(db,
                           "CREATE TABLE batches (id INTEGER PRIMARY KEY, started INTEGER, description TEXT);"
                           "CREATE TABLE steps (id INTEGER PRIMARY KEY, batch INTEGER, kind INTEGER, mode INTEGER,"
                           " path BLOB, kept BLOB, staged BLOB, away BLOB, stage INTEGER);"
                           "INSERT INTO batches VALUES (1, 0, 'delete');"
                           "INSERT INTO steps VALUES (1, 1, 1, 0, X'2F612F62', X'', X'', X'2F612F625F31', 2);",
                           nullptr, nullptr, nullptr),
              SQLITE_OK);
    sqlite3_close(db);

    Journal journal(file);
    ASSERT_TRUE(journal.isOpen()) << journal.error().toStdString();
    const QList<JournalStep> unfinished = journal.unfinished();
    ASSERT_EQ(unfinished.size(), 1);
    EXPECT_EQ(unfinished[0].path, QStringLiteral("/a/b"));
    EXPECT_EQ(unfinished[0].away, QStringLiteral("/a/b_1"));
    EXPECT_TRUE(journal.batches().isEmpty()) << "nothing it did is known to have been done";
}
