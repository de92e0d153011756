#pragma once

namespace selfsame {

// An alias is a desktop entry of type Link that points to a local file ("URL=file://…").
// Searches leave aliases out: they stand for another file and hold no content of their own.
bool isAliasFile(int dirfd, const char *name);

} // namespace selfsame
