#pragma once

#include <QCoreApplication>

namespace selfsame::cli
{

// The command-line tool's messages share one context in the translation catalogues.
struct CliText {
    Q_DECLARE_TR_FUNCTIONS(SelfsameCli)
};

} // namespace selfsame::cli
