#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QKeySequence>
#include <QStringList>

namespace App {

class ActionRegistry;

/// All actions with their shortcuts while the user edits them: one row each, with the columns
/// action, shortcut, clashes.
class KeyTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { ActionColumn, KeyColumn, ClashColumn, ColumnCount };

    /// Does not own the registry, which must outlive the object.
    explicit KeyTable(ActionRegistry* registry, QObject* parent = nullptr);

    /// Discards the changes and reads the current actions.
    void read();

    /// Writes the changes to the registry.
    void write();

    /// The action name of a row.
    QString name(int row) const;

    /// The first shortcut of a row; empty for none.
    QKeySequence key(int row) const;

    /// Replaces the shortcuts of a row by one; empty for none.
    void setKey(int row, const QKeySequence& key);

    /// Restores the default shortcuts.
    void resetKey(int row);
    void resetAll();

    /// The names of the actions that a row clashes with.
    QStringList clashes(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Sets the texts of header and rows in the current language.
    void retranslate();

signals:
    /// The user changed shortcuts.
    void edited();

private:
    struct Row
    {
        QString name;
        QString text;
        QList<QKeySequence> keys;
        bool isChosen;  ///< by the user; these are not the defaults
        QStringList clashes;
    };

    void change(int row, const QList<QKeySequence>& keys, bool isChosen);
    void findClashes();

    ActionRegistry* m_registry;
    QVector<Row> m_rows;
};

}  // namespace App
