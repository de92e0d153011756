#pragma once

#include <QList>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <QVariantMap>
#include <memory>

namespace selfsame {

// The user settings store. Registered defaults live in memory only: a key reads its stored
// value when there is one, else its registered default, and defaults are never written.
class Settings {
public:
    Settings(); // the user's own store: Selfsame/Selfsame.conf under the config folder
    explicit Settings(const QString &iniFile);

    void registerDefaults(const QVariantMap &defaults);

    QVariant value(const QString &key) const;
    bool boolValue(const QString &key) const { return value(key).toBool(); }
    qint64 integerValue(const QString &key) const { return value(key).toLongLong(); }
    double doubleValue(const QString &key) const { return value(key).toDouble(); }
    QString stringValue(const QString &key) const { return value(key).toString(); }
    QStringList stringListValue(const QString &key) const { return value(key).toStringList(); }

    // A value equal to the key's registered default removes the key from the store.
    void setValue(const QString &key, const QVariant &value);
    bool isStored(const QString &key) const;
    void remove(const QString &key);

    // Lists of records, stored as numbered entries so that the file stays readable.
    QList<QVariantMap> recordList(const QString &key) const;
    void setRecordList(const QString &key, const QList<QVariantMap> &records);

    // Dictionaries from a name to a value, stored as a group of keys.
    QVariantMap dictionary(const QString &key) const;
    void setDictionaryValue(const QString &key, const QString &name, const QVariant &value);

    void sync() { m_store->sync(); }

    // A path as a stored value, and back: the settings file keeps text as UTF-8, so a path
    // that is not is stored as its bytes.
    static QVariant pathValue(const QString &path);
    static QString pathFrom(const QVariant &value);

private:
    std::unique_ptr<QSettings> m_store;
    QVariantMap m_defaults;
};

} // namespace selfsame
