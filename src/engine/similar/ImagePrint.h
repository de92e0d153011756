#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>

namespace selfsame
{

// A picture as the media module hands it over: 8-bit RGB rows, already reduced to a few hundred
// pixels on their long side, and the EXIF orientation (1–8) still to apply.
struct SmallPicture {
    int width = 0;
    int height = 0;
    int orientation = 1;
    QByteArray rgb;             // width × height × 3 bytes
    bool fromThumbnail = false; // the thumbnail a camera embedded, not the picture itself
};

// What the similar-pictures mode compares: a 64-bit hash of the low frequencies of the
// picture's luminance, which survives scaling, recompression and small crops, and how
// colourful the picture is, which tells a grey copy from its colour original.
struct ImagePrint {
    std::uint64_t hash = 0;
    std::uint8_t colourfulness = 0; // mean chroma, 0–255

    bool isGreyscale() const;
};

std::optional<ImagePrint> imagePrintOf(const SmallPicture &picture);

QByteArray encodeImagePrint(const ImagePrint &print);
std::optional<ImagePrint> decodeImagePrint(const QByteArray &bytes);

int hashDistance(std::uint64_t a, std::uint64_t b);
// 100 for equal hashes, falling to 0 at the distance of unrelated pictures.
double imageSimilarity(int distance);
// The largest distance whose similarity is still at least `similarity`.
int maxImageDistance(int similarity);

} // namespace selfsame
