#pragma once

#include <QAbstractTableModel>
#include <QPointer>
#include <QStringList>

class QAction;

namespace App {

class ActionRegistry;

/// The actions that match a typed text, best match first: label, menu, shortcuts.
///
/// Actions of hidden menus are left out. Disabled actions are listed but cannot be selected.
class ActionList : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { LabelColumn, MenuColumn, KeyColumn, ColumnCount };

    /// Does not own the registry. The list becomes empty when the registry is destroyed.
    explicit ActionList(const ActionRegistry* registry, QObject* parent = nullptr);

    /// Shows the actions that match; all of them for an empty text.
    void setFilter(const QString& typed);

    /// Lists only actions that have a shortcut.
    void setOnlyWithKeys(bool isOnly);

    /// The action name of a row; empty for an invalid row.
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
