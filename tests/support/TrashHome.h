#pragma once

#include "support/TempTree.h"

#include <QByteArray>
#include <QString>

// Points HOME and XDG_DATA_HOME at a temporary folder for as long as it lives, so that
// nothing a test moves to the trash ever reaches the user's own trash.
class TrashHome
{
public:
    TrashHome();
    ~TrashHome();
    TrashHome(const TrashHome &) = delete;
    TrashHome &operator=(const TrashHome &) = delete;

    QString path(const QString &rel = {}) const { return m_tree.path(rel); }
    QString trash() const { return m_tree.path(QStringLiteral("data/Trash")); }

private:
    TempTree m_tree;
    QByteArray m_oldData, m_oldHome;
};
