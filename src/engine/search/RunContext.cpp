#include "search/RunContext.h"

#include <QCoreApplication>

namespace selfsame {

QString RunContext::stepText(int step, int stepCount)
{
    return QCoreApplication::translate("DuplicateSearch", "Step %1 of %2: ").arg(step).arg(stepCount);
}

} // namespace selfsame
