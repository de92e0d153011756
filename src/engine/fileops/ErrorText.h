#pragma once

#include <QString>
#include <cstring>

namespace selfsame
{

// The system's words for an errno value, as the messages of the file actions quote them.
inline QString errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

} // namespace selfsame
