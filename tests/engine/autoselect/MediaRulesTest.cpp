#include "autoselect/AutomaticSelection.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

// A picture or recording of a similar-mode result; unknown values stay empty.
struct Medium {
    const char *name;
    int group;
    qint64 size = 0;
    const char *pixels = "";
    double bitrate = 0;
    const char *codecs = "";
};

class MediaRules : public ::testing::Test
{
protected:
    void load(DetectionMode mode, std::initializer_list<Medium> media)
    {
        QList<ResultItem> items;
        for (const Medium &m : media) {
            ResultItem item;
            item.path = QStringLiteral("/m/") + QString::fromUtf8(m.name);
            item.group = m.group;
            item.size = m.size;
            item.setPixelSize(QString::fromUtf8(m.pixels));
            item.setBitrate(m.bitrate);
            item.setCodecs(QString::fromUtf8(m.codecs));
            items.append(item);
        }
        SearchRequest request;
        request.searchInFolderURLs = {QStringLiteral("/m")};
        request.detectionMode = mode;
        model.setResults(items, request);
    }
    // "select a, b | keep c" with names sorted within each list.
    std::string run(int rule)
    {
        AutoSelectSettings settings;
        settings.choice = rule;
        const AutoSelectOutcome outcome = performAutomaticallySelect(model, settings);
        return describe(outcome.selection.selected()) + " | " + describe(outcome.selection.skipped());
    }
    static std::string describe(const QList<ResultItem *> &items)
    {
        QStringList names;
        for (const ResultItem *i : items)
            names.append(i->name());
        names.sort();
        return names.join(u' ').toStdString();
    }
    ResultModel model;
};

TEST_F(MediaRules, LargestPictureKeepsTheMostPixelsThenTheLargestFile)
{
    load(DetectionMode::SimilarImages,
         {// The most pixels win over a bigger file.
          {"small.png", 0, 900'000, "800 × 600"},
          {"large.jpg", 0, 400'000, "1600 × 1200"},
          {"crop.jpg", 0, 380'000, "1500 × 1100"},
          // Equal pixels: the larger file, whatever the order.
          {"q60.jpg", 1, 200'000, "1024 × 768"},
          {"q95.jpg", 1, 500'000, "1024 × 768"},
          // Pixels unknown throughout: nothing to go by.
          {"u1.heic", 2, 10, ""},
          {"u2.heic", 2, 20, ""},
          // One known size beats an unknown one.
          {"k.jpg", 3, 10, "10 × 10"},
          {"unknown.jpg", 3, 99, "odd"}});
    EXPECT_EQ(run(LargestPicture), "crop.jpg q60.jpg small.png unknown.jpg | k.jpg large.jpg q95.jpg");

    // A picture already in the trash is neither kept nor selected.
    model.allItems()[1].setTrashedURL(QStringLiteral("/trash/large.jpg"));
    EXPECT_EQ(run(LargestPicture), "q60.jpg small.png unknown.jpg | crop.jpg k.jpg q95.jpg");
}

TEST_F(MediaRules, BestRecordingKeepsTheHighestBitRateThenALosslessFormat)
{
    load(DetectionMode::SimilarAudio,
         {{"song.mp3", 0, 0, "", 320'000, "mp3"},
          {"song.opus", 0, 0, "", 96'000, "opus"},
          {"song.wav", 0, 0, "", 1'411'200, "pcm_s16le"},
          // The same bit rate: the lossless one stays.
          {"a.m4a", 1, 0, "", 256'000, "aac"},
          {"a.mka", 1, 0, "", 256'000, "flac"},
          {"a.ogg", 1, 0, "", 256'000, "vorbis"},
          // Bit rates unknown: lossless still tells them apart.
          {"b.ape", 2, 0, "", 0, "ape"},
          {"b.mp3", 2, 0, "", 0, "mp3"},
          // Nothing known.
          {"c.1", 3},
          {"c.2", 3}});
    EXPECT_EQ(run(BestRecording), "a.m4a a.ogg b.mp3 song.mp3 song.opus | a.mka b.ape song.wav");
}

TEST(MediaRulesTest, LosslessCodecsAmongTheDecodersNames)
{
    for (const char *codecs : {"flac", "alac", "pcm_s24le", "pcm_f32be", "wavpack", "ape", "tta", "h264, flac",
                               "TrueHD"})
        EXPECT_TRUE(hasLosslessAudio(QString::fromLatin1(codecs))) << codecs;
    for (const char *codecs : {"", "mp3", "aac", "opus", "vorbis", "h264, aac", "wmav2", "flac_like"})
        EXPECT_FALSE(hasLosslessAudio(QString::fromLatin1(codecs))) << codecs;
}

TEST(MediaRulesTest, EachModeOffersItsOwnRuleFirstAndKeepsAStoredOneThatFits)
{
    EXPECT_TRUE(autoSelectRuleOffered(LargestPicture, DetectionMode::SimilarImages));
    EXPECT_FALSE(autoSelectRuleOffered(LargestPicture, DetectionMode::Content));
    EXPECT_FALSE(autoSelectRuleOffered(LargestPicture, DetectionMode::SimilarAudio));
    EXPECT_TRUE(autoSelectRuleOffered(BestRecording, DetectionMode::SimilarAudio));
    EXPECT_TRUE(autoSelectRuleOffered(BestRecording, DetectionMode::Duration));
    EXPECT_FALSE(autoSelectRuleOffered(BestRecording, DetectionMode::SimilarImages));
    for (int rule : {SameFolderSameName, SameFolderWhateverName, InsideFolder, ByTag})
        EXPECT_TRUE(autoSelectRuleOffered(rule, DetectionMode::SimilarImages)) << rule;
    EXPECT_FALSE(autoSelectRuleOffered(6, DetectionMode::Content));

    EXPECT_EQ(autoSelectInitialRule(std::nullopt, DetectionMode::SimilarImages), LargestPicture);
    EXPECT_EQ(autoSelectInitialRule(std::nullopt, DetectionMode::SimilarAudio), BestRecording);
    EXPECT_EQ(autoSelectInitialRule(std::nullopt, DetectionMode::Content), SameFolderSameName);
    EXPECT_EQ(autoSelectInitialRule(ByTag, DetectionMode::SimilarImages), ByTag);
    EXPECT_EQ(autoSelectInitialRule(LargestPicture, DetectionMode::SimilarAudio), BestRecording);
    EXPECT_EQ(autoSelectInitialRule(BestRecording, DetectionMode::Content), SameFolderSameName);

    // Applying a rule records it, and nothing more.
    AutoSelectSettings settings;
    settings.choice = LargestPicture;
    ResultModel model;
    QList<ResultItem> items(2);
    items[0].group = items[1].group = 0;
    model.setResults(items, SearchRequest{});
    EXPECT_EQ(performAutomaticallySelect(model, settings).settingsToStore,
              (QVariantMap{{QStringLiteral("auto-select choice"), LargestPicture},
                           {QStringLiteral("auto-select hide"), false}}));
}

} // namespace
