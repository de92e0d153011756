#include "similar/SimilarGrouping.h"

#include "similar/AudioPrint.h"
#include "similar/ImagePrint.h"

#include <gtest/gtest.h>
#include <numeric>
#include <random>

using namespace selfsame;

namespace
{

std::vector<std::size_t> inOrder(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

std::uint64_t flipped(std::uint64_t hash, int bits, int from = 0)
{
    for (int b = 0; b < bits; ++b)
        hash ^= std::uint64_t(1) << (from + b);
    return hash;
}

// A picture whose every pixel differs, so that turning it shows in the hash.
SmallPicture pattern(int width, int height)
{
    SmallPicture picture{width, height, 1, QByteArray(width * height * 3, Qt::Uninitialized)};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int v =
                (x * 255 / width + (y * y * 255) / (height * height) + ((x / 16 + y / 12) % 2) * 60) % 256;
            for (int c = 0; c < 3; ++c)
                picture.rgb[(y * width + x) * 3 + c] = char(v);
        }
    return picture;
}

// Turned a quarter clockwise, as a camera held upright writes it before it notes orientation 8.
SmallPicture turnedClockwise(const SmallPicture &in)
{
    SmallPicture out{in.height, in.width, 1, QByteArray(in.rgb.size(), Qt::Uninitialized)};
    for (int y = 0; y < in.height; ++y)
        for (int x = 0; x < in.width; ++x)
            for (int c = 0; c < 3; ++c)
                out.rgb[((x)*out.width + (in.height - 1 - y)) * 3 + c] = in.rgb[(y * in.width + x) * 3 + c];
    return out;
}

TEST(ImagePrint, OrientationIsAppliedAndColourIsMeasured)
{
    const SmallPicture upright = pattern(160, 120);
    const ImagePrint reference = *imagePrintOf(upright);
    SmallPicture turned = turnedClockwise(upright);
    EXPECT_GT(hashDistance(imagePrintOf(turned)->hash, reference.hash), 16) << "turning must change the hash";
    turned.orientation = 8; // shown after a quarter turn anticlockwise
    EXPECT_LE(hashDistance(imagePrintOf(turned)->hash, reference.hash), 2);
    EXPECT_TRUE(reference.isGreyscale());

    SmallPicture red = upright;
    for (qsizetype i = 0; i < red.rgb.size(); i += 3)
        red.rgb[i] = char(255);
    EXPECT_FALSE(imagePrintOf(red)->isGreyscale());
    EXPECT_FALSE(imagePrintOf(SmallPicture{4, 4, 1, QByteArray(10, 0)})) << "fewer bytes than pixels";
}

TEST(ImagePrint, ThresholdAndSimilarityAgree)
{
    for (int similarity = 0; similarity <= 100; ++similarity) {
        const int distance = maxImageDistance(similarity);
        EXPECT_GE(imageSimilarity(distance), similarity);
        if (distance < 64) {
            EXPECT_LT(imageSimilarity(distance + 1), similarity);
        }
    }
    EXPECT_EQ(maxImageDistance(90), 8);
}

TEST(SimilarGrouping, PicturesGroupAroundAnchorsNeverThroughChains)
{
    const std::uint64_t a = 0x0123456789abcdefULL;
    // b is 8 bits from a, c 8 bits from b but 16 from a: c must not join a's group.
    const std::vector<ImagePrint> prints = {
        {a, 40}, {flipped(a, 8), 40}, {flipped(a, 16), 40}, {flipped(a, 2, 40), 0}};
    const std::vector<SimilarGroup> groups = groupPictures(prints, inOrder(4), 90, false);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].members, (std::vector<std::size_t>{0, 1, 3}));
    EXPECT_EQ(groups[0].similarity, (std::vector<double>{100, 90, 97.5}));

    // Anchored on c, it is b that joins; a stays alone.
    const std::vector<SimilarGroup> fromC = groupPictures(prints, {2, 1, 0, 3}, 90, false);
    ASSERT_EQ(fromC.size(), 2u);
    EXPECT_EQ(fromC[0].members, (std::vector<std::size_t>{2, 1}));
    EXPECT_EQ(fromC[1].members, (std::vector<std::size_t>{0, 3}));

    // Told apart by colour, the grey picture leaves.
    const std::vector<SimilarGroup> byColour = groupPictures(prints, inOrder(4), 90, true);
    ASSERT_EQ(byColour.size(), 1u);
    EXPECT_EQ(byColour[0].members, (std::vector<std::size_t>{0, 1}));
}

TEST(SimilarGrouping, MultiIndexFindsWhatComparingEveryPairFinds)
{
    std::mt19937_64 random(7);
    std::vector<ImagePrint> prints;
    for (int family = 0; family < 60; ++family) {
        const std::uint64_t base = random();
        for (int member = 0; member < 5; ++member) {
            std::uint64_t hash = base;
            for (int flips = int(random() % 14); flips > 0; --flips)
                hash ^= std::uint64_t(1) << (random() % 64);
            prints.push_back({hash, std::uint8_t(random() % 30)});
        }
    }
    std::vector<std::size_t> order = inOrder(prints.size());
    std::shuffle(order.begin(), order.end(), random);
    for (const int similarity : {100, 95, 90, 80, 70}) {
        // The same anchored grouping, by comparing each anchor with every later picture.
        std::vector<SimilarGroup> expected;
        std::vector<bool> grouped(prints.size());
        for (std::size_t k = 0; k < order.size(); ++k) {
            if (grouped[order[k]]) continue;
            SimilarGroup group{{order[k]}, {100.0}};
            for (std::size_t j = k + 1; j < order.size(); ++j) {
                const int distance = hashDistance(prints[order[k]].hash, prints[order[j]].hash);
                if (!grouped[order[j]] && imageSimilarity(distance) >= similarity) {
                    group.members.push_back(order[j]);
                    group.similarity.push_back(imageSimilarity(distance));
                }
            }
            if (group.members.size() < 2) continue;
            for (std::size_t m : group.members)
                grouped[m] = true;
            expected.push_back(group);
        }
        const std::vector<SimilarGroup> found = groupPictures(prints, order, similarity, false);
        ASSERT_EQ(found.size(), expected.size()) << similarity;
        for (std::size_t g = 0; g < found.size(); ++g) {
            EXPECT_EQ(found[g].members, expected[g].members) << similarity;
            EXPECT_EQ(found[g].similarity, expected[g].similarity) << similarity;
        }
    }
}

TEST(SimilarGrouping, RecordingsAlignWithinSecondsAndNeedAboutTheirDuration)
{
    std::mt19937 random(3);
    AudioPrint original(400);
    for (std::uint32_t &word : original)
        word = random();
    // The same sound starting 10 words later, with a few bits spoilt as by a lossy encoder.
    AudioPrint late(original.begin() + 10, original.end());
    for (std::size_t i = 0; i < late.size(); i += 3)
        late[i] ^= 1u << (random() % 32);
    AudioPrint other(400);
    for (std::uint32_t &word : other)
        word = random();
    EXPECT_LT(fingerprintBitErrorRate(original, late), 0.02);
    EXPECT_GT(fingerprintBitErrorRate(original, other), 0.4);
    EXPECT_EQ(fingerprintBitErrorRate(original, AudioPrint(5, 0)), 1.0) << "too short to tell";
    EXPECT_EQ(decodeAudioPrint(encodeAudioPrint(late)), late);

    const std::vector<AudioPrint> prints = {original, other, late, original};
    // The last is the same recording but minutes longer: the duration keeps it out.
    const std::vector<double> durations = {200.0, 199.5, 199.0, 400.0};
    const std::vector<SimilarGroup> groups = groupRecordings(prints, durations, {3, 0, 1, 2}, 90);
    ASSERT_EQ(groups.size(), 1u);
    EXPECT_EQ(groups[0].members, (std::vector<std::size_t>{0, 2}));
    EXPECT_GE(groups[0].similarity[1], 98);
}

} // namespace
