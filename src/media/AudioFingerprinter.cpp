// The acoustic fingerprint of a recording's first minutes: FFmpeg decodes, resamples to the
// mono 11,025 Hz the fingerprinter works at, and Chromaprint makes the fingerprint.

#include "similar/AudioPrint.h"

#include <QCoreApplication>
#include <QString>

extern "C" {
#include <libavcodec/avcodec.h>
#include <libavformat/avformat.h>
#include <libavutil/channel_layout.h>
#include <libavutil/opt.h>
#include <libswresample/swresample.h>
}
#include <chromaprint.h>
#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

namespace selfsame
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr int kSampleRate = 11025;
constexpr int kFingerprintedSeconds = 120;
constexpr auto kTimeLimit = std::chrono::seconds(20);

struct AudioFingerprinterText {
    Q_DECLARE_TR_FUNCTIONS(AudioFingerprinter)
};

int interrupted(void *opaque)
{
    return Clock::now() > *static_cast<const Clock::time_point *>(opaque) ? 1 : 0;
}

template <typename T, void (*Free)(T **)> struct Freed {
    void operator()(T *p) const { Free(&p); }
};

} // namespace

QString fingerprintRecordingNow(const QByteArray &path, AudioPrint &print)
{
    static std::once_flag quiet;
    std::call_once(quiet, [] { av_log_set_level(AV_LOG_QUIET); });
    const Clock::time_point deadline = Clock::now() + kTimeLimit;
    AVFormatContext *format = avformat_alloc_context();
    if (!format) return AudioFingerprinterText::tr("Out of memory.");
    format->interrupt_callback = {interrupted, const_cast<Clock::time_point *>(&deadline)};
    if (avformat_open_input(&format, path.constData(), nullptr, nullptr) != 0)
        return AudioFingerprinterText::tr("The file is not a recording that can be read.");
    std::unique_ptr<AVFormatContext *, void (*)(AVFormatContext **)> closeFormat(&format,
                                                                                 avformat_close_input);
    if (avformat_find_stream_info(format, nullptr) < 0)
        return AudioFingerprinterText::tr("The file is not a recording that can be read.");
    const AVCodec *codec = nullptr;
    const int stream = av_find_best_stream(format, AVMEDIA_TYPE_AUDIO, -1, -1, &codec, 0);
    if (stream < 0 || !codec) return AudioFingerprinterText::tr("The file holds no sound.");
    std::unique_ptr<AVCodecContext, Freed<AVCodecContext, avcodec_free_context>> decoder(
        avcodec_alloc_context3(codec));
    if (!decoder || avcodec_parameters_to_context(decoder.get(), format->streams[stream]->codecpar) < 0 ||
        avcodec_open2(decoder.get(), codec, nullptr) < 0)
        return AudioFingerprinterText::tr("The sound cannot be decoded.");

    AVChannelLayout mono = AV_CHANNEL_LAYOUT_MONO;
    SwrContext *resampler = nullptr;
    if (decoder->ch_layout.nb_channels <= 0 || decoder->sample_rate <= 0 ||
        swr_alloc_set_opts2(&resampler, &mono, AV_SAMPLE_FMT_S16, kSampleRate, &decoder->ch_layout,
                            decoder->sample_fmt, decoder->sample_rate, 0, nullptr) < 0 ||
        // A short filter: fingerprints look at the notes below 3.5 kHz, far from the new
        // Nyquist frequency, and the default filter would cost a fifth of the work.
        av_opt_set_int(resampler, "filter_size", 8, 0) < 0 ||
        av_opt_set_int(resampler, "phase_shift", 6, 0) < 0 || swr_init(resampler) < 0) {
        swr_free(&resampler);
        return AudioFingerprinterText::tr("The sound cannot be decoded.");
    }
    std::unique_ptr<SwrContext, Freed<SwrContext, swr_free>> freeResampler(resampler);
    std::unique_ptr<ChromaprintContext, void (*)(ChromaprintContext *)> fingerprinter(
        chromaprint_new(CHROMAPRINT_ALGORITHM_DEFAULT), chromaprint_free);
    if (!fingerprinter || !chromaprint_start(fingerprinter.get(), kSampleRate, 1))
        return AudioFingerprinterText::tr("Out of memory.");

    std::unique_ptr<AVFrame, Freed<AVFrame, av_frame_free>> frame(av_frame_alloc());
    std::unique_ptr<AVPacket, Freed<AVPacket, av_packet_free>> packet(av_packet_alloc());
    std::vector<int16_t> samples;
    qint64 fed = 0;
    constexpr qint64 wanted = qint64(kSampleRate) * kFingerprintedSeconds;
    auto feed = [&]() {
        while (fed < wanted && avcodec_receive_frame(decoder.get(), frame.get()) >= 0) {
            const int room = swr_get_out_samples(resampler, frame->nb_samples);
            samples.resize(std::size_t(std::max(room, 0)));
            auto *out = reinterpret_cast<uint8_t *>(samples.data());
            const int made = swr_convert(
                resampler, &out, room, const_cast<const uint8_t **>(frame->extended_data), frame->nb_samples);
            if (made > 0) {
                const int used = int(std::min<qint64>(made, wanted - fed));
                chromaprint_feed(fingerprinter.get(), samples.data(), used);
                fed += used;
            }
            av_frame_unref(frame.get());
        }
    };
    while (fed < wanted && av_read_frame(format, packet.get()) >= 0) {
        if (packet->stream_index == stream && avcodec_send_packet(decoder.get(), packet.get()) >= 0) feed();
        av_packet_unref(packet.get());
        if (Clock::now() > deadline)
            return AudioFingerprinterText::tr("Decoding the recording took too long.");
    }
    if (fed < wanted && avcodec_send_packet(decoder.get(), nullptr) >= 0) feed();
    if (!chromaprint_finish(fingerprinter.get()))
        return AudioFingerprinterText::tr("The sound cannot be decoded.");
    uint32_t *raw = nullptr;
    int size = 0;
    if (!chromaprint_get_raw_fingerprint(fingerprinter.get(), &raw, &size) || size <= 0) {
        chromaprint_dealloc(raw);
        return AudioFingerprinterText::tr("The recording is too short to compare.");
    }
    print.assign(raw, raw + size);
    chromaprint_dealloc(raw);
    return {};
}

} // namespace selfsame
