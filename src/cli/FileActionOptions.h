#pragma once

#include "FileActions.h"

#include <QString>
#include <QStringList>

namespace selfsame::cli
{

// Takes the file-action options (--trash, --delete, --replace-with MODE, --yes, --dry-run,
// --plan FILE) out of `arguments`, leaving the search options and paths. Sets *given when
// any action was asked for. Returns an error text, empty when the options are good.
QString takeFileActionOptions(QStringList &arguments, FileActionOptions *options, bool *given);
QString fileActionUsageText();

} // namespace selfsame::cli
