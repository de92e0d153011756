// Every test program keeps its caches (digests included), its operations journal and its
// runtime files in a temporary folder of its own, set before any test runs, so that no test
// reads or writes the user's; programs the tests start inherit it. Nor do they reach the
// user's session bus, where a desktop index would answer look-ups in place of the folders a
// test made.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtGlobal>

namespace
{

struct PrivateUserSession {
    QTemporaryDir folder;
    PrivateUserSession()
    {
        qputenv("XDG_CACHE_HOME", folder.path().toLocal8Bit());
        qputenv("XDG_STATE_HOME", folder.path().toLocal8Bit() + "/state"); // the operations journal
        // Cloning plans, and what killed processes leave of them.
        QDir(folder.path()).mkdir(QStringLiteral("runtime"));
        QFile::setPermissions(folder.path() + QStringLiteral("/runtime"),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", folder.path().toLocal8Bit() + "/runtime");
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + folder.path().toLocal8Bit() + "/no-bus");
    }
};

const PrivateUserSession privateUserSession;

} // namespace
