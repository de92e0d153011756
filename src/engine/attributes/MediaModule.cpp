#include "attributes/MetadataSources.h"
#include "similar/MediaDecoding.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <cstring>
#include <dlfcn.h>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame
{

const QSet<QString> &mediaKeys()
{
    static const QSet<QString> keys = {"kMDItemDurationSeconds",
                                       "kMDItemTotalBitRate",
                                       "kMDItemCodecs",
                                       "kMDItemAudioBitRate",
                                       "kMDItemVideoBitRate",
                                       "kMDItemAudioSampleRate",
                                       "kMDItemAudioChannelCount",
                                       "kMDItemPixelWidth",
                                       "kMDItemPixelHeight",
                                       "kMDItemTitle",
                                       "kMDItemAlbum",
                                       "kMDItemAuthors",
                                       "kMDItemComposer",
                                       "kMDItemMusicalGenre",
                                       "kMDItemRecordingYear",
                                       "kMDItemRecordingDate",
                                       "kMDItemContentCreationDate",
                                       "kMDItemAudioTrackNumber",
                                       "kMDItemLatitude",
                                       "kMDItemLongitude"};
    return keys;
}

const QSet<QString> &imageKeys()
{
    static const QSet<QString> keys = {"kMDItemLatitude",         "kMDItemLongitude",
                                       "kMDItemAltitude",         "kMDItemContentCreationDate",
                                       "kMDItemPixelWidth",       "kMDItemPixelHeight",
                                       "kMDItemOrientation",      "kMDItemAcquisitionMake",
                                       "kMDItemAcquisitionModel", "kMDItemExposureTimeSeconds",
                                       "kMDItemFNumber",          "kMDItemFocalLength",
                                       "kMDItemISOSpeed",         "kMDItemFlashOnOff",
                                       "kMDItemLensModel",        "kMDItemTitle",
                                       "kMDItemDescription",      "kMDItemHeadline",
                                       "kMDItemKeywords",         "kMDItemCopyright",
                                       "kMDItemCreator",          "kMDItemIdentifier",
                                       "kMDItemOriginalSource"};
    return keys;
}

namespace
{

using ReadValues = void (*)(const QByteArray &, MetadataValues &);
using DecodePicture = void (*)(const QByteArray &, bool, SmallPicture &, qint64 &, qint64 &, QString &);
using FingerprintRecording = void (*)(const QByteArray &, AudioPrint &, QString &);

struct MediaModule {
    ReadValues media = nullptr;
    ReadValues image = nullptr;
    DecodePicture picture = nullptr;
    FingerprintRecording recording = nullptr;
};

// The media libraries and the hundred-odd libraries behind them cost tens of megabytes the
// moment a process maps them, so they live in a module loaded by the first search that
// reads audio, video or image metadata, never by a content search.
MediaModule loadMediaModule()
{
    // A program run from its build folder takes the module built beside it; an installed one
    // never looks into a build folder.
    char self[4096] = {};
    const ssize_t length = readlink("/proc/self/exe", self, sizeof self - 1);
    const bool fromBuild = length > 0 && std::strncmp(self, SELFSAME_BUILD_DIR, std::strlen(SELFSAME_BUILD_DIR)) == 0;
    const char *const path = fromBuild ? SELFSAME_MEDIA_MODULE_BUILT : SELFSAME_MEDIA_MODULE_INSTALLED;
    struct stat st;
    if (stat(path, &st) != 0) {
        qWarning("Selfsame: the media metadata module %s is missing; audio, video and image values are not read",
                 path);
        return {};
    }
    void *handle = dlopen(path, RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        qWarning("Selfsame: cannot load %s: %s", path, dlerror());
        return {};
    }
    MediaModule module;
    module.media = reinterpret_cast<ReadValues>(dlsym(handle, "selfsameReadMediaValues"));
    module.image = reinterpret_cast<ReadValues>(dlsym(handle, "selfsameReadImageValues"));
    module.picture = reinterpret_cast<DecodePicture>(dlsym(handle, "selfsameDecodeSmallPicture"));
    module.recording = reinterpret_cast<FingerprintRecording>(dlsym(handle, "selfsameFingerprintRecording"));
    if (module.media && module.image && module.picture && module.recording)
        return module;
    qWarning("Selfsame: %s is not the media metadata module of this version", path);
    dlclose(handle);
    return {};
}

const MediaModule &mediaModule()
{
    static const MediaModule module = loadMediaModule();
    return module;
}

} // namespace

void readMediaValues(const QByteArray &localPath, MetadataValues &values)
{
    if (const ReadValues read = mediaModule().media)
        read(localPath, values);
}

void readImageValues(const QByteArray &localPath, MetadataValues &values)
{
    if (const ReadValues read = mediaModule().image)
        read(localPath, values);
}

DecodedPicture decodePicture(const QByteArray &localPath, bool mayUseThumbnail)
{
    DecodedPicture decoded;
    if (const DecodePicture decode = mediaModule().picture)
        decode(localPath, mayUseThumbnail, decoded.picture, decoded.width, decoded.height, decoded.error);
    else
        decoded.error = QCoreApplication::translate("MediaDecoding", "Pictures cannot be decoded: the media module is missing.");
    return decoded;
}

FingerprintedRecording fingerprintRecording(const QByteArray &localPath)
{
    FingerprintedRecording result;
    if (const FingerprintRecording fingerprint = mediaModule().recording)
        fingerprint(localPath, result.print, result.error);
    else
        result.error = QCoreApplication::translate("MediaDecoding", "Recordings cannot be decoded: the media module is missing.");
    return result;
}

} // namespace selfsame
