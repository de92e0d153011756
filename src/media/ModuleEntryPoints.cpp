// The entry points of the media module, looked up by name when it is loaded.

#include "attributes/MetadataSources.h"
#include "similar/AudioPrint.h"
#include "similar/ImagePrint.h"

namespace selfsame
{
void readMediaValuesNow(const QByteArray &localPath, MetadataValues &values);
void readImageValuesNow(const QByteArray &localPath, MetadataValues &values);
QString decodeSmallPictureNow(const QByteArray &path, bool mayUseThumbnail, SmallPicture &picture,
                              qint64 &width, qint64 &height);
QString fingerprintRecordingNow(const QByteArray &path, AudioPrint &print);
} // namespace selfsame

#define SELFSAME_EXPORT extern "C" __attribute__((visibility("default")))

SELFSAME_EXPORT void selfsameReadMediaValues(const QByteArray &localPath, selfsame::MetadataValues &values)
{
    selfsame::readMediaValuesNow(localPath, values);
}

SELFSAME_EXPORT void selfsameReadImageValues(const QByteArray &localPath, selfsame::MetadataValues &values)
{
    selfsame::readImageValuesNow(localPath, values);
}

SELFSAME_EXPORT void selfsameDecodeSmallPicture(const QByteArray &path, bool mayUseThumbnail,
                                                selfsame::SmallPicture &picture, qint64 &width,
                                                qint64 &height, QString &error)
{
    error = selfsame::decodeSmallPictureNow(path, mayUseThumbnail, picture, width, height);
}

SELFSAME_EXPORT void selfsameFingerprintRecording(const QByteArray &path, selfsame::AudioPrint &print,
                                                  QString &error)
{
    error = selfsame::fingerprintRecordingNow(path, print);
}
