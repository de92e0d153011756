#include "results/ResultItem.h"

namespace selfsame
{

QString ResultItem::folder() const
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash > 0 ? path.left(slash) : QStringLiteral("/");
}

QString ResultItem::parentPath() const
{
    if (parentPathStart == 0) return folder();
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return parentPathStart < slash ? path.mid(parentPathStart, slash - parentPathStart) : QString();
}

const QString &ResultItem::trashedURL() const
{
    static const QString none;
    return m_rare ? m_rare->trashedURL : none;
}

ResultItem::Rare &ResultItem::rare()
{
    if (!m_rare) m_rare.reset(new Rare);
    return *m_rare;
}

void ResultItem::setItemCount(qint64 count)
{
    if (count != 0 || m_rare) rare().itemCount = count;
}

void ResultItem::setAddedDate(qint64 date)
{
    if (date != kNoDate || m_rare) rare().addedDate = date;
}

void ResultItem::setTrashedURL(const QString &trashed)
{
    if (!trashed.isEmpty() || m_rare) rare().trashedURL = trashed;
}

} // namespace selfsame
