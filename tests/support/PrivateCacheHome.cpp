// Every test program keeps its caches, digests included, in a temporary folder of its own,
// set before any test runs, so that no test reads or writes the user's cache; programs the
// tests start inherit it.
#include <QTemporaryDir>
#include <QtGlobal>

namespace {

struct PrivateCacheHome {
    QTemporaryDir folder;
    PrivateCacheHome() { qputenv("XDG_CACHE_HOME", folder.path().toLocal8Bit()); }
};

const PrivateCacheHome privateCacheHome;

} // namespace
