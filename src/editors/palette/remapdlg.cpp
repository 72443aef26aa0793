#include "editors/palette/remapdlg.h"

#include <QEvent>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QPushButton* makeButton(const char* name)
{
    auto* button = new QPushButton;
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

}  // namespace

RemapDlg::RemapDlg(QWidget* parent)
    : QDialog(parent), m_table(new QTableView), m_add(makeButton("addButton")),
      m_delete(makeButton("deleteButton")), m_clear(makeButton("clearButton"))
{
    m_table->setObjectName(QStringLiteral("table"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->horizontalHeader()->setStretchLastSection(true);
    connect(m_add, &QPushButton::clicked, this, [this] { edit(m_add, &RemapDlg::addRow); });
    connect(m_delete, &QPushButton::clicked, this,
            [this] { edit(m_delete, &RemapDlg::removeSelected); });
    connect(m_clear, &QPushButton::clicked, this, [this] { edit(m_clear, &RemapDlg::removeAll); });

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_delete, m_clear}) {
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_table);
    layout->addLayout(buttons);
    retranslate();
}

RemapDlg::~RemapDlg() = default;

void RemapDlg::setModel(QAbstractItemModel* model)
{
    // The view does not delete its old selection model.
    const QPointer<QItemSelectionModel> selection = m_table->selectionModel();
    m_model = model;
    m_table->setModel(model);
    if (selection && selection != m_table->selectionModel()) {
        delete selection;
    }
}

void RemapDlg::edit(const QPushButton* button, void (RemapDlg::*change)())
{
    if (m_model) {
        emit changing(button->text());
        (this->*change)();
    }
    emit updateView();
}

void RemapDlg::addRow()
{
    const int row = m_model->rowCount();
    if (m_model->insertRows(row, 1)) {
        m_table->setCurrentIndex(m_model->index(row, 0));
    }
}

/// From the last row up, so that the remaining row numbers stay valid.
void RemapDlg::removeSelected()
{
    QVector<int> rows;
    const QModelIndexList selected = m_table->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) {
        rows.append(index.row());
    }
    std::sort(rows.rbegin(), rows.rend());
    for (const int row : qAsConst(rows)) {
        m_model->removeRows(row, 1);
    }
}

void RemapDlg::removeAll()
{
    if (m_model->rowCount() > 0) {
        m_model->removeRows(0, m_model->rowCount());
    }
}

void RemapDlg::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
    }
    QDialog::changeEvent(event);
}

void RemapDlg::retranslate()
{
    setWindowTitle(tr("Remap"));
    m_table->setAccessibleName(tr("Remap"));
    m_add->setText(tr("Add"));
    m_delete->setText(tr("Delete"));
    m_clear->setText(tr("Clear"));
}
