#include "support/ByteFiles.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool writeBytes(const QByteArray &path, const QByteArray &content)
{
    for (qsizetype slash = 1; (slash = path.indexOf('/', slash)) > 0; ++slash)
        mkdir(path.left(slash).constData(), 0755);
    const int fd = open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd < 0) return false;
    const bool written = write(fd, content.constData(), std::size_t(content.size())) == content.size();
    return close(fd) == 0 && written;
}

QByteArray readBytes(const QByteArray &path)
{
    QByteArray content;
    const int fd = open(path.constData(), O_RDONLY | O_CLOEXEC);
    char buffer[65536];
    for (ssize_t n; fd >= 0 && (n = read(fd, buffer, sizeof buffer)) > 0;)
        content.append(buffer, n);
    if (fd >= 0) close(fd);
    return content;
}

bool existsBytes(const QByteArray &path)
{
    struct stat st {
    };
    return lstat(path.constData(), &st) == 0;
}

void removeContentsBytes(const QByteArray &folder)
{
    chmod(folder.constData(), 0700);
    DIR *dir = opendir(folder.constData());
    for (const dirent *entry; dir && (entry = readdir(dir));) {
        const QByteArray name(entry->d_name);
        if (name == "." || name == "..") continue;
        const QByteArray path = folder + '/' + name;
        struct stat st {
        };
        if (lstat(path.constData(), &st) == 0 && S_ISDIR(st.st_mode)) {
            removeContentsBytes(path);
            rmdir(path.constData());
        } else {
            unlink(path.constData());
        }
    }
    if (dir) closedir(dir);
}
