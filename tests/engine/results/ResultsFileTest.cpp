#include "results/ResultsFile.h"

#include "fileops/DeleteActions.h"
#include "fileops/Replacement.h"
#include "format/IsoDate.h"
#include "results/CsvExport.h"
#include "results/Gzip.h"
#include "results/ItemKeys.h"
#include "search/NamePatterns.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <QDateTime>
#include <QFile>
#include <QRegularExpression>
#include <ctime>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

// Every key a result item stores (the others are derived from these or belong to one view).
const char *const kStoredKeys[] = {
    "URL",      "size",      "physicalSize", "modified", "lastUsed",    "addedDate", "attributes",
    "created",  "tagList",   "duration",     "latitude", "longitude",   "spotlight", "pixelSize",
    "codecs",   "bitrate",   "read-only",    "other owner", "isSymlink", "isFolder", "isPackage",
    "digest",   "allocDigest", "itemCount",  "group",    "dupes",       "trashedURL", "deleted",
    "icon"};

Digest digestOf(int seed)
{
    Digest d{};
    for (std::size_t i = 0; i < d.size(); ++i) d[i] = std::uint8_t(seed * 31 + int(i));
    return d;
}

// Items of real files in `tree`, two per group, with content digests.
QList<ResultItem> filesIn(const TempTree &tree, int groups)
{
    ItemGroup made;
    QList<ResultItem> items;
    for (int g = 0; g < groups; ++g)
        for (const char *copy : {"a", "b"}) {
            const QString path = tree.path(QStringLiteral("f%1%2.dat").arg(g).arg(QLatin1String(copy)));
            writeFile(path, patternBytes(100 + g, g));
            ResultItem item = *made.add(path, g);
            item.dupes = 2;
            item.digest = digestOf(g);
            item.set(HasDigest);
            items.append(item);
        }
    return items;
}

SearchRequest requestFor(const TempTree &tree)
{
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(), QStringLiteral("/elsewhere/one file.jpg")};
    return request;
}

QString saveAndReload(const ResultModel &model, const TempTree &tree, ResultsFile::Loaded *loaded)
{
    const QString file = tree.path(QStringLiteral("saved.selfsame"));
    const QString error = ResultsFile::save(model, file);
    *loaded = ResultsFile::load(file);
    return error + loaded->error;
}

QStringList paths(const QList<ResultItem *> &items)
{
    QStringList list;
    for (const ResultItem *item : items) list.append(item->path);
    return list;
}

const ResultItem *withPath(const ResultModel &model, const QString &path)
{
    for (const ResultItem *item : model.mainItemsIncludingHiddenSorted())
        if (item->path == path) return item;
    return nullptr;
}

TEST(ResultsFile, EveryStoredKeyStateAndRequestParameterSurvives)
{
    TempTree tree;
    QList<ResultItem> items = filesIn(tree, 3);
    ResultItem &a = items[0];
    a.setTagList({QStringLiteral("Red"), QStringLiteral("Ünïcode, \"quoted\"")});
    a.setDuration(61.25);
    a.setLatitude(-33.8568);
    a.setLongitude(151.2153);
    a.setSpotlight(QDateTime::fromMSecsSinceEpoch(1700000000123, Qt::UTC));
    a.setPixelSize(QStringLiteral("4032 × 3024"));
    a.setCodecs(QStringLiteral("H.264, AAC"));
    a.setBitrate(1411200);
    a.setAddedDate(1600000000);
    a.created = -86400 * 365; // before 1970
    a.set(ReadOnly);
    a.set(OtherOwner);
    a.set(IsSymlink);
    a.allocDigest = allocationKey(digestOf(9));
    a.set(HasAllocDigest);
    items[1].setSpotlight(QStringLiteral("Title"));
    items[2].setSpotlight(42.5);
    items[3].set(IsFolder);
    items[3].set(IsPackage);
    items[3].setItemCount(17);
    items[4].setTrashedURL(QStringLiteral("/home/u/.local/share/Trash/files/f2a.dat"));
    items[5].set(Deleted);
    items[5].setStatusImage(QStringLiteral("hard linked"));
    items[4].modifiedNsec = 999'999'999; // in the trash: not looked for, so any value reads back
    items[4].changedNsec = 0;
    items[1].modifiedNsec = -1; // unknown, as in results saved before nanoseconds were kept
    items[1].changedNsec = -1;

    SearchRequest request = requestFor(tree);
    request.findAllDupesForSingleFiles = true;
    request.limitFolderDepth = 3;
    request.skipFilenameRegexes = *compileSkipPatterns({QStringLiteral("*.tmp"), QStringLiteral("/^IMG\\d+$/")}, nullptr);
    request.extensionsMode = ExtensionsMode::AllBut;
    request.extensions = {QStringLiteral("jpg"), QStringLiteral("heic")};
    request.minFileSize = 4096;
    request.maxFileSize = 1 << 30;
    request.detectionMode = DetectionMode::Attribute;
    request.spotlightAttribute = QStringLiteral("kMDItemTitle");
    request.spotlightTolerance = 0.5;
    request.filenameIgnoreCommonSuffixRegexes = compileCommonSuffixes(QStringLiteral(" copy, (#)"));

    ResultModel model;
    model.setResults(items, request);
    ResultsFile::Loaded loaded;
    ASSERT_EQ(saveAndReload(model, tree, &loaded), QString());
    ASSERT_TRUE(loaded.model);
    ResultModel &reopened = *loaded.model;

    ASSERT_EQ(reopened.allItems().size(), items.size());
    for (const ResultItem &original : items) {
        const ResultItem *back = withPath(reopened, original.path);
        ASSERT_NE(back, nullptr) << original.path.toStdString();
        for (const char *key : kStoredKeys)
            EXPECT_EQ(itemValue(*back, QString::fromLatin1(key)), itemValue(original, QString::fromLatin1(key)))
                << key << " of " << original.path.toStdString();
        EXPECT_EQ(back->device, original.device);
        EXPECT_EQ(back->inode, original.inode);
        EXPECT_EQ(back->modifiedNsec, original.modifiedNsec);
        EXPECT_EQ(back->changedNsec, original.changedNsec);
        // Recorded as a folder, while a file stands there: no longer what was found.
        EXPECT_EQ(back->has(Missing), &original == &items[3]) << original.path.toStdString();
    }
    EXPECT_EQ(withPath(reopened, items[2].path)->spotlight().typeId(), QMetaType::Double);
    EXPECT_EQ(withPath(reopened, items[0].path)->spotlight().typeId(), QMetaType::QDateTime);

    const SearchRequest &back = reopened.request();
    EXPECT_EQ(back.searchInFolderURLs, request.searchInFolderURLs);
    EXPECT_TRUE(back.findAllDupesForSingleFiles);
    EXPECT_EQ(back.limitFolderDepth, 3);
    EXPECT_EQ(back.skipFilenameRegexes, request.skipFilenameRegexes);
    EXPECT_EQ(back.extensionsMode, ExtensionsMode::AllBut);
    EXPECT_EQ(back.extensions, request.extensions);
    EXPECT_EQ(back.minFileSize, 4096);
    EXPECT_EQ(back.maxFileSize, 1 << 30);
    EXPECT_EQ(back.detectionMode, DetectionMode::Attribute);
    EXPECT_EQ(back.spotlightAttribute, request.spotlightAttribute);
    EXPECT_EQ(back.spotlightTolerance, 0.5);
    ASSERT_TRUE(back.filenameIgnoreCommonSuffixRegexes);
    EXPECT_EQ(*back.filenameIgnoreCommonSuffixRegexes, *request.filenameIgnoreCommonSuffixRegexes);
    // Paths shortened as before, from the same searched locations.
    EXPECT_EQ(withPath(reopened, items[0].path)->parentPath(), items[0].parentPath());
}

TEST(ResultsFile, TopListOrderSortAndHiddenItemsComeBackAsShown)
{
    TempTree tree;
    ResultModel model;
    model.setResults(filesIn(tree, 4), requestFor(tree));
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("URL.path.lastPathComponent"), false});
    QList<ResultItem *> visible = model.mainItems();
    const QList<ResultItem *> hidden = {visible.takeAt(1), visible.takeAt(3)};
    model.hide(visible, hidden, true);

    ResultsFile::Loaded loaded;
    ASSERT_EQ(saveAndReload(model, tree, &loaded), QString());
    ResultModel &reopened = *loaded.model;
    EXPECT_EQ(paths(reopened.mainItems()), paths(model.mainItems()));
    QStringList hiddenBack = paths(reopened.mainItemsHidden()), hiddenBefore = paths(hidden);
    hiddenBack.sort();
    hiddenBefore.sort();
    EXPECT_EQ(hiddenBack, hiddenBefore);
    EXPECT_TRUE(reopened.hiddenBecauseOfAutomaticallySelect());
    EXPECT_EQ(reopened.sortDescriptor(ResultList::Top), model.sortDescriptor(ResultList::Top));
    // Hidden members still answer look-ups, as before saving.
    EXPECT_EQ(reopened.duplicatesFor(*reopened.mainItems().first()).size(), 2);

    // Unhiding works on the reopened results as on the original ones.
    reopened.automaticallySelectUnhide();
    EXPECT_EQ(reopened.mainItems().size(), 8);
    EXPECT_TRUE(reopened.mainItemsHidden().isEmpty());
}

TEST(ResultsFile, PartialResultsSaySoAndOtherFilesAreComplete)
{
    TempTree tree;
    ResultModel model;
    model.setResults(filesIn(tree, 2), requestFor(tree));
    ResultsFile::Loaded loaded;
    ASSERT_EQ(saveAndReload(model, tree, &loaded), QString());
    EXPECT_FALSE(loaded.model->partial());
    QFile saved(tree.path(QStringLiteral("saved.selfsame")));
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_FALSE(saved.readAll().contains("\"partial\"")) << "complete results are written as before";

    model.setPartial(true);
    ASSERT_EQ(saveAndReload(model, tree, &loaded), QString());
    EXPECT_TRUE(loaded.model->partial());
    EXPECT_EQ(paths(loaded.model->mainItems()), paths(model.mainItems()));
    // A new search in the same model starts complete.
    model.setResults(filesIn(tree, 2), requestFor(tree));
    EXPECT_FALSE(model.partial());
}

TEST(ResultsFile, ResultsSavedAfterActionsReopenWithTheSameMarks)
{
    TempTree tree;
    ResultModel model;
    model.setResults(filesIn(tree, 2), requestFor(tree));
    ResultItem *reference = model.mainItemsSorted()[0];
    ResultItem *linked = model.duplicatesFor(*reference).last();
    ResultItem *deleted = model.mainItemsSorted()[2];
    ASSERT_EQ(performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {linked}).replacementFailures, 0);
    ASSERT_EQ(performDeleteAction(DeleteKind::Delete, ReplaceWithNone, nullptr, {deleted}).removalFailures, 0);
    ASSERT_EQ(linked->statusImage(), QStringLiteral("hard linked"));

    ResultsFile::Loaded loaded;
    ASSERT_EQ(saveAndReload(model, tree, &loaded), QString());
    const ResultItem *linkedBack = withPath(*loaded.model, linked->path);
    const ResultItem *deletedBack = withPath(*loaded.model, deleted->path);
    EXPECT_TRUE(linkedBack->has(Deleted));
    EXPECT_EQ(linkedBack->statusImage(), QStringLiteral("hard linked"));
    EXPECT_TRUE(deletedBack->has(Deleted));
    EXPECT_EQ(deletedBack->statusImage(), QStringLiteral("deleted"));
    // A replaced file has a new inode and a deleted one is gone: neither is missing.
    EXPECT_FALSE(linkedBack->has(Missing));
    EXPECT_FALSE(deletedBack->has(Missing));
}

TEST(ResultsFile, FilesChangedOrGoneSinceAreMarkedMissing)
{
    TempTree tree;
    ResultModel model;
    model.setResults(filesIn(tree, 3), requestFor(tree));
    const QString changed = tree.path(QStringLiteral("f0a.dat")), gone = tree.path(QStringLiteral("f1b.dat"));
    const QString rewritten = tree.path(QStringLiteral("f2a.dat"));
    const QString file = tree.path(QStringLiteral("saved.selfsame"));
    ASSERT_EQ(ResultsFile::save(model, file), QString());

    writeFile(changed, readFile(changed) + "more");
    QFile::remove(gone);
    const QByteArray same = readFile(rewritten); // same bytes and size, but another file
    QFile::remove(rewritten);
    writeFile(rewritten, same);

    ResultsFile::Loaded loaded = ResultsFile::load(file);
    ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
    ResultModel &reopened = *loaded.model;
    QStringList missing;
    for (const ResultItem &item : reopened.allItems())
        if (item.has(Missing)) missing.append(item.path);
    missing.sort();
    EXPECT_EQ(missing, (QStringList{changed, gone, rewritten}));

    // The bottom list shows a changed file as missing, as it shows a vanished one.
    const ResultItem *partner = withPath(reopened, tree.path(QStringLiteral("f0b.dat")));
    reopened.select(ResultList::Top, {const_cast<ResultItem *>(partner)});
    for (const ResultItem *row : reopened.cloneItems())
        EXPECT_EQ(row->clone, row == partner ? SelectedItself : FileMissing) << row->path.toStdString();
}

TEST(ResultsFile, LargeResultsAreCompressedAndBothFormsAreRead)
{
    TempTree tree;
    QList<ResultItem> items = filesIn(tree, 1);
    for (int i = 0; i < 6000; ++i) { // about 2 MB of JSON
        ResultItem copy = items[i % 2];
        copy.path = tree.path(QStringLiteral("gone/%1.dat").arg(i));
        items.append(copy);
    }
    ResultModel model;
    model.setResults(items, requestFor(tree));
    const QString file = tree.path(QStringLiteral("large.selfsame"));
    ASSERT_EQ(ResultsFile::save(model, file), QString());
    const QByteArray saved = readFile(file);
    ASSERT_TRUE(isGzip(saved));
    const std::optional<QByteArray> plain = gzipDecompress(saved);
    ASSERT_TRUE(plain);
    EXPECT_LT(saved.size() * 5, plain->size());

    for (const QByteArray &bytes : {saved, *plain}) {
        ResultsFile::Loaded loaded = ResultsFile::fromBytes(bytes, QStringLiteral("large.selfsame"));
        ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
        EXPECT_EQ(loaded.model->allItems().size(), items.size());
    }
}

TEST(ResultsFile, TruncatedForeignDamagedAndNewerFilesAreRefusedWithTheirReason)
{
    TempTree tree;
    ResultModel model;
    model.setResults(filesIn(tree, 2), requestFor(tree));
    QByteArray plain;
    ResultsFile::write(ResultsFile::contentOf(model), [&](const QByteArray &piece) { plain += piece; });
    const QString name = QStringLiteral("x.selfsame");
    auto refusal = [&](const QByteArray &bytes) {
        const ResultsFile::Loaded loaded = ResultsFile::fromBytes(bytes, name);
        EXPECT_FALSE(loaded.model);
        EXPECT_TRUE(loaded.error.contains(name)) << loaded.error.toStdString();
        return loaded.error.toStdString();
    };

    EXPECT_NE(refusal(plain.left(plain.size() * 2 / 3)).find("incomplete"), std::string::npos);
    EXPECT_NE(refusal(gzipCompress(plain).chopped(20)).find("incomplete"), std::string::npos);
    EXPECT_NE(refusal("PNG\x89 not json").find("not a Selfsame results file"), std::string::npos);
    EXPECT_NE(refusal(R"({"groups": [], "format": "other"})").find("not a Selfsame results file"), std::string::npos);
    EXPECT_NE(refusal("").find("not a Selfsame results file"), std::string::npos);

    QByteArray newer = plain;
    newer.replace("\"version\":1", "\"version\":2");
    const std::string newerMessage = refusal(newer);
    EXPECT_NE(newerMessage.find("newer version"), std::string::npos);
    EXPECT_NE(newerMessage.find("format 2"), std::string::npos);

    QByteArray badDigest = plain;
    badDigest.replace("\"digest\":\"", "\"digest\":\"zz");
    EXPECT_NE(refusal(badDigest).find("damaged: the value of “digest”"), std::string::npos);
    QByteArray noMode = plain;
    noMode.replace("\"detectionMode\":0", "\"detectionMode\":9");
    EXPECT_NE(refusal(noMode).find("detectionMode"), std::string::npos);
    QByteArray twoInOneRow = plain;
    twoInOneRow.replace("\"row\":1", "\"row\":0");
    EXPECT_NE(refusal(twoInOneRow).find("damaged"), std::string::npos);

    // Missing file: the reason is the system's.
    EXPECT_FALSE(ResultsFile::load(tree.path(QStringLiteral("none.selfsame"))).error.isEmpty());
}

// The plain JSON of two groups of two files, saved from a window.
QByteArray plainResults(const TempTree &tree)
{
    ResultModel model;
    model.setResults(filesIn(tree, 2), requestFor(tree));
    QByteArray plain;
    ResultsFile::write(ResultsFile::contentOf(model), [&](const QByteArray &piece) { plain += piece; });
    return plain;
}

// `member` put first into the object that `opening` begins: a key looked up once takes its first
// value, and an item's keys are read in order, so the member is what the reader meets.
QByteArray withMember(QByteArray plain, const char *opening, const QByteArray &member)
{
    const qsizetype at = plain.indexOf(opening);
    EXPECT_GE(at, 0) << opening;
    return plain.insert(at + qsizetype(qstrlen(opening)), member + ',');
}

// Why the reader refuses `bytes`: the text after "is damaged: ", or the whole message.
std::string damageOf(const QByteArray &bytes)
{
    const ResultsFile::Loaded loaded = ResultsFile::fromBytes(bytes, QStringLiteral("x.selfsame"));
    EXPECT_FALSE(loaded.model);
    const QString prefix = QStringLiteral("“x.selfsame” is damaged: ");
    if (!loaded.error.startsWith(prefix) || !loaded.error.endsWith(u'.')) return loaded.error.toStdString();
    return loaded.error.sliced(prefix.size()).chopped(1).toStdString();
}

TEST(ResultsFile, ValuesOfTheWrongKindOrOutOfRangeAreRefusedNamingTheKey)
{
    TempTree tree;
    const QByteArray plain = plainResults(tree);
    const char *const item = "\"items\":[{", *const group = "\"groups\":[\n{";
    const char *const request = "\"request\":{", *const topList = "\"topList\":{";
    const QByteArray hex(128, 'a'), big = "1180591620717411303424"; // 2^70, beyond what the parser holds
    const struct {
        const char *opening;
        QByteArray member;
        std::string why;
    } cases[] = {
        // Values of the right kind but out of their range (the fuzz test tries every wrong kind).
        {item, "\"size\":-1", "the value of “size” is negative"},
        {item, "\"physicalSize\":-4096", "the value of “physicalSize” is negative"},
        {item, "\"itemCount\":-1", "the value of “itemCount” is negative"},
        {item, "\"size\":9223372036854775808", "the value of “size” is out of range"},
        {item, "\"path\":\"\"", "the value of “path” is not an absolute path"},
        {item, "\"path\":\"/tmp/a\\u0000b\"", "the value of “path” contains a NUL character"},
        {item, "\"trashedURL\":\"Trash/files/a\"", "the value of “trashedURL” is not an absolute path"},
        {item, "\"trashedURL\":\"/Trash/\\u0000\"", "the value of “trashedURL” contains a NUL character"},
        {item, "\"device\":-1", "the value of “device” is out of range"},
        {item, "\"latitude\":90.001", "the value of “latitude” is out of range"},
        {item, "\"longitude\":-180.5", "the value of “longitude” is out of range"},
        {item, "\"duration\":-0.5", "the value of “duration” is negative"},
        {item, "\"bitrate\":-1", "the value of “bitrate” is negative"},
        {item, "\"statusImage\":\"moved\"", "the value of “statusImage” is not a known status"},
        {item, "\"digest\":\"" + hex.chopped(2) + "\"",
         "the value of “digest” is not 128 hexadecimal digits"},
        {item, "\"allocDigest\":\"" + hex.left(31) + "g\"",
         "the value of “allocDigest” is not 32 hexadecimal digits"},
        {item, "\"modifiedNanoseconds\":1000000000", "the value of “modifiedNanoseconds” is out of range"},
        {item, "\"attributesNanoseconds\":-1", "the value of “attributesNanoseconds” is negative"},
        {item, "\"tagList\":[\"Red\",1]", "the value of “tagList” is not valid"},
        {item, "\"row\":-1", "the value of “row” is negative"},
        {group, "\"group\":-1", "the value of “group” is negative"},
        {group, "\"group\":2147483648", "the value of “group” is out of range"},
        {group, "\"size\":-1", "the value of “size” is negative"},
        {request, "\"detectionMode\":6", "the value of “detectionMode” is out of range"},
        {request, "\"similarity\":101", "the value of “similarity” is out of range"},
        {item, "\"mediaPrint\":\"*\"", "the value of “mediaPrint” is not base64"},
        {request, "\"extensionsMode\":-1", "the value of “extensionsMode” is negative"},
        {request, "\"minFileSize\":-1", "the value of “minFileSize” is negative"},
        {request, "\"durationTolerance\":-0.1", "the value of “durationTolerance” is negative"},
        {request, "\"spotlightTolerance\":1e300", "the value of “spotlightTolerance” is out of range"},
        {request, "\"maxFileSize\":\"1 GB\"", "the search parameter “maxFileSize” is missing or not valid"},
        {request, "\"searchInFolderURLs\":[\"/a\",\"b\"]",
         "the search parameter “searchInFolderURLs” holds a path that is not absolute"},
        {request, "\"searchInFolderURLs\":[\"/a\\u0000\"]",
         "the search parameter “searchInFolderURLs” holds a path with a NUL character"},
        {request, "\"skipFilenameRegexes\":[{\"pattern\":\"(\"}]",
         "the search parameter “skipFilenameRegexes” holds an expression that is not valid"},
        {topList, "\"sort\":{\"key\":1,\"ascending\":true}", "the value of “sort” is not valid"},
        // Numbers the parser cannot hold fail the whole parse; the message still finds the key.
        {item, "\"inode\":" + big, "the value of “inode” is out of range"},
        {item, "\"size\":-9223372036854775809", "the value of “size” is out of range"},
        {item, "\"tagList\":[\"a\",{\"b\":1},1e400]", "the value of “tagList” is out of range"},
        {item, "\"size\":012", "the value of “size” is not a valid number"},
        {group, "\"dupes\":" + big, "the value of “dupes” is out of range"},
        {request, "\"limitFolderDepth\":-" + big, "the value of “limitFolderDepth” is out of range"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(damageOf(withMember(plain, c.opening, c.member)), c.why) << c.member.toStdString();

    QByteArray sameNumber = plain;
    sameNumber.replace("{\"group\":1,", "{\"group\":0,");
    EXPECT_EQ(damageOf(sameNumber), "two groups share the number 0");
    QByteArray gap = plain;
    gap.replace("\"row\":3", "\"row\":4");
    EXPECT_EQ(damageOf(gap), "the top list has gaps");
}

// The same text with white space after every comma, colon and opening bracket, as JSON tools
// write it.
QByteArray spacedOut(const QByteArray &compact)
{
    QByteArray spaced = "\n  ";
    bool inString = false, escaped = false;
    for (const char c : compact) {
        spaced += c;
        if (inString) {
            escaped = !escaped && c == '\\';
            inString = escaped || c != '"';
        } else if (c == '"') {
            inString = true;
        } else if (c == ',' || c == ':' || c == '{' || c == '[') {
            spaced += c == ',' ? "\n\t" : " ";
        }
    }
    return spaced;
}

TEST(ResultsFile, FilesRewrittenWithWhiteSpaceAreStillRecognised)
{
    TempTree tree;
    const QByteArray plain = plainResults(tree);
    const QByteArray spaced = spacedOut(plain);
    ASSERT_FALSE(spaced.contains("{\"format\":")); // really spaced out
    ResultsFile::Loaded loaded = ResultsFile::fromBytes(spaced, QStringLiteral("x.selfsame"));
    ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
    EXPECT_EQ(loaded.model->allItems().size(), 4);
    EXPECT_EQ(loaded.model->request().searchInFolderURLs, requestFor(tree).searchInFolderURLs);

    // Recognised as ours, so a number too large is named rather than the file called foreign.
    const QByteArray large = QString::fromUtf8(spaced)
                                 .replace(QRegularExpression(QStringLiteral("\"inode\": [0-9]+")),
                                          QStringLiteral("\"inode\": 1180591620717411303424"))
                                 .toUtf8();
    EXPECT_EQ(damageOf(large), "the value of “inode” is out of range");
    EXPECT_NE(damageOf(spaced.chopped(3)).find("is incomplete"), std::string::npos);
    EXPECT_NE(damageOf(" { \"format\" : \"other\", \"groups\": [] }").find("not a Selfsame results file"),
              std::string::npos);
}

TEST(ResultsFile, CsvExportHasTheGivenColumnsInOrder)
{
    ResultItem item;
    item.path = QStringLiteral("/photos/2024/Beach, \"best\".JPG");
    item.size = 123456;
    item.modified = 1704067200;
    item.dupes = 3;
    item.setTagList({QStringLiteral("Red"), QStringLiteral("Blue")});
    item.setBitrate(1048576);
    ResultItem folder;
    folder.path = QStringLiteral("/photos/2024/Album");
    folder.set(IsFolder);

    const QByteArray csv =
        exportCsv({&item, &folder},
                  {{QStringLiteral("size"), QStringLiteral("Size")}, {QStringLiteral("name"), QStringLiteral("Name")},
                   {QStringLiteral("folder"), QStringLiteral("Folder")},
                   {QStringLiteral("extension"), QStringLiteral("Kind")},
                   {QStringLiteral("modified"), QStringLiteral("Date Modified")},
                   {QStringLiteral("lastUsed"), QStringLiteral("Last Opened")},
                   {QStringLiteral("tags"), QStringLiteral("Tags")}, {QStringLiteral("bitrate"), QStringLiteral("Bit Rate")},
                   {QStringLiteral("dupes"), QStringLiteral("Dupes")}},
                  QString());
    EXPECT_EQ(csv.toStdString(), "Size,Name,Folder,Kind,Date Modified,Last Opened,Tags,Bit Rate,Dupes\r\n"
                                 "123456,\"Beach, \"\"best\"\".JPG\",2024,jpg,2024-01-01T00:00:00Z,,\"Red, Blue\",1.0 Mbps,3\r\n"
                                 "0,Album,2024,folder,1970-01-01T00:00:00Z,,,,0\r\n");
}

TEST(ResultsFile, IsoDatesReadBackExactlyAndOtherTextsAreRefused)
{
    for (qint64 seconds : {qint64(0), qint64(-1), qint64(951782400) /* 2000-02-29 */, qint64(4102444799),
                           qint64(-62135596800) /* year 1 */})
        EXPECT_EQ(parseIsoDate(isoDate(seconds).toStdString()), seconds) << isoDate(seconds).toStdString();
    // Written directly for four-digit years: the same text as the C library's.
    for (qint64 seconds = -30'000'000'000; seconds < 260'000'000'000; seconds += 7'777'777) {
        for (const qint64 at : {seconds, seconds - seconds % 86400, seconds - seconds % 86400 - 1}) {
            const time_t t = time_t(at);
            struct tm utc;
            char expected[32];
            ASSERT_TRUE(gmtime_r(&t, &utc));
            const std::size_t n = strftime(expected, sizeof(expected), "%Y-%m-%dT%H:%M:%SZ", &utc);
            ASSERT_EQ(isoDate(at).toStdString(), std::string(expected, n)) << at;
        }
    }
    for (const char *bad : {"2024-02-30T00:00:00Z", "2024-01-01 00:00:00Z", "2024-01-01T00:00:00", "x",
                            "2024-01-01T24:00:00Z", "20a4-01-01T00:00:00Z"})
        EXPECT_FALSE(parseIsoDate(bad)) << bad;
}

} // namespace
