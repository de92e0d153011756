#include "autoselect/AutomaticSelection.h"
#include "results/ListColumns.h"
#include "results/Reclaimable.h"
#include "results/ResultsFile.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

ResultItem item(const char *path, int group, quint16 flags, qint64 size, int digestSeed = -1)
{
    ResultItem i;
    i.path = QString::fromUtf8(path);
    i.group = group;
    i.dupes = 2;
    i.flags = flags;
    i.size = i.physicalSize = size;
    i.inode = quint64(qHash(i.path));
    if (digestSeed >= 0) {
        i.digest.fill(std::uint8_t(digestSeed));
        i.set(HasDigest);
    }
    return i;
}

// Three files of equal content, then "/old" in "/new" and "/older" in "/old": one folder on
// both sides of two groups. The containers come first, as a sorted list may show them.
class ContainedGroups : public ::testing::Test {
protected:
    void SetUp() override
    {
        request.searchInFolderURLs = {QStringLiteral("/")};
        request.containedFolders = true;
        model.setResults({item("/f1", 0, 0, 10, 1), item("/f2", 0, 0, 10, 1), item("/f3", 0, 0, 10, 1),
                          item("/new", 1, IsFolder | ContainingFolder, 500),
                          item("/old", 1, IsFolder | ContainedFolder, 900),
                          item("/old", 2, IsFolder | ContainingFolder, 900),
                          item("/older", 2, IsFolder | ContainedFolder, 300)},
                         request);
    }
    ResultItem *find(const char *path, int group)
    {
        for (ResultItem &i : model.allItems())
            if (i.path == QLatin1String(path) && i.group == group)
                return &i;
        return nullptr;
    }
    static std::string describe(const QList<ResultItem *> &items)
    {
        QStringList names;
        for (const ResultItem *i : items)
            names.append(i->path + u'#' + QString::number(i->group));
        return names.join(u' ').toStdString();
    }
    SearchRequest request;
    ResultModel model;
};

TEST_F(ContainedGroups, EachGroupIsItsOwnPairAndFreesTheContainedFolder)
{
    EXPECT_EQ(describe(model.duplicatesFor(*find("/old", 1))), "/new#1 /old#1");
    EXPECT_EQ(describe(model.duplicatesFor(*find("/old", 2))), "/old#2 /older#2");
    EXPECT_EQ(describe(model.duplicatesFor(*find("/f1", 0))), "/f1#0 /f2#0 /f3#0");
    // The contained folder goes whole, though it is larger than its container.
    const ReclaimTotals totals = reclaimTotals(model.mainItems());
    EXPECT_EQ(totals.groups, 3);
    EXPECT_EQ(totals.reclaimable, 20 + 900 + 300);
    EXPECT_EQ(cellText(*find("/old", 1), QStringLiteral("extension"), {}).toStdString(), "contained");
    EXPECT_EQ(cellText(*find("/new", 1), QStringLiteral("extension"), {}).toStdString(), "container");
}

TEST_F(ContainedGroups, TheRuleSelectsContainedFoldersAndKeepsTheirContainers)
{
    EXPECT_TRUE(autoSelectRuleOffered(ContainedFolders, DetectionMode::Content, true));
    EXPECT_FALSE(autoSelectRuleOffered(ContainedFolders, DetectionMode::Content, false));
    EXPECT_FALSE(autoSelectRuleOffered(ContainedFolders, DetectionMode::Duration, true));
    EXPECT_EQ(autoSelectInitialRule(ContainedFolders, DetectionMode::Content, false), SameFolderSameName);

    AutoSelectSettings settings;
    settings.choice = ContainedFolders;
    AutoSelectOutcome outcome = performAutomaticallySelect(model, settings);
    EXPECT_EQ(describe(outcome.selection.selected()), "/old#1 /older#2");
    EXPECT_EQ(describe(outcome.selection.skipped()), "/new#1 /old#2");
    EXPECT_EQ(outcome.settingsToStore.value(QStringLiteral("auto-select choice")).toInt(), ContainedFolders);

    find("/new", 1)->set(Deleted); // with its container gone, a folder is no longer a copy
    outcome = performAutomaticallySelect(model, settings);
    EXPECT_EQ(describe(outcome.selection.selected()), "/older#2");
}

TEST_F(ContainedGroups, ResultsFilesKeepTheKindAndTheContainedFolderFirst)
{
    QByteArray saved;
    ResultsFile::write(ResultsFile::contentOf(model), [&](const QByteArray &bytes) { saved += bytes; });
    EXPECT_TRUE(saved.contains(R"("group":1,"kind":"contained","dupes":2,"size":900,"items":[{"path":"/old")"))
        << saved.toStdString();
    EXPECT_FALSE(saved.contains(R"("group":0,"kind")"));

    ResultsFile::Loaded loaded = ResultsFile::fromBytes(saved, QStringLiteral("saved"));
    ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
    EXPECT_TRUE(loaded.model->request().containedFolders);
    int contained = 0, containers = 0;
    for (const ResultItem &i : loaded.model->allItems()) {
        contained += i.has(ContainedFolder);
        containers += i.has(ContainingFolder);
        EXPECT_EQ(i.has(ContainedFolder), i.path == QLatin1String(i.group == 1 ? "/old" : "/older")) << i.group;
    }
    EXPECT_EQ(contained, 2);
    EXPECT_EQ(containers, 2);

    QByteArray three = saved;
    three.replace(R"("group":0,)", R"("group":0,"kind":"contained",)");
    EXPECT_FALSE(ResultsFile::fromBytes(three, QStringLiteral("x")).model); // three files are no pair…
    QByteArray future = saved;
    const QByteArray kind = R"("kind":"contained")";
    future.replace(future.indexOf(kind), kind.size(), R"("kind":"overlapping")");
    loaded = ResultsFile::fromBytes(future, QStringLiteral("x"));
    ASSERT_TRUE(loaded.model); // …and a kind of a later version reads as a plain group
    for (const ResultItem &i : loaded.model->allItems())
        EXPECT_EQ(i.has(ContainedFolder) || i.has(ContainingFolder), i.group == 2);
}

} // namespace
