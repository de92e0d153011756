#include "fileops/CachedDigestsCarrier.h"

#include "fileops/DeleteActions.h"
#include "fileops/PutBack.h"
#include "fileops/Replacement.h"
#include "support/FileItems.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

CachedDigest knownDigest(std::uint8_t fill)
{
    CachedDigest known;
    Digest digest;
    digest.fill(fill);
    known.digest = digest;
    known.sample = fill;
    return known;
}

bool knows(DigestCache &cache, const DigestKey &key)
{
    return bool(cache.lookup({key}).front());
}

} // namespace

// A put-back file and the kept copy that gained a hard link keep their records under their new
// keys; a desktop link that took a copy's path gets none, its content being another.
TEST(CachedDigestsCarrier, CarriesWhatKeptItsContentAndNothingElse)
{
    TrashHome home;
    TempTree tree;
    QDir().mkpath(tree.path(QStringLiteral("old")));
    const QByteArray content(20000, 'c');
    for (const char *name : {"kept", "old/linked", "old/trashed", "old/aliased"})
        writeFile(tree.path(QString::fromLatin1(name)), content);
    ItemGroup group;
    ResultItem *kept = group.add(tree.path(QStringLiteral("kept")));
    ResultItem *linked = group.add(tree.path(QStringLiteral("old/linked")));
    ResultItem *trashed = group.add(tree.path(QStringLiteral("old/trashed")));
    ResultItem *aliased = group.add(tree.path(QStringLiteral("old/aliased")));
    DigestCache cache(tree.path(QStringLiteral("digests.sqlite")));
    std::vector<std::pair<DigestKey, CachedDigest>> records;
    for (ResultItem *item : group.all())
        records.emplace_back(digestKeyOf(*item), knownDigest(7));
    cache.store(records);
    cache.flush();

    const CachedDigestsCarrier beforeTrash(group.all());
    ASSERT_TRUE(performDeleteAction(DeleteKind::Trash, ReplaceWithNone, kept, {trashed}).refused.isEmpty());
    ASSERT_FALSE(trashed->trashedURL().isEmpty());
    beforeTrash.carryOver(cache);

    const CachedDigestsCarrier carrier(group.all());
    ASSERT_TRUE(putBackItem(*trashed).ok());
    ASSERT_TRUE(performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, kept, {linked}).refused.isEmpty());
    ASSERT_TRUE(performDeleteAction(DeleteKind::Delete, ReplaceWithAlias, kept, {aliased}).refused.isEmpty());
    EXPECT_FALSE(knows(cache, digestKeyOf(*trashed))) << "its change time moved";
    EXPECT_FALSE(knows(cache, digestKeyOf(*kept))) << "a new link moved its change time";
    carrier.carryOver(cache);

    EXPECT_TRUE(knows(cache, digestKeyOf(*trashed)));
    EXPECT_TRUE(knows(cache, digestKeyOf(*kept)));
    EXPECT_TRUE(knows(cache, digestKeyOf(*linked)));
    EXPECT_FALSE(knows(cache, digestKeyOf(*aliased))) << "a desktop link holds other bytes";
}
