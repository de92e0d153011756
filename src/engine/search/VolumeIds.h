#pragma once

#include <QtGlobal>

namespace selfsame
{

// A number for the file system that `device` (an st_dev) holds, which stays the same when the
// drive is mounted again under another device number: drawn from the file system's UUID (and,
// on btrfs, its subvolume). The device number itself when the file system tells no UUID. The
// two kinds never meet: UUID-drawn numbers have the top bit set, device numbers never do.
quint64 volumeIdOf(quint64 device);

} // namespace selfsame
