#include "core/dialogs/itempicker_p.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QListView>
#include <QPushButton>

#include <algorithm>

ItemPicker::ItemPicker(QAbstractItemModel* model, int row, QWidget* parent)
    : QWidget(parent), m_list(new QListView)
{
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setSelectionMode(QAbstractItemView::MultiSelection);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setModel(model);

    auto* choices = new QHBoxLayout;
    addButton(choices, tr("Select all"), "selectAllButton", &ItemPicker::selectAll);
    addButton(choices, tr("Clear"), "clearButton", &ItemPicker::clear);
    addButton(choices, tr("Invert selection"), "invertButton", &ItemPicker::invert);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_list);
    layout->addLayout(choices);

    if (!model) {
        return;
    }
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ItemPicker::changed);
    connect(model, &QAbstractItemModel::modelReset, this, &ItemPicker::changed);
    if (row >= 0 && row < model->rowCount()) {
        const QModelIndex index = model->index(row, 0);
        m_list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        m_list->scrollTo(index);
    }
}

QList<int> ItemPicker::selected() const
{
    QList<int> rows;
    if (!m_list->selectionModel()) {
        return rows;
    }
    // The list shows only the first column, so a row never counts as completely selected.
    const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        if (index.column() == 0) {
            rows.append(index.row());
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

void ItemPicker::release()
{
    // The view does not delete its old selection model.
    QItemSelectionModel* selection = m_list->selectionModel();
    m_list->setModel(nullptr);
    if (selection != m_list->selectionModel()) {
        delete selection;
    }
}

void ItemPicker::addButton(QLayout* row, const QString& text, const char* name,
                           void (ItemPicker::*slot)())
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, slot);
    row->addWidget(button);
}

void ItemPicker::selectAll()
{
    m_list->selectAll();
}

void ItemPicker::clear()
{
    m_list->clearSelection();
}

void ItemPicker::invert()
{
    const QAbstractItemModel* model = m_list->model();
    const int last = model ? model->rowCount() - 1 : -1;
    if (last < 0) {
        return;
    }
    const QItemSelection all(model->index(0, 0), model->index(last, 0));
    m_list->selectionModel()->select(all, QItemSelectionModel::Toggle);
}
