#pragma once

#include <QByteArray>
#include <cstdint>
#include <vector>

namespace selfsame
{

// An acoustic fingerprint: one 32-bit word per eighth of a second or so of the recording's
// first minutes. Two encodings of one recording give words that differ in few bits.
using AudioPrint = std::vector<std::uint32_t>;

QByteArray encodeAudioPrint(const AudioPrint &print);
AudioPrint decodeAudioPrint(const QByteArray &bytes);

// The share of differing bits, 0–0.5 for unrelated recordings, at the best alignment of the
// two within a couple of seconds; 1 when they overlap too little to tell.
double fingerprintBitErrorRate(const AudioPrint &a, const AudioPrint &b);
// 100 for equal fingerprints, falling to 0 for unrelated recordings.
double audioSimilarity(double bitErrorRate);

} // namespace selfsame
