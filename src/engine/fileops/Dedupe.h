#pragma once

#include <QString>

namespace selfsame
{

// dedupeFile's answer when the kernel found the bytes different.
inline constexpr int kContentDiffers = -1;

// Lets `duplicate` share the storage of `reference` with FIDEDUPERANGE: the kernel compares
// the bytes and shares them only where they are equal, and the duplicate keeps its inode
// with all of its metadata. Returns 0, kContentDiffers, or an errno value (EOPNOTSUPP,
// EINVAL, EXDEV… where the file system refuses).
int dedupeFile(const QString &reference, const QString &duplicate);

} // namespace selfsame
