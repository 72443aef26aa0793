#include "app/stage/newanimationdialog.h"

#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"
#include "operations/animationedits.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace App {

NewAnimationDialog::NewAnimationDialog(const Family::FamilyAnimations* list, int position,
                                       QWidget* parent)
    : QDialog(parent), m_list(list),
      m_identifier(new QLineEdit(Operations::nextAnimationNumber(list))), m_place(new QComboBox),
      m_fault(new QLabel)
{
    setWindowTitle(tr("New animation"));
    for (int i = 0; i < list->count(); ++i) {
        m_place->addItem(tr("In front of %1").arg(list->animation(i)->displayName()));
    }
    m_place->addItem(tr("At the end"));
    m_place->setCurrentIndex(qBound(0, position, m_place->count() - 1));
    m_fault->setWordWrap(true);
    m_fault->setTextFormat(Qt::PlainText);
    m_identifier->selectAll();
    auto* box = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = box->button(QDialogButtonBox::Ok);
    auto* layout = new QFormLayout(this);
    layout->addRow(tr("&Identifier:"), m_identifier);
    layout->addRow(tr("&Place:"), m_place);
    layout->addRow(m_fault);
    layout->addRow(box);
    setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    connect(m_identifier, &QLineEdit::textChanged, this, &NewAnimationDialog::check);
    connect(box, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    check();
}

QString NewAnimationDialog::identifier() const
{
    return m_identifier->text().trimmed();
}

int NewAnimationDialog::position() const
{
    return m_place->currentIndex();
}

void NewAnimationDialog::check()
{
    const QString fault =
        Operations::animationNameFault(Operations::animationIdentifiers(m_list), identifier());
    m_fault->setText(fault);
    m_ok->setEnabled(fault.isEmpty());
}

}  // namespace App
