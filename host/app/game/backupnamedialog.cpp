#include "app/game/backupnamedialog.h"

#include "operations/backups.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace App {

BackupNameDialog::BackupNameDialog(QWidget* parent)
    : QDialog(parent), m_name(new QLineEdit(tr("Manual"))), m_fault(new QLabel),
      m_all(new QCheckBox(tr("&With the projects that are not open")))
{
    setWindowTitle(tr("Back up"));
    auto* label = new QLabel(tr("&Name of the backup:"));
    label->setBuddy(m_name);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = box->button(QDialogButtonBox::Ok);
    m_fault->setWordWrap(true);
    m_fault->setTextFormat(Qt::PlainText);
    m_all->setChecked(true);
    m_name->selectAll();
    auto* layout = new QVBoxLayout(this);
    for (QWidget* widget : {static_cast<QWidget*>(label), static_cast<QWidget*>(m_name),
                            static_cast<QWidget*>(m_fault), static_cast<QWidget*>(m_all),
                            static_cast<QWidget*>(box)}) {
        layout->addWidget(widget);
    }
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    connect(m_name, &QLineEdit::textChanged, this, &BackupNameDialog::check);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

QString BackupNameDialog::name() const
{
    return m_name->text();
}

bool BackupNameDialog::wantsAll() const
{
    return m_all->isChecked();
}

void BackupNameDialog::check()
{
    const QString fault = Operations::backupNameFault(m_name->text());
    m_fault->setText(fault);
    resize(width(), qMax(height(), layout()->totalHeightForWidth(width())));
    m_ok->setEnabled(fault.isEmpty());
}

}  // namespace App
