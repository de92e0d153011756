// Decodes a picture to a few hundred pixels on its long side for its perceptual print: JPEG
// through libjpeg's scaled decoding, which skips most of the work, HEIF through libheif, camera
// raw files through their embedded preview, everything else through FFmpeg.

#include "similar/ImagePrint.h"

#include <QCoreApplication>
#include <QString>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libswscale/swscale.h>
}
#include <jpeglib.h>
#include <libheif/heif.h>
// Exiv2 0.27 hands images out in std::auto_ptr, deprecated since C++11.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
#include <algorithm>
#include <chrono>
#include <csetjmp>
#include <cstring>
#include <exiv2/exiv2.hpp>
#include <fcntl.h>
#include <memory>
#include <mutex>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

using Clock = std::chrono::steady_clock;

// Against decompression bombs: a picture claiming more pixels than any camera makes is not
// decoded, and no picture may take longer than this.
constexpr qint64 kMaxPixels = 400'000'000;
constexpr auto kTimeLimit = std::chrono::seconds(10);
constexpr int kWantedSide = 96; // the decode may stop shrinking once below this
constexpr int kKeptSide = 512;  // what is handed over is reduced to at most this

struct PictureDecoderText {
    Q_DECLARE_TR_FUNCTIONS(PictureDecoder)
};

QString tooLarge(qint64 width, qint64 height)
{
    return PictureDecoderText::tr("The picture is too large to decode (%1 × %2 pixels).")
        .arg(width)
        .arg(height);
}

// A file mapped into memory for the decoders that take a buffer.
class MappedFile
{
public:
    explicit MappedFile(const QByteArray &path)
    {
        const int fd = open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
        if (fd < 0) return;
        struct stat st;
        if (fstat(fd, &st) == 0 && S_ISREG(st.st_mode) && st.st_size > 0) {
            void *data = mmap(nullptr, std::size_t(st.st_size), PROT_READ, MAP_PRIVATE, fd, 0);
            if (data != MAP_FAILED) {
                m_data = static_cast<const unsigned char *>(data);
                m_size = std::size_t(st.st_size);
            }
        }
        close(fd);
    }
    ~MappedFile()
    {
        if (m_data) munmap(const_cast<unsigned char *>(m_data), m_size);
    }
    MappedFile(const MappedFile &) = delete;
    MappedFile &operator=(const MappedFile &) = delete;

    const unsigned char *data() const { return m_data; }
    std::size_t size() const { return m_size; }

private:
    const unsigned char *m_data = nullptr;
    std::size_t m_size = 0;
};

// Box-averages interleaved RGB rows down by a whole factor until the long side is at most kKeptSide.
SmallPicture reduced(const unsigned char *rgb, int width, int height, std::size_t stride)
{
    const int factor = std::max(1, (std::max(width, height) + kKeptSide - 1) / kKeptSide);
    SmallPicture out;
    out.width = std::max(1, width / factor);
    out.height = std::max(1, height / factor);
    out.rgb = QByteArray(qsizetype(out.width) * out.height * 3, Qt::Uninitialized);
    auto *target = reinterpret_cast<unsigned char *>(out.rgb.data());
    for (int y = 0; y < out.height; ++y)
        for (int x = 0; x < out.width; ++x) {
            unsigned sum[3] = {0, 0, 0};
            int count = 0;
            for (int dy = 0; dy < factor && y * factor + dy < height; ++dy) {
                const unsigned char *p =
                    rgb + std::size_t(y * factor + dy) * stride + std::size_t(x * factor) * 3;
                for (int dx = 0; dx < factor && x * factor + dx < width; ++dx, p += 3, ++count)
                    for (int c = 0; c < 3; ++c)
                        sum[c] += p[c];
            }
            for (int c = 0; c < 3; ++c)
                *target++ = static_cast<unsigned char>(sum[c] / unsigned(std::max(count, 1)));
        }
    return out;
}

// --- JPEG -------------------------------------------------------------------------------

struct JpegErrors {
    jpeg_error_mgr manager;
    std::jmp_buf jump;
    char message[JMSG_LENGTH_MAX] = {};
    Clock::time_point deadline;
    bool timedOut = false;
};

void jpegFailed(j_common_ptr info)
{
    auto *errors = reinterpret_cast<JpegErrors *>(info->err);
    (*info->err->format_message)(info, errors->message);
    std::longjmp(errors->jump, 1);
}

void jpegQuiet(j_common_ptr, int) {}

void jpegProgress(j_common_ptr info)
{
    auto *errors = reinterpret_cast<JpegErrors *>(info->err);
    if (Clock::now() > errors->deadline) {
        errors->timedOut = true;
        std::longjmp(errors->jump, 1);
    }
}

// What a JPEG's APP1 segment tells: the EXIF orientation (1 when there is none) and where the
// thumbnail that cameras embed lies, if any.
struct ExifFacts {
    int orientation = 1;
    const unsigned char *thumbnail = nullptr;
    std::size_t thumbnailSize = 0;
};

ExifFacts readExif(const jpeg_saved_marker_ptr markers)
{
    ExifFacts facts;
    for (jpeg_saved_marker_ptr m = markers; m; m = m->next) {
        if (m->marker != JPEG_APP0 + 1 || m->data_length < 14 || std::memcmp(m->data, "Exif\0\0", 6) != 0)
            continue;
        const unsigned char *tiff = m->data + 6;
        const std::size_t length = m->data_length - 6;
        const bool little = tiff[0] == 'I';
        auto u16 = [&](std::size_t at) -> unsigned {
            return at + 2 > length ? 0 : little ? tiff[at] | tiff[at + 1] << 8 : tiff[at] << 8 | tiff[at + 1];
        };
        auto u32 = [&](std::size_t at) -> std::size_t {
            return at + 4 > length ? 0
                   : little        ? std::size_t(u16(at)) | std::size_t(u16(at + 2)) << 16
                                   : std::size_t(u16(at)) << 16 | std::size_t(u16(at + 2));
        };
        // The first directory describes the picture, the second its thumbnail.
        const std::size_t ifd0 = u32(4);
        const unsigned entries0 = u16(ifd0);
        for (unsigned i = 0; i < entries0; ++i) {
            const std::size_t entry = ifd0 + 2 + 12 * std::size_t(i);
            if (entry + 12 > length) break;
            if (u16(entry) == 0x0112) {
                const unsigned value = u16(entry + 8);
                facts.orientation = value >= 1 && value <= 8 ? int(value) : 1;
            }
        }
        const std::size_t ifd1 = u32(ifd0 + 2 + 12 * std::size_t(entries0));
        if (ifd1 == 0 || ifd1 >= length) return facts;
        std::size_t offset = 0, size = 0;
        const unsigned entries1 = u16(ifd1);
        for (unsigned i = 0; i < entries1; ++i) {
            const std::size_t entry = ifd1 + 2 + 12 * std::size_t(i);
            if (entry + 12 > length) break;
            if (u16(entry) == 0x0201) offset = u32(entry + 8);
            if (u16(entry) == 0x0202) size = u32(entry + 8);
        }
        if (offset > 0 && size > 0 && offset < length && size <= length - offset) {
            facts.thumbnail = tiff + offset;
            facts.thumbnailSize = size;
        }
        return facts;
    }
    return facts;
}

QString decodeJpeg(const unsigned char *data, std::size_t size, SmallPicture &picture, qint64 &width,
                   qint64 &height, bool readOrientation, bool mayUseThumbnail = false)
{
    jpeg_decompress_struct info;
    JpegErrors errors;
    info.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = jpegFailed;
    errors.manager.emit_message = jpegQuiet;
    errors.deadline = Clock::now() + kTimeLimit;
    jpeg_progress_mgr progress{};
    progress.progress_monitor = jpegProgress;
    std::vector<unsigned char> rgb;
    if (setjmp(errors.jump)) {
        jpeg_destroy_decompress(&info);
        if (errors.timedOut) return PictureDecoderText::tr("Decoding the picture took too long.");
        return PictureDecoderText::tr("The picture cannot be decoded: %1")
            .arg(QString::fromLocal8Bit(errors.message));
    }
    jpeg_create_decompress(&info);
    info.progress = &progress;
    jpeg_mem_src(&info, data, static_cast<unsigned long>(size));
    if (readOrientation) jpeg_save_markers(&info, JPEG_APP0 + 1, 0xffff);
    jpeg_read_header(&info, TRUE);
    width = info.image_width;
    height = info.image_height;
    if (width * height > kMaxPixels) {
        jpeg_destroy_decompress(&info);
        return tooLarge(width, height);
    }
    const ExifFacts exif = readOrientation ? readExif(info.marker_list) : ExifFacts();
    // A camera's own thumbnail spares reading the whole picture, which costs most of the time
    // for large photographs. It is taken only when its shape is the picture's: one that a
    // crop left behind is not. The search decodes the picture itself before it trusts a match.
    if (mayUseThumbnail && exif.thumbnail) {
        SmallPicture thumbnail;
        qint64 thumbnailWidth = 0, thumbnailHeight = 0;
        const bool decoded =
            decodeJpeg(exif.thumbnail, exif.thumbnailSize, thumbnail, thumbnailWidth, thumbnailHeight, false)
                .isEmpty();
        const double shape = double(width) / double(height);
        if (decoded && std::max(thumbnailWidth, thumbnailHeight) >= 120 &&
            std::abs(double(thumbnailWidth) / double(thumbnailHeight) - shape) < 0.02 * shape) {
            jpeg_destroy_decompress(&info);
            picture = std::move(thumbnail);
            picture.orientation = exif.orientation;
            picture.fromThumbnail = true;
            return {};
        }
    }
    const unsigned longSide = std::max(info.image_width, info.image_height);
    unsigned denominator = 8;
    while (denominator > 1 && longSide / denominator < kWantedSide)
        denominator /= 2;
    info.scale_num = 1;
    info.scale_denom = denominator;
    info.dct_method = JDCT_IFAST;
    info.do_fancy_upsampling = FALSE;
    info.do_block_smoothing = FALSE;
    const bool cmyk = info.jpeg_color_space == JCS_CMYK || info.jpeg_color_space == JCS_YCCK;
    info.out_color_space = cmyk ? JCS_CMYK : JCS_RGB;
    jpeg_start_decompress(&info);
    const int components = info.output_components;
    const std::size_t stride = std::size_t(info.output_width) * std::size_t(components);
    rgb.resize(stride * info.output_height);
    while (info.output_scanline < info.output_height) {
        JSAMPROW row = rgb.data() + stride * info.output_scanline;
        jpeg_read_scanlines(&info, &row, 1);
    }
    if (cmyk) {
        // Adobe's CMYK JPEGs store the inks inverted.
        const bool inverted = info.saw_Adobe_marker;
        const std::size_t pixels = std::size_t(info.output_width) * info.output_height;
        for (std::size_t i = 0; i < pixels; ++i) {
            unsigned char *p = rgb.data() + 4 * i;
            const unsigned k = inverted ? p[3] : 255u - p[3];
            for (int c = 0; c < 3; ++c) {
                const unsigned ink = inverted ? p[c] : 255u - p[c];
                rgb[3 * i + std::size_t(c)] = static_cast<unsigned char>(ink * k / 255u);
            }
        }
    }
    const int orientation = exif.orientation;
    const int outWidth = int(info.output_width), outHeight = int(info.output_height);
    jpeg_finish_decompress(&info);
    jpeg_destroy_decompress(&info);
    picture = reduced(rgb.data(), outWidth, outHeight, std::size_t(outWidth) * 3);
    picture.orientation = orientation;
    return {};
}

// --- HEIF -------------------------------------------------------------------------------

bool isHeif(const unsigned char *data, std::size_t size)
{
    if (size < 12 || std::memcmp(data + 4, "ftyp", 4) != 0) return false;
    static const char *const brands[] = {"heic", "heix", "hevc", "hevx", "heim",
                                         "heis", "mif1", "msf1", "avif"};
    return std::any_of(std::begin(brands), std::end(brands),
                       [&](const char *brand) { return std::memcmp(data + 8, brand, 4) == 0; });
}

QString decodeHeif(const QByteArray &path, SmallPicture &picture, qint64 &width, qint64 &height)
{
    std::unique_ptr<heif_context, decltype(&heif_context_free)> context(heif_context_alloc(),
                                                                        heif_context_free);
    heif_error error = heif_context_read_from_file(context.get(), path.constData(), nullptr);
    heif_image_handle *primary = nullptr;
    if (error.code == heif_error_Ok) error = heif_context_get_primary_image_handle(context.get(), &primary);
    if (error.code != heif_error_Ok)
        return PictureDecoderText::tr("The picture cannot be decoded: %1")
            .arg(QString::fromUtf8(error.message));
    std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)> handle(
        primary, heif_image_handle_release);
    width = heif_image_handle_get_width(primary);
    height = heif_image_handle_get_height(primary);
    if (width * height > kMaxPixels) return tooLarge(width, height);
    // A thumbnail large enough for the print spares decoding the whole picture.
    heif_image_handle *source = primary;
    std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)> thumbnail(
        nullptr, heif_image_handle_release);
    heif_item_id thumbnailId = 0;
    if (heif_image_handle_get_list_of_thumbnail_IDs(primary, &thumbnailId, 1) == 1) {
        heif_image_handle *candidate = nullptr;
        if (heif_image_handle_get_thumbnail(primary, thumbnailId, &candidate).code == heif_error_Ok) {
            thumbnail.reset(candidate);
            if (std::max(heif_image_handle_get_width(candidate), heif_image_handle_get_height(candidate)) >=
                kWantedSide)
                source = candidate;
        }
    }
    heif_image *image = nullptr;
    // Decoding applies the picture's rotation and mirroring.
    error = heif_decode_image(source, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGB, nullptr);
    if (error.code != heif_error_Ok)
        return PictureDecoderText::tr("The picture cannot be decoded: %1")
            .arg(QString::fromUtf8(error.message));
    std::unique_ptr<heif_image, decltype(&heif_image_release)> decoded(image, heif_image_release);
    int stride = 0;
    const uint8_t *plane = heif_image_get_plane_readonly(image, heif_channel_interleaved, &stride);
    const int w = heif_image_get_width(image, heif_channel_interleaved);
    const int h = heif_image_get_height(image, heif_channel_interleaved);
    if (!plane || w <= 0 || h <= 0) return PictureDecoderText::tr("The picture cannot be decoded.");
    picture = reduced(plane, w, h, std::size_t(stride));
    return {};
}

// --- Camera raw files and the rest ---------------------------------------------------------

bool isCameraRaw(const QByteArray &path)
{
    static const char *const extensions[] = {".cr2", ".cr3", ".nef", ".nrw", ".arw", ".srf", ".sr2",
                                             ".dng", ".orf", ".rw2", ".raf", ".pef", ".srw", ".x3f",
                                             ".3fr", ".erf", ".kdc", ".mrw", ".rwl", ".iiq"};
    const QByteArray lower = path.toLower();
    return std::any_of(std::begin(extensions), std::end(extensions),
                       [&](const char *extension) { return lower.endsWith(extension); });
}

int exiv2Orientation(Exiv2::Image &image)
{
    const Exiv2::ExifData &exif = image.exifData();
    const auto it = exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    if (it == exif.end() || it->count() == 0) return 1;
    const long value = it->toLong();
    return value >= 1 && value <= 8 ? int(value) : 1;
}

QString decodeRawPreview(const QByteArray &path, SmallPicture &picture, qint64 &width, qint64 &height)
{
    try {
        Exiv2::Image::AutoPtr image = Exiv2::ImageFactory::open(path.toStdString(), false);
        if (!image.get()) return PictureDecoderText::tr("The picture cannot be decoded.");
        image->readMetadata();
        Exiv2::PreviewManager previews(*image);
        const Exiv2::PreviewPropertiesList list = previews.getPreviewProperties();
        const auto largest = std::max_element(list.begin(), list.end(), [](const auto &a, const auto &b) {
            return qint64(a.width_) * a.height_ < qint64(b.width_) * b.height_;
        });
        if (largest == list.end() || largest->mimeType_ != "image/jpeg")
            return PictureDecoderText::tr("The camera raw file holds no preview that can be read.");
        const Exiv2::PreviewImage preview = previews.getPreviewImage(*largest);
        qint64 previewWidth = 0, previewHeight = 0;
        const QString problem =
            decodeJpeg(preview.pData(), preview.size(), picture, previewWidth, previewHeight, false);
        if (!problem.isEmpty()) return problem;
        width = image->pixelWidth() > 0 ? image->pixelWidth() : previewWidth;
        height = image->pixelHeight() > 0 ? image->pixelHeight() : previewHeight;
        picture.orientation = exiv2Orientation(*image);
        return {};
    } catch (const std::exception &e) {
        return PictureDecoderText::tr("The picture cannot be decoded: %1").arg(QString::fromUtf8(e.what()));
    }
}

int orientationOf(const QByteArray &path)
{
    try {
        Exiv2::Image::AutoPtr image = Exiv2::ImageFactory::open(path.toStdString(), false);
        if (!image.get()) return 1;
        image->readMetadata();
        return exiv2Orientation(*image);
    } catch (const std::exception &) {
        return 1;
    }
}

int ffmpegInterrupted(void *opaque)
{
    return Clock::now() > *static_cast<const Clock::time_point *>(opaque) ? 1 : 0;
}

QString decodeWithFfmpeg(const QByteArray &path, SmallPicture &picture, qint64 &width, qint64 &height)
{
    const Clock::time_point deadline = Clock::now() + kTimeLimit;
    AVFormatContext *format = avformat_alloc_context();
    if (!format) return PictureDecoderText::tr("Out of memory.");
    format->interrupt_callback = {ffmpegInterrupted, const_cast<Clock::time_point *>(&deadline)};
    if (avformat_open_input(&format, path.constData(), nullptr, nullptr) != 0)
        return PictureDecoderText::tr("The file is not a picture that can be read.");
    std::unique_ptr<AVFormatContext *, void (*)(AVFormatContext **)> closeFormat(&format,
                                                                                 avformat_close_input);
    const AVCodec *codec = nullptr;
    const int stream = av_find_best_stream(format, AVMEDIA_TYPE_VIDEO, -1, -1, &codec, 0);
    if (stream < 0 || !codec) return PictureDecoderText::tr("The file is not a picture that can be read.");
    const AVCodecParameters *parameters = format->streams[stream]->codecpar;
    if (qint64(parameters->width) * parameters->height > kMaxPixels)
        return tooLarge(parameters->width, parameters->height);
    std::unique_ptr<AVCodecContext, void (*)(AVCodecContext *)> decoder(
        avcodec_alloc_context3(codec), [](AVCodecContext *c) { avcodec_free_context(&c); });
    if (!decoder || avcodec_parameters_to_context(decoder.get(), parameters) < 0 ||
        avcodec_open2(decoder.get(), codec, nullptr) < 0)
        return PictureDecoderText::tr("The picture cannot be decoded.");
    std::unique_ptr<AVFrame, void (*)(AVFrame *)> frame(av_frame_alloc(),
                                                        [](AVFrame *f) { av_frame_free(&f); });
    std::unique_ptr<AVPacket, void (*)(AVPacket *)> packet(av_packet_alloc(),
                                                           [](AVPacket *p) { av_packet_free(&p); });
    bool decoded = false;
    while (!decoded && av_read_frame(format, packet.get()) >= 0) {
        if (packet->stream_index == stream && avcodec_send_packet(decoder.get(), packet.get()) >= 0)
            decoded = avcodec_receive_frame(decoder.get(), frame.get()) >= 0;
        av_packet_unref(packet.get());
        if (Clock::now() > deadline) return PictureDecoderText::tr("Decoding the picture took too long.");
    }
    if (!decoded && avcodec_send_packet(decoder.get(), nullptr) >= 0)
        decoded = avcodec_receive_frame(decoder.get(), frame.get()) >= 0;
    if (!decoded || frame->width <= 0 || frame->height <= 0)
        return PictureDecoderText::tr("The picture cannot be decoded.");
    width = frame->width;
    height = frame->height;
    const double scale = std::min(1.0, double(kKeptSide) / std::max(frame->width, frame->height));
    const int outWidth = std::max(1, int(frame->width * scale)),
              outHeight = std::max(1, int(frame->height * scale));
    SwsContext *sws = sws_getContext(frame->width, frame->height, AVPixelFormat(frame->format), outWidth,
                                     outHeight, AV_PIX_FMT_RGB24, SWS_AREA, nullptr, nullptr, nullptr);
    if (!sws) return PictureDecoderText::tr("The picture cannot be decoded.");
    picture.width = outWidth;
    picture.height = outHeight;
    picture.rgb = QByteArray(qsizetype(outWidth) * outHeight * 3, Qt::Uninitialized);
    uint8_t *planes[4] = {reinterpret_cast<uint8_t *>(picture.rgb.data()), nullptr, nullptr, nullptr};
    const int strides[4] = {outWidth * 3, 0, 0, 0};
    sws_scale(sws, frame->data, frame->linesize, 0, frame->height, planes, strides);
    sws_freeContext(sws);
    picture.orientation = orientationOf(path);
    return {};
}

} // namespace

QString decodeSmallPictureNow(const QByteArray &path, bool mayUseThumbnail, SmallPicture &picture,
                              qint64 &width, qint64 &height)
{
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });
    if (isCameraRaw(path)) return decodeRawPreview(path, picture, width, height);
    const MappedFile file(path);
    if (!file.data()) return PictureDecoderText::tr("The file cannot be read.");
    if (file.size() >= 3 && file.data()[0] == 0xff && file.data()[1] == 0xd8 && file.data()[2] == 0xff)
        return decodeJpeg(file.data(), file.size(), picture, width, height, true, mayUseThumbnail);
    if (isHeif(file.data(), file.size())) return decodeHeif(path, picture, width, height);
    return decodeWithFfmpeg(path, picture, width, height);
}

} // namespace selfsame
#pragma GCC diagnostic pop
