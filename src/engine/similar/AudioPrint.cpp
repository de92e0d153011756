#include "similar/AudioPrint.h"

#include <QtEndian>
#include <algorithm>
#include <bit>

namespace selfsame
{

namespace
{

constexpr int kMaxShift = 24; // words: about three seconds either way
constexpr std::size_t kMinOverlap = 16;
// Similarity falls by 10 points for every 0.15 of bits that differ: encodings of one recording,
// even at low bit rates, stay within 0.15, hence at 90 or more, while different pieces differ
// in 0.35 or more (77 or less), and unrelated noise in 0.5 (67).
constexpr double kRateToNothing = 1.5;

} // namespace

QByteArray encodeAudioPrint(const AudioPrint &print)
{
    QByteArray bytes(qsizetype(print.size() * 4), Qt::Uninitialized);
    for (std::size_t i = 0; i < print.size(); ++i)
        qToLittleEndian(print[i], bytes.data() + 4 * i);
    return bytes;
}

AudioPrint decodeAudioPrint(const QByteArray &bytes)
{
    AudioPrint print(std::size_t(bytes.size() / 4));
    for (std::size_t i = 0; i < print.size(); ++i)
        print[i] = qFromLittleEndian<std::uint32_t>(bytes.constData() + 4 * i);
    return print;
}

double fingerprintBitErrorRate(const AudioPrint &a, const AudioPrint &b)
{
    const std::size_t needed = std::max(kMinOverlap, std::min(a.size(), b.size()) / 2);
    double best = 1.0;
    for (int shift = -kMaxShift; shift <= kMaxShift; ++shift) {
        // a[i] against b[i + shift]
        const std::size_t aBegin = shift < 0 ? std::size_t(-shift) : 0;
        const std::size_t bBegin = shift > 0 ? std::size_t(shift) : 0;
        if (aBegin >= a.size() || bBegin >= b.size()) continue;
        const std::size_t overlap = std::min(a.size() - aBegin, b.size() - bBegin);
        if (overlap < needed) continue;
        std::size_t errors = 0;
        for (std::size_t i = 0; i < overlap; ++i)
            errors += std::size_t(std::popcount(a[aBegin + i] ^ b[bBegin + i]));
        best = std::min(best, double(errors) / (32.0 * double(overlap)));
    }
    return best;
}

double audioSimilarity(double bitErrorRate)
{
    return std::clamp(100.0 * (1.0 - bitErrorRate / kRateToNothing), 0.0, 100.0);
}

} // namespace selfsame
