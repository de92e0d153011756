#pragma once

#include "similar/AudioPrint.h"
#include "similar/ImagePrint.h"

#include <QString>

namespace selfsame
{

// What the media module made of a picture: the reduced picture and its full size, or why not.
struct DecodedPicture {
    SmallPicture picture;
    qint64 width = 0;
    qint64 height = 0;
    QString error; // empty on success
};

struct FingerprintedRecording {
    AudioPrint print;
    QString error; // empty on success
};

// Both load the media module on first use and are safe to call from several threads at once.
// With `mayUseThumbnail`, a JPEG's embedded thumbnail may stand for it (then marked so).
DecodedPicture decodePicture(const QByteArray &localPath, bool mayUseThumbnail);
FingerprintedRecording fingerprintRecording(const QByteArray &localPath);

} // namespace selfsame
