#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

class SnipField;

/// The fields of a snippet as rows, in the order in which they are asked for and filled
/// in.
///
/// `Qt::DisplayRole` is "@name, title", or only the name without a title; there are no
/// other roles. Owns its fields, and notifies views of each change. Main thread only.
class ZORV_EXPORT SnipFieldsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit SnipFieldsModel(QObject* parent = nullptr);
    ~SnipFieldsModel() override;

    /// Appends a field and takes ownership; ignores null.
    void add(SnipField* field);

    /// Deletes a field. Invalid rows are ignored, here and below.
    void remove(unsigned row);

    /// Moves the field of row `from` to row `to`; those in between shift by one.
    void move(unsigned from, unsigned to);

    /// Replaces a field and deletes the old one. Takes ownership of the new one, which
    /// is deleted if there is no such row.
    void replace(unsigned row, SnipField* field);

    /// The field of a row, null if there is none. The model keeps ownership.
    const SnipField* at(unsigned row) const;

    /// All fields, in their order.
    std::vector<const SnipField*> fields() const;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    std::vector<std::unique_ptr<SnipField>> m_fields;
};
