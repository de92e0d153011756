#include "support/TrashHome.h"

TrashHome::TrashHome() : m_oldData(qgetenv("XDG_DATA_HOME")), m_oldHome(qgetenv("HOME"))
{
    qputenv("XDG_DATA_HOME", path(QStringLiteral("data")).toUtf8());
    qputenv("HOME", path().toUtf8());
}

TrashHome::~TrashHome()
{
    qputenv("XDG_DATA_HOME", m_oldData);
    qputenv("HOME", m_oldHome);
}
