#pragma once

#include "similar/AudioPrint.h"
#include "similar/ImagePrint.h"

#include <cstddef>
#include <vector>

namespace selfsame
{

// One group of the similar modes: its members as indices into the prints, the anchor first,
// and each member's similarity (0–100) to the anchor.
struct SimilarGroup {
    std::vector<std::size_t> members;
    std::vector<double> similarity;
};

// Pictures taken in `order`: each one not yet in a group anchors one with every later picture
// at least `similarity` like it. Every member is compared with the anchor, never with another
// member, so a chain of small differences never joins unrelated pictures. Candidates come from
// a multi-index hash of the prints: no two pictures are compared unless their hashes agree
// exactly on one of the parts the allowed distance cannot all spoil.
std::vector<SimilarGroup> groupPictures(const std::vector<ImagePrint> &prints,
                                        const std::vector<std::size_t> &order, int similarity,
                                        bool distinguishGreyscale);

// Recordings taken in `order` (by whole seconds of duration, longest first): each anchors a
// group with the later ones of about its duration whose fingerprints are at least `similarity`
// like its own.
std::vector<SimilarGroup> groupRecordings(const std::vector<AudioPrint> &prints,
                                          const std::vector<double> &durations,
                                          const std::vector<std::size_t> &order, int similarity);

// How far two recordings' durations may differ and still be one recording.
double durationTolerance(double seconds);

} // namespace selfsame
