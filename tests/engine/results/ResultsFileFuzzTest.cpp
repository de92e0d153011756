#include "results/ResultsFile.h"

#include "results/Gzip.h"
#include "search/NamePatterns.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <QDateTime>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <string>

using namespace selfsame;

// Damaged results files of every kind: whatever the bytes, the reader answers with a model or
// with a message, and never crashes (the AddressSanitizer build catches what a plain run misses).

namespace
{

const QString kName = QStringLiteral("fuzz.selfsame");

// A window's results with most of what a file can hold: three groups of two files, one hidden,
// with tags, digests, media values, attribute values of each kind, and a file operation's marks.
QByteArray savedResults(const TempTree &tree)
{
    ItemGroup made;
    QList<ResultItem> items;
    for (int g = 0; g < 3; ++g)
        for (const char *copy : {"a", "b"}) {
            const QString path = tree.path(QStringLiteral("f%1%2.dat").arg(g).arg(QLatin1String(copy)));
            writeFile(path, patternBytes(64 + g, g));
            ResultItem item = *made.add(path, g);
            item.dupes = 2;
            item.digest.fill(std::uint8_t(g * 17));
            item.set(HasDigest);
            items.append(item);
        }
    items[0].setTagList({QStringLiteral("Red"), QStringLiteral("\"quoted\" \\ tag")});
    items[0].setSpotlight(QDateTime::fromMSecsSinceEpoch(1700000000123, Qt::UTC));
    items[0].setLatitude(48.8584);
    items[0].setLongitude(2.2945);
    items[0].lastUsed = 1700000000;
    items[0].created = 1600000000;
    items[0].setAddedDate(1650000000);
    items[1].setSpotlight(QStringLiteral("Title"));
    items[1].setDuration(61.5);
    items[1].setBitrate(320000);
    items[1].setPixelSize(QStringLiteral("640 × 480"));
    items[1].setCodecs(QStringLiteral("H.264"));
    items[1].setSimilarity(97.5);
    items[1].setMediaPrint(QByteArray("\x01\x02\x03\xff", 4));
    items[2].setSpotlight(12.5);
    items[3].set(IsFolder);
    items[3].set(IsPackage);
    items[3].setItemCount(3);
    items[4].setTrashedURL(tree.path(QStringLiteral("Trash/f2a.dat")));
    items[4].setStatusImage(QStringLiteral("trashed"));
    items[5].set(Deleted);
    items[5].set(ReadOnly);
    items[2].set(IsSymlink);
    items[2].set(OtherOwner);
    items[0].allocDigest.fill(0xab);
    items[0].set(HasAllocDigest);
    items[0].modifiedNsec = 5;
    items[0].changedNsec = 999'999'999;

    SearchRequest request;
    request.searchInFolderURLs = {tree.path()};
    request.skipFilenameRegexes = *compileSkipPatterns({QStringLiteral("*.tmp")}, nullptr);
    request.extensionsMode = ExtensionsMode::Only;
    request.extensions = {QStringLiteral("dat")};
    request.filenameIgnoreCommonSuffixRegexes = compileCommonSuffixes(QStringLiteral(" copy"));

    ResultModel model;
    model.setResults(items, request);
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("size"), false});
    QList<ResultItem *> visible = model.mainItems();
    ResultItem *const hidden = visible.takeLast();
    model.hide(visible, {hidden}, true);
    model.setPartial(true);
    QByteArray plain;
    ResultsFile::write(ResultsFile::contentOf(model), [&](const QByteArray &piece) { plain += piece; });
    return plain;
}

// Reads `bytes` and checks the one thing every input must give: a model or a message.
ResultsFile::Loaded read(const QByteArray &bytes)
{
    ResultsFile::Loaded loaded = ResultsFile::fromBytes(bytes, kName);
    EXPECT_NE(loaded.model.has_value(), !loaded.error.isEmpty()) << loaded.error.toStdString();
    if (!loaded.error.isEmpty()) {
        EXPECT_TRUE(loaded.error.contains(kName)) << loaded.error.toStdString();
    }
    return loaded;
}

struct KeyedValue {
    std::string key;
    qsizetype begin, end; // the value's bytes
};

// Every key of the compact text the writer makes, nested ones included, with its value's place.
std::vector<KeyedValue> keyedValues(const QByteArray &json)
{
    const auto stringEnd = [&](qsizetype quote) { // just past the closing quote
        qsizetype i = quote + 1;
        while (i < json.size() && json[i] != '"')
            i += json[i] == '\\' ? 2 : 1;
        return i + 1;
    };
    std::vector<KeyedValue> found;
    for (qsizetype i = 0; i < json.size(); ++i) {
        if (json[i] != '"') continue;
        const qsizetype after = stringEnd(i);
        if (after < json.size() && json[after] == ':') {
            qsizetype end = after + 1;
            for (int depth = 0; end < json.size(); ++end) {
                const char c = json[end];
                if (c == '"') {
                    end = stringEnd(end) - 1;
                    if (depth == 0) {
                        ++end;
                        break;
                    }
                } else if (c == '{' || c == '[') {
                    ++depth;
                } else if (c == '}' || c == ']' || c == ',') {
                    if (depth == 0) break;
                    if (c != ',' && --depth == 0) {
                        ++end;
                        break;
                    }
                }
            }
            found.push_back({json.mid(i + 1, after - i - 2).toStdString(), after + 1, end});
        }
        i = after - 1;
    }
    return found;
}

TEST(ResultsFileFuzz, EveryTruncationIsRefusedAsIncomplete)
{
    TempTree tree;
    const QByteArray plain = savedResults(tree);
    ASSERT_TRUE(read(plain).model);
    // Past the opening that marks the file as ours, any cut before the last brace is a file cut short.
    const qsizetype recognised = plain.indexOf("selfsame-results") + 17;
    for (qsizetype length = 0; length <= plain.lastIndexOf('}'); ++length) {
        const ResultsFile::Loaded loaded = read(plain.left(length));
        ASSERT_FALSE(loaded.model) << length;
        if (length >= recognised) {
            ASSERT_TRUE(loaded.error.contains(QLatin1String("is incomplete"))) << length;
        }
    }
    const QByteArray compressed = gzipCompress(plain);
    for (qsizetype length = 0; length < compressed.size(); ++length)
        ASSERT_FALSE(read(compressed.left(length)).model) << length;
}

TEST(ResultsFileFuzz, RandomlyChangedBytesGiveAModelOrAMessage)
{
    TempTree tree;
    const QByteArray plain = savedResults(tree);
    // Half the changes put in JSON's own characters, which reach further into the reader than noise.
    const QByteArray syntax = "{}[]\",:0123456789-+.eE\\tfn ";
    std::mt19937 random(20240501);
    int models = 0;
    for (int trial = 0; trial < 3000; ++trial) {
        QByteArray changed = plain;
        const int changes = 1 + int(random() % 4);
        for (int c = 0; c < changes; ++c) {
            const qsizetype at = qsizetype(random() % std::uint32_t(changed.size()));
            changed[at] = random() % 2 ? syntax[qsizetype(random() % std::uint32_t(syntax.size()))]
                                       : char(random() % 256);
        }
        models += read(changed).model ? 1 : 0;
    }
    // Changes inside texts and digits keep many files readable: the reader was reached, not only the parser.
    EXPECT_GT(models, 100);
}

TEST(ResultsFileFuzz, EveryKeyWithAValueOfEachKindIsReadOrRefused)
{
    TempTree tree;
    const QByteArray plain = savedResults(tree);
    const std::string big = "1180591620717411303424"; // 2^70
    const std::vector<std::string> values = {"null", "true", "1", "-1", "1e300", "\"x\"", "[]", "{}", big};
    // The replacements each key may take; all others must be refused.
    const std::set<std::string> none, flag = {"true"}, count = {"1"}, text = {"\"x\""}, list = {"[]"};
    const std::map<std::string, std::set<std::string>> allowed = {
        {"format", none}, {"version", count}, {"partial", flag}, {"request", none}, {"searchInFolderURLs", list},
        {"findAllDupesForSingleFiles", flag}, {"skipHiddenFiles", flag}, {"ignoreMp4Header", flag},
        {"ignoreClones", flag}, {"limitFolderDepth", {"1", "-1"}}, {"skipFilenameRegexes", list},
        {"pattern", text}, {"caseInsensitive", flag}, {"extensionsMode", count}, {"extensions", list},
        {"filterFileSize", flag}, {"compareFolders", flag}, {"minFileSize", count}, {"maxFileSize", count},
        {"ignoreNonWritable", flag}, {"ignoreOtherOwner", flag}, {"detectionMode", count},
        {"durationTolerance", count}, {"spotlightAttribute", text}, {"spotlightTolerance", count},
        {"filenameIgnoreExtension", flag}, {"filenameIgnoreCommonSuffixRegexes", {"null", "[]"}},
        {"similarity", count}, {"distinguishGreyscale", flag}, {"containedFolders", flag}, {"mediaPrint", text},
        {"topList", {"{}"}}, {"sort", {"null"}}, {"key", text}, {"ascending", flag},
        {"hiddenByAutomaticSelection", flag}, {"groups", list}, {"group", count}, {"dupes", count},
        {"size", count}, {"items", list}, {"path", none}, {"physicalSize", count}, {"modified", none},
        {"modifiedNanoseconds", count}, {"lastUsed", none}, {"attributes", none},
        {"attributesNanoseconds", count}, {"created", none}, {"addedDate", none}, {"device", count},
        {"inode", count}, {"read-only", flag}, {"other owner", flag}, {"isSymlink", flag}, {"isFolder", flag},
        {"isPackage", flag}, {"deleted", flag}, {"itemCount", count}, {"tagList", list}, {"digest", none},
        {"allocDigest", none}, {"duration", {"1", "1e300"}}, {"latitude", {"1", "-1"}},
        {"longitude", {"1", "-1"}}, {"spotlight", {"true", "1", "-1", "1e300", "\"x\""}}, {"date", none},
        {"pixelSize", text}, {"codecs", text}, {"bitrate", {"1", "1e300"}}, {"trashedURL", none},
        {"statusImage", none}, {"row", count}, {"hidden", flag}};

    std::set<std::string> seen;
    for (const KeyedValue &keyed : keyedValues(plain)) {
        const auto entry = allowed.find(keyed.key);
        ASSERT_NE(entry, allowed.end()) << "a key the test does not know: " << keyed.key;
        seen.insert(keyed.key);
        for (const std::string &value : values) {
            QByteArray changed = plain;
            changed.replace(keyed.begin, keyed.end - keyed.begin, QByteArray::fromStdString(value));
            const ResultsFile::Loaded loaded = read(changed);
            if (entry->second.contains(value)) continue;
            EXPECT_FALSE(loaded.model) << keyed.key << ": " << value;
            // Beyond what the parser holds: the message still names the key.
            if (value == big && keyed.key != "format") {
                EXPECT_TRUE(loaded.error.contains(QStringLiteral("the value of “%1” is out of range")
                                                      .arg(QString::fromStdString(keyed.key))))
                    << keyed.key << ": " << loaded.error.toStdString();
            }
        }
    }
    // The file held every key the test knows: none went untried.
    EXPECT_EQ(seen.size(), allowed.size());
}

} // namespace
