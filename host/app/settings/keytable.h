#pragma once

#include <QAbstractTableModel>
#include <QHash>
#include <QKeySequence>
#include <QStringList>

namespace App {

class ActionRegistry;

/// All actions with their keys, as the person is about to change them: a row each, with the
/// columns action, keys, clashes.
class KeyTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { ActionColumn, KeyColumn, ClashColumn, ColumnCount };

    /// The registry is not owned and must outlive the object.
    explicit KeyTable(ActionRegistry* registry, QObject* parent = nullptr);

    /// Forgets the changes and takes the actions that there are.
    void read();

    /// Gives the registry what was changed.
    void write();

    /// The name of the action of a row.
    QString name(int row) const;

    /// The first key of a row; empty for none.
    QKeySequence key(int row) const;

    /// Gives a row one key in place of what it has; an empty one for none.
    void setKey(int row, const QKeySequence& key);

    /// Back to the default keys.
    void resetKey(int row);
    void resetAll();

    /// The names of the actions that a row clashes with.
    QStringList clashes(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Gives header and rows their texts in the present language.
    void retranslate();

signals:
    /// The person has changed keys.
    void edited();

private:
    struct Row
    {
        QString name;
        QString text;
        QList<QKeySequence> keys;
        bool isChosen;  ///< by the person; the keys are not the default ones
        QStringList clashes;
    };

    void change(int row, const QList<QKeySequence>& keys, bool isChosen);
    void findClashes();

    ActionRegistry* m_registry;
    QVector<Row> m_rows;
};

}  // namespace App
