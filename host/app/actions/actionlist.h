#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <QStringList>

class QAction;

namespace App {

class ActionRegistry;

/// The actions that fit what a person typed, the best first: label, menu, keys.
///
/// Actions of hidden menus are left out. What is disabled has a row that cannot be chosen.
class ActionList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { LabelColumn, MenuColumn, KeyColumn, ColumnCount };

    /// The registry is not owned. The list is empty when it dies.
    explicit ActionList(const ActionRegistry* registry, QObject* parent = nullptr);

    /// Shows the actions that fit; all of them for an empty text.
    void setFilter(const QString& typed);

    /// Leaves out the actions that have no key.
    void setOnlyWithKeys(bool isOnly);

    /// The name of the action of a row; empty for a row that is not there.
    QString name(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void fill();
    bool isOffered(const QString& name) const;
    const QAction* action(const QModelIndex& index) const;

    QPointer<const ActionRegistry> m_registry;
    QString m_typed;
    bool m_isOnlyWithKeys = false;
    QStringList m_names;
};

}  // namespace App
