#include "core/dialogs/rundlg.h"

#include "core/dialogs/dialogbuttons_p.h"

#include <QDialogButtonBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QListView>
#include <QVBoxLayout>

RunDlg::RunDlg(QWidget* parent, QAbstractItemModel* model, unsigned row)
    : QDialog(parent), m_list(new QListView(this))
{
    setWindowTitle(tr("Run in Engine"));
    auto* label = new QLabel(tr("Choose the target:"), this);
    label->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("list"));
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setModel(model);
    auto* buttons = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    connect(m_list, &QListView::doubleClicked, this, &RunDlg::on_list_doubleClicked);
    const QModelIndex index = model->index(int(row), 0);
    m_list->selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    m_list->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect |
                                                QItemSelectionModel::Rows);
    m_list->scrollTo(index);
}

RunDlg::~RunDlg() = default;

unsigned RunDlg::selectedIndex() const
{
    const QModelIndexList selected = m_list->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? 0 : unsigned(selected.first().row());
}

void RunDlg::on_list_doubleClicked(const QModelIndex&)
{
    accept();
}
