#include "similar/Similarity.h"

#include "similar/AudioPrint.h"
#include "similar/ImagePrint.h"

#include <cmath>
#include <limits>

namespace selfsame
{

double similarityOf(DetectionMode mode, const ResultItem &a, const ResultItem &b)
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    if (a.mediaPrint().isEmpty() || b.mediaPrint().isEmpty()) return none;
    if (mode == DetectionMode::SimilarImages) {
        const auto pa = decodeImagePrint(a.mediaPrint()), pb = decodeImagePrint(b.mediaPrint());
        return pa && pb ? imageSimilarity(hashDistance(pa->hash, pb->hash)) : none;
    }
    if (mode == DetectionMode::SimilarAudio) {
        const double rate =
            fingerprintBitErrorRate(decodeAudioPrint(a.mediaPrint()), decodeAudioPrint(b.mediaPrint()));
        return rate > 0.5 ? none : std::round(audioSimilarity(rate));
    }
    return none;
}

} // namespace selfsame
