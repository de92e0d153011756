#include "support/TempTree.h"

#include "support/ByteFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <stdexcept>
#include <unistd.h>

namespace {

QString checked(bool ok, const QString &path)
{
    return ok ? path : throw std::runtime_error("cannot create " + path.toStdString());
}
bool makeParent(const QString &path) { return QDir().mkpath(QFileInfo(path).path()); }

} // namespace

TempTree::TempTree() : m_root(QDir(m_dir.path()).canonicalPath())
{
    checked(!m_root.isEmpty(), m_dir.path());
}

TempTree::~TempTree()
{
    if (!m_root.isEmpty()) removeContentsBytes(m_root.toUtf8());
}

QString TempTree::file(const QString &rel, const QByteArray &bytes)
{
    QFile f(path(rel));
    return checked(makeParent(f.fileName()) && f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size(),
                   f.fileName());
}

QString TempTree::folder(const QString &rel) { return checked(QDir().mkpath(path(rel)), path(rel)); }

QString TempTree::symlink(const QString &rel, const QString &target)
{
    const std::string to = target.toStdString();
    return checked(makeParent(path(rel)) && ::symlink(to.c_str(), stdPath(rel).c_str()) == 0, path(rel));
}

QString TempTree::hardLink(const QString &rel, const QString &existingRel)
{
    const bool ok = makeParent(path(rel)) && ::link(stdPath(existingRel).c_str(), stdPath(rel).c_str()) == 0;
    return checked(ok, path(rel));
}

void TempTree::build(std::initializer_list<const char *> items)
{
    for (const char *item : items) {
        const QString s = QString::fromUtf8(item);
        const int n = s.section(u':', 1).toInt();
        if (s.endsWith(u'/'))
            folder(s);
        else if (s.contains(u'@'))
            symlink(s.section(u'@', 0, 0), s.section(u'@', 1));
        else
            file(s.section(u':', 0, 0), n > 0 ? patternBytes(n * 1000, n) : QByteArray("0123456789"));
    }
}

QByteArray patternBytes(qsizetype count, int seed)
{
    QByteArray bytes(count, Qt::Uninitialized);
    quint32 state = 2166136261u ^ (quint32(seed) * 16777619u);
    for (qsizetype i = 0; i < count; ++i) {
        state = state * 1664525u + 1013904223u;
        bytes[i] = char(state >> 24);
    }
    return bytes;
}
