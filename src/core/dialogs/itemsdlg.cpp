#include "core/dialogs/itemsdlg.h"

#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QListView>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QPushButton* addButton(QBoxLayout* row, const QString& text, const QString& name)
{
    auto* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    row->addWidget(button);
    return button;
}

}  // namespace

ItemsDlg::ItemsDlg(QWidget* parent, const QString& title, QAbstractItemModel* model, int row)
    : ItemsDialog(parent), m_list(new QListView)
{
    setWindowTitle(title.isEmpty() ? tr("Items") : title);
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setSelectionMode(QAbstractItemView::MultiSelection);
    m_list->setModel(model);

    auto* choices = new QHBoxLayout;
    addButton(choices, tr("Select all"), QStringLiteral("selectAllButton"));
    addButton(choices, tr("Clear"), QStringLiteral("clearButton"));
    addButton(choices, tr("Invert selection"), QStringLiteral("invertButton"));

    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box->setObjectName(QStringLiteral("buttonBox"));
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(choices);
    layout->addWidget(box);
    QMetaObject::connectSlotsByName(this);

    if (model && row >= 0 && row < model->rowCount()) {
        const QModelIndex index = model->index(row, 0);
        m_list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        m_list->scrollTo(index);
    }
}

ItemsDlg::~ItemsDlg() = default;

QList<int> ItemsDlg::selected() const
{
    QList<int> rows;
    if (!m_list->selectionModel()) {
        return rows;
    }
    // The list shows the first column alone, so a row is never selected as a whole.
    const QModelIndexList indexes = m_list->selectionModel()->selectedIndexes();
    for (const QModelIndex& index : indexes) {
        if (index.column() == 0) {
            rows.append(index.row());
        }
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

bool ItemsDlg::hasSelection() const
{
    return !selected().isEmpty();
}

void ItemsDlg::release()
{
    // The view forgets its old selection without deleting it.
    QItemSelectionModel* selection = m_list->selectionModel();
    m_list->setModel(nullptr);
    if (selection != m_list->selectionModel()) {
        delete selection;
    }
}

void ItemsDlg::on_selectAllButton_clicked()
{
    m_list->selectAll();
}

void ItemsDlg::on_clearButton_clicked()
{
    m_list->clearSelection();
}

void ItemsDlg::on_invertButton_clicked()
{
    const QAbstractItemModel* model = m_list->model();
    const int last = model ? model->rowCount() - 1 : -1;
    if (last < 0) {
        return;
    }
    const QItemSelection all(model->index(0, 0), model->index(last, 0));
    m_list->selectionModel()->select(all, QItemSelectionModel::Toggle);
}
