#include "results/EnclosingFolders.h"

#include "names/FileNames.h"

#include <QFileInfo>
#include <sys/stat.h>

namespace selfsame
{

namespace
{

bool deviceOf(const QString &path, dev_t *device)
{
    struct stat st {
    };
    if (stat(pathBytes(path).constData(), &st) != 0) return false;
    *device = st.st_dev;
    return true;
}

} // namespace

QStringList enclosingFolders(const QString &path)
{
    QStringList folders;
    QString folder = QFileInfo(path).path();
    while (!folder.isEmpty()) {
        folders.append(folder);
        if (folder == u'/') break;
        const QString up = QFileInfo(folder).path();
        dev_t here = 0, above = 0;
        // A folder that is gone has no volume to tell: keep walking towards the root.
        if (deviceOf(folder, &here) && deviceOf(up, &above) && here != above) break;
        folder = up;
    }
    return folders;
}

} // namespace selfsame
