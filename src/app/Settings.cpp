#include "Settings.h"

#include "names/FileNames.h"

namespace selfsame {

Settings::Settings()
    : m_store(std::make_unique<QSettings>(QStringLiteral("Selfsame"), QStringLiteral("Selfsame")))
{
}

Settings::Settings(const QString &iniFile)
    : m_store(std::make_unique<QSettings>(iniFile, QSettings::IniFormat))
{
}

void Settings::registerDefaults(const QVariantMap &defaults)
{
    m_defaults.insert(defaults);
}

QVariant Settings::value(const QString &key) const
{
    return m_store->contains(key) ? m_store->value(key) : m_defaults.value(key);
}

void Settings::setValue(const QString &key, const QVariant &value)
{
    // A value back at its default is the user's choice no more: the file holds only changes.
    const auto registered = m_defaults.constFind(key);
    if (registered != m_defaults.cend() && QVariant::compare(*registered, value) == QPartialOrdering::Equivalent)
        m_store->remove(key);
    else
        m_store->setValue(key, value);
}

bool Settings::isStored(const QString &key) const
{
    return m_store->contains(key) || m_store->childGroups().contains(key);
}

void Settings::remove(const QString &key)
{
    m_store->remove(key);
}

QList<QVariantMap> Settings::recordList(const QString &key) const
{
    QList<QVariantMap> records;
    const int count = m_store->beginReadArray(key);
    for (int i = 0; i < count; ++i) {
        m_store->setArrayIndex(i);
        QVariantMap record;
        for (const QString &field : m_store->childKeys())
            record.insert(field, m_store->value(field));
        records.append(record);
    }
    m_store->endArray();
    return records;
}

void Settings::setRecordList(const QString &key, const QList<QVariantMap> &records)
{
    m_store->remove(key);
    m_store->beginWriteArray(key, int(records.size()));
    for (int i = 0; i < records.size(); ++i) {
        m_store->setArrayIndex(i);
        for (auto it = records[i].begin(); it != records[i].end(); ++it)
            m_store->setValue(it.key(), it.value());
    }
    m_store->endArray();
}

QVariantMap Settings::dictionary(const QString &key) const
{
    QVariantMap entries;
    m_store->beginGroup(key);
    for (const QString &name : m_store->childKeys())
        entries.insert(name, m_store->value(name));
    m_store->endGroup();
    return entries;
}

QVariant Settings::pathValue(const QString &path)
{
    return hasInvalidBytes(path) ? QVariant(pathBytes(path)) : QVariant(path);
}

QString Settings::pathFrom(const QVariant &value)
{
    return value.typeId() == QMetaType::QByteArray ? pathFromBytes(value.toByteArray()) : value.toString();
}

void Settings::setDictionaryValue(const QString &key, const QString &name, const QVariant &value)
{
    m_store->beginGroup(key);
    m_store->setValue(name, value);
    m_store->endGroup();
}

} // namespace selfsame
