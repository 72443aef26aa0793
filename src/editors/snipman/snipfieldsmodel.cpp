#include "editors/snipman/snipfieldsmodel.h"

#include "editors/snipman/snipfield.h"

#include <algorithm>

SnipFieldsModel::SnipFieldsModel(QObject* parent) : QAbstractListModel(parent) {}

SnipFieldsModel::~SnipFieldsModel() = default;

void SnipFieldsModel::add(SnipField* field)
{
    if (!field) {
        return;
    }
    const int row = rowCount();
    beginInsertRows({}, row, row);
    m_fields.emplace_back(field);
    endInsertRows();
}

void SnipFieldsModel::remove(unsigned row)
{
    if (row >= m_fields.size()) {
        return;
    }
    beginRemoveRows({}, int(row), int(row));
    m_fields.erase(m_fields.begin() + row);
    endRemoveRows();
}

void SnipFieldsModel::move(unsigned from, unsigned to)
{
    if (from == to || std::max(from, to) >= m_fields.size()) {
        return;
    }
    const auto first = m_fields.begin();
    if (from < to) {
        beginMoveRows({}, int(from), int(from), {}, int(to) + 1);
        std::rotate(first + from, first + from + 1, first + to + 1);
    } else {
        beginMoveRows({}, int(from), int(from), {}, int(to));
        std::rotate(first + to, first + from, first + from + 1);
    }
    endMoveRows();
}

void SnipFieldsModel::replace(unsigned row, SnipField* field)
{
    std::unique_ptr<SnipField> owned(field);
    if (field && row < m_fields.size()) {
        m_fields[row] = std::move(owned);
        emit dataChanged(index(int(row)), index(int(row)));
    }
}

const SnipField* SnipFieldsModel::at(unsigned row) const
{
    return row < m_fields.size() ? m_fields[row].get() : nullptr;
}

std::vector<const SnipField*> SnipFieldsModel::fields() const
{
    std::vector<const SnipField*> result;
    for (const auto& field : m_fields) {
        result.push_back(field.get());
    }
    return result;
}

int SnipFieldsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_fields.size());
}

QVariant SnipFieldsModel::data(const QModelIndex& index, int role) const
{
    const SnipField* field = index.isValid() ? at(unsigned(index.row())) : nullptr;
    if (!field || role != Qt::DisplayRole) {
        return {};
    }
    return field->title.isEmpty() ? QLatin1Char('@') + field->name
                                  : tr("@%1, %2").arg(field->name, field->title);
}
