#pragma once

#include "Locations.h"
#include "fileops/DeleteChecks.h" // displayName

#include <QAbstractTableModel>
#include <QFileIconProvider>
#include <QHash>
#include <QIcon>
#include <functional>

namespace selfsame {

// The search locations as a table: a check box column and the name with its icon.
// Every change made here keeps the nesting rule and, when asked, saves the list.
class LocationsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { CheckboxColumn = 0, NameColumn = 1 };

    LocationsModel(Settings &settings, std::function<NestingRule()> currentRule, QObject *parent = nullptr);

    const QList<Location> &locations() const { return m_locations; }
    QStringList enabledPaths() const;

    void load();
    // Merges the paths and returns the rows they now occupy.
    QList<int> addPaths(const QStringList &paths, bool enabled, bool needsSaving);
    void removeLocations(QList<int> rows);
    void toggleTogether(const QList<int> &rows);
    // Enforces the nesting rule, redraws and optionally saves.
    void refresh(bool needsSaving);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    // Whether a single file is among the enabled locations.
    void singleFileEnabledChanged(bool enabled);

private:
    QIcon iconFor(const QString &path) const;

    Settings &m_settings;
    std::function<NestingRule()> m_currentRule;
    QList<Location> m_locations;
    QFileIconProvider m_iconProvider;
    mutable QHash<QString, QIcon> m_icons;
};

} // namespace selfsame
