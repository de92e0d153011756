#include "AttributeListing.h"

namespace selfsame::cli
{

QByteArray attributeListing(const AttributeRecords &records)
{
    QByteArray out;
    for (auto it = records.begin(); it != records.end(); ++it)
        out += (QStringList{it.key(), it->name, attributeTypeName(it->type), it->description}.join(u'\t') +
                u'\n')
                   .toUtf8();
    return out;
}

} // namespace selfsame::cli
