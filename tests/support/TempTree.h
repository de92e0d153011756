#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <initializer_list>
#include <string>

// A temporary folder tree for tests, removed on destruction. Relative paths may name
// sub-folders, which are created as needed.
class TempTree {
public:
    TempTree();
    ~TempTree(); // removes every entry by its bytes, whatever the names
    TempTree(const TempTree &) = delete;
    TempTree &operator=(const TempTree &) = delete;
    QString path(const QString &rel = {}) const { return rel.isEmpty() ? m_root : m_root + u'/' + rel; }
    std::string stdPath(const QString &rel = {}) const { return path(rel).toStdString(); }

    QString file(const QString &rel, const QByteArray &bytes);
    QString folder(const QString &rel);
    QString symlink(const QString &rel, const QString &target);
    QString hardLink(const QString &rel, const QString &existingRel);
    // One item per string: "path/" a folder, "path@target" a symbolic link, "path:n" a file of
    // n × 1000 bytes whose content depends on n alone, "path" a file of 10 bytes.
    void build(std::initializer_list<const char *> items);

private:
    QTemporaryDir m_dir;
    QString m_root;
};

// `count` bytes that differ from those of any other seed.
QByteArray patternBytes(qsizetype count, int seed);
