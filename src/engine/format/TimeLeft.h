#pragma once

#include <QString>

namespace selfsame {

// How long a task still takes, as a status line says it: "about 2 minutes left". Rounded
// the coarser the longer it is, since the estimate is no finer.
QString timeLeftText(double seconds);

} // namespace selfsame
