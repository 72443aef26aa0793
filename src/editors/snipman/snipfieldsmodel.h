#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

class SnipField;

/// The fields of a snippet as rows, in the order in which they are asked and filled in.
///
/// `Qt::DisplayRole` is "@name, title", or without a title the name alone; there are no
/// other roles. Owns its fields, and tells views of each change. Main thread only.
class ZORV_EXPORT SnipFieldsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit SnipFieldsModel(QObject* parent = nullptr);
    ~SnipFieldsModel() override;

    /// Puts a field behind the others and takes it over; null is left out.
    void add(SnipField* field);

    /// Deletes a field. Rows that are not there are left alone, here and below.
    void remove(unsigned row);

    /// Puts the field of row `from` where row `to` is now; those between move by one.
    void move(unsigned from, unsigned to);

    /// Puts a field in the place of another, which is deleted, and takes it over; it is
    /// deleted if there is no such row.
    void replace(unsigned row, SnipField* field);

    /// The field of a row, null if there is none. It stays the model's.
    const SnipField* at(unsigned row) const;

    /// All fields, in their order.
    std::vector<const SnipField*> fields() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    std::vector<std::unique_ptr<SnipField>> m_fields;
};
