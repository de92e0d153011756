// The entry points of the media metadata module, looked up by name when it is loaded.

#include "attributes/MetadataSources.h"

namespace selfsame
{
void readMediaValuesNow(const QByteArray &localPath, MetadataValues &values);
void readImageValuesNow(const QByteArray &localPath, MetadataValues &values);
} // namespace selfsame

extern "C" __attribute__((visibility("default"))) void selfsameReadMediaValues(const QByteArray &localPath,
                                                                               selfsame::MetadataValues &values)
{
    selfsame::readMediaValuesNow(localPath, values);
}

extern "C" __attribute__((visibility("default"))) void selfsameReadImageValues(const QByteArray &localPath,
                                                                               selfsame::MetadataValues &values)
{
    selfsame::readImageValuesNow(localPath, values);
}
