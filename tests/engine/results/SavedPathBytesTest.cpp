// Saved results keep the exact bytes of names that are not UTF-8.

#include "names/FileNames.h"
#include "results/ResultsFile.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace selfsame;

TEST(SavedPathBytes, NamesThatAreNotUtf8ReopenAsTheSameFiles)
{
    TempTree tree;
    const QByteArray root = tree.path().toUtf8();
    ItemGroup group;
    for (const QByteArray &name : {QByteArray("/bad\xff.txt"), QByteArray("/bad\xef\xbf\xbd.txt")}) {
        const int fd = open((root + name).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        ASSERT_EQ(write(fd, "same", 4), 4);
        close(fd);
        group.add(pathFromBytes(root + name));
    }
    group.items[0]->setTrashedURL(pathFromBytes(root + "/Trash/files/bad\xff.txt"));
    QList<ResultItem> items;
    for (ResultItem *item : group.all())
        items.append(*item);
    ResultModel model;
    SearchRequest request;
    request.searchInFolderURLs = {tree.path()};
    model.setResults(items, request);

    QByteArray text;
    ResultsFile::write(ResultsFile::contentOf(model), [&](const QByteArray &piece) { text += piece; });
    EXPECT_TRUE(text.contains("\"path\":\"" + root + "/bad\\\\xFF.txt\"")) << "the path is the shown text";
    EXPECT_TRUE(text.contains("\"pathBytes\":\"" + (root + "/bad\xff.txt").toBase64() + '"'));
    EXPECT_EQ(text.count("\"pathBytes\""), 1) << "only where the text would not say it";
    EXPECT_TRUE(text.contains("\"trashedURLBytes\""));

    ResultsFile::Loaded loaded = ResultsFile::fromBytes(text, QStringLiteral("bytes.selfsame"));
    ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
    QList<QByteArray> reopened;
    for (const ResultItem &item : loaded.model->allItems()) {
        reopened.append(pathBytes(item.path));
        if (!item.trashedURL().isEmpty()) {
            EXPECT_EQ(pathBytes(item.trashedURL()), root + "/Trash/files/bad\xff.txt");
        } else {
            EXPECT_FALSE(item.has(Missing)) << "found again: " << displayPath(item.path).toStdString();
        }
    }
    std::sort(reopened.begin(), reopened.end());
    EXPECT_EQ(reopened, (QList<QByteArray>{root + "/bad\xef\xbf\xbd.txt", root + "/bad\xff.txt"}));

    QByteArray damaged = text;
    damaged.replace("\"pathBytes\":\"", "\"pathBytes\":\"*");
    EXPECT_TRUE(ResultsFile::fromBytes(damaged, QStringLiteral("d")).error.contains(QStringLiteral("“pathBytes” is not base64")));
}
