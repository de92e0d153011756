#pragma once

#include "attributes/AttributeSchema.h"

#include <QList>
#include <QString>

namespace selfsame {

// Whether `text` holds `part` as one piece, ignoring letter case and accents.
bool foldedContains(const QString &text, const QString &part);

// One row of the attribute chooser: the key with its catalogue record (empty when the
// catalogue does not know the key).
struct AttributeRow {
    QString key;
    AttributeRecord record;
};

// The chooser's rows for a search text. Words that are file-name extensions list the
// attributes of those files; otherwise the whole catalogue is searched by name, description
// and (with showKeys) key. Attributes without a name appear only with showKeys, after the
// named ones.
QList<AttributeRow> filterAttributes(const QString &searchText, bool showKeys);

} // namespace selfsame
