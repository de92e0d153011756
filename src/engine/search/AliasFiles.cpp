#include "search/AliasFiles.h"

#include <QByteArray>
#include <QList>

#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace selfsame {

bool isAliasFile(int dirfd, const char *name)
{
    const std::size_t length = std::strlen(name);
    if (length < 8 || std::strcmp(name + length - 8, ".desktop") != 0)
        return false;
    const int fd = openat(dirfd, name, O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (fd < 0)
        return false;
    char buffer[16384];
    const ssize_t n = read(fd, buffer, sizeof(buffer));
    close(fd);
    if (n <= 0)
        return false;

    bool inMainGroup = false, isLink = false, pointsToFile = false;
    for (const QByteArray &rawLine : QByteArray(buffer, n).split('\n')) {
        const QByteArray line = rawLine.trimmed();
        if (line.startsWith('[')) {
            inMainGroup = line == "[Desktop Entry]";
            continue;
        }
        if (!inMainGroup)
            continue;
        const qsizetype equals = line.indexOf('=');
        if (equals < 0)
            continue;
        const QByteArray key = line.left(equals).trimmed();
        const QByteArray value = line.mid(equals + 1).trimmed();
        if (key == "Type")
            isLink = value == "Link";
        else if (key == "URL")
            pointsToFile = value.startsWith("file://");
    }
    return isLink && pointsToFile;
}

} // namespace selfsame
