#include "similar/ImagePrint.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>

namespace selfsame
{

namespace
{

constexpr int kGrid = 32;        // the luminance grid the hash is taken from
constexpr int kFrequencies = 11; // enough for the 65 lowest frequencies, DC among them
constexpr std::uint8_t kGreyBelow = 5;
// Similarity falls by 1.25 points a bit: scaled, recompressed, converted, greyed or slightly
// cropped copies stay within 8 bits, hence at 90 or more, while different photographs differ
// in 14 bits or more, and unrelated hashes in about 32 (60).
constexpr double kBitsToNothing = 80.0;

using Grid = std::array<std::array<float, kGrid>, kGrid>;

// The picture's luminance averaged over a kGrid × kGrid division of its area, and its mean chroma.
Grid luminanceGrid(const SmallPicture &picture, double &meanChroma)
{
    Grid grid{};
    const auto *rgb = reinterpret_cast<const std::uint8_t *>(picture.rgb.constData());
    double chroma = 0;
    for (int gy = 0; gy < kGrid; ++gy) {
        const int y0 = gy * picture.height / kGrid;
        const int y1 = std::max(y0 + 1, (gy + 1) * picture.height / kGrid);
        for (int gx = 0; gx < kGrid; ++gx) {
            const int x0 = gx * picture.width / kGrid;
            const int x1 = std::max(x0 + 1, (gx + 1) * picture.width / kGrid);
            double sum = 0;
            for (int y = y0; y < y1; ++y) {
                const std::uint8_t *p = rgb + (std::size_t(y) * picture.width + x0) * 3;
                for (int x = x0; x < x1; ++x, p += 3)
                    sum += 0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2];
            }
            grid[gy][gx] = float(sum / ((y1 - y0) * (x1 - x0)));
        }
    }
    const std::size_t pixels = std::size_t(picture.width) * picture.height;
    for (std::size_t i = 0; i < pixels; ++i) {
        const double r = rgb[3 * i], g = rgb[3 * i + 1], b = rgb[3 * i + 2];
        const double cb = -0.1687 * r - 0.3313 * g + 0.5 * b;
        const double cr = 0.5 * r - 0.4187 * g - 0.0813 * b;
        chroma += std::sqrt(cb * cb + cr * cr);
    }
    meanChroma = chroma / double(pixels);
    return grid;
}

// The grid as the picture is meant to be seen, by its EXIF orientation.
Grid oriented(const Grid &in, int orientation)
{
    constexpr int last = kGrid - 1;
    Grid out{};
    for (int y = 0; y < kGrid; ++y)
        for (int x = 0; x < kGrid; ++x) {
            switch (orientation) {
            case 2:
                out[y][x] = in[y][last - x];
                break;
            case 3:
                out[y][x] = in[last - y][last - x];
                break;
            case 4:
                out[y][x] = in[last - y][x];
                break;
            case 5:
                out[y][x] = in[x][y];
                break;
            case 6:
                out[y][x] = in[last - x][y];
                break;
            case 7:
                out[y][x] = in[last - x][last - y];
                break;
            case 8:
                out[y][x] = in[x][last - y];
                break;
            default:
                out[y][x] = in[y][x];
                break;
            }
        }
    return out;
}

const std::array<std::array<double, kGrid>, kFrequencies> &cosines()
{
    static const auto table = [] {
        std::array<std::array<double, kGrid>, kFrequencies> t{};
        for (int u = 0; u < kFrequencies; ++u)
            for (int x = 0; x < kGrid; ++x)
                t[u][x] = std::cos(std::numbers::pi * (2 * x + 1) * u / (2.0 * kGrid));
        return t;
    }();
    return table;
}

// The 64 lowest frequencies but the mean, lowest first.
const std::array<std::pair<int, int>, 64> &hashedFrequencies()
{
    static const auto order = [] {
        std::vector<std::pair<int, int>> all;
        for (int v = 0; v < kFrequencies; ++v)
            for (int u = 0; u < kFrequencies; ++u)
                if (u + v > 0) all.emplace_back(v, u);
        std::stable_sort(all.begin(), all.end(), [](const auto &a, const auto &b) {
            return a.first + a.second < b.first + b.second;
        });
        std::array<std::pair<int, int>, 64> first{};
        std::copy_n(all.begin(), 64, first.begin());
        return first;
    }();
    return order;
}

} // namespace

bool ImagePrint::isGreyscale() const
{
    return colourfulness < kGreyBelow;
}

std::optional<ImagePrint> imagePrintOf(const SmallPicture &picture)
{
    if (picture.width <= 0 || picture.height <= 0 ||
        picture.rgb.size() < qsizetype(picture.width) * picture.height * 3)
        return std::nullopt;
    double chroma = 0;
    const Grid grid = oriented(luminanceGrid(picture, chroma), picture.orientation);

    // A separable DCT-II, rows first, of the low frequencies only.
    const auto &c = cosines();
    std::array<std::array<double, kFrequencies>, kGrid> rows{};
    for (int y = 0; y < kGrid; ++y)
        for (int u = 0; u < kFrequencies; ++u) {
            double sum = 0;
            for (int x = 0; x < kGrid; ++x)
                sum += grid[y][x] * c[u][x];
            rows[y][u] = sum;
        }
    std::array<std::array<double, kFrequencies>, kFrequencies> dct{};
    for (int v = 0; v < kFrequencies; ++v)
        for (int u = 0; u < kFrequencies; ++u) {
            double sum = 0;
            for (int y = 0; y < kGrid; ++y)
                sum += rows[y][u] * c[v][y];
            dct[v][u] = sum;
        }

    std::array<double, 64> values{};
    const auto &frequencies = hashedFrequencies();
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = dct[frequencies[i].first][frequencies[i].second];
    std::array<double, 64> sorted = values;
    std::nth_element(sorted.begin(), sorted.begin() + 32, sorted.end());
    const double median = sorted[32];
    ImagePrint print;
    for (std::size_t i = 0; i < values.size(); ++i)
        if (values[i] > median) print.hash |= std::uint64_t(1) << i;
    print.colourfulness = std::uint8_t(std::clamp(std::lround(chroma), 0L, 255L));
    return print;
}

QByteArray encodeImagePrint(const ImagePrint &print)
{
    QByteArray bytes(9, Qt::Uninitialized);
    qToLittleEndian(print.hash, bytes.data());
    bytes[8] = char(print.colourfulness);
    return bytes;
}

std::optional<ImagePrint> decodeImagePrint(const QByteArray &bytes)
{
    if (bytes.size() != 9) return std::nullopt;
    return ImagePrint{qFromLittleEndian<std::uint64_t>(bytes.constData()), std::uint8_t(bytes[8])};
}

int hashDistance(std::uint64_t a, std::uint64_t b)
{
    return std::popcount(a ^ b);
}

double imageSimilarity(int distance)
{
    return std::max(0.0, 100.0 * (1.0 - distance / kBitsToNothing));
}

int maxImageDistance(int similarity)
{
    int distance = 0;
    while (distance < 64 && imageSimilarity(distance + 1) >= similarity)
        ++distance;
    return distance;
}

} // namespace selfsame
