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
#include <algorithm>

namespace App {

namespace {

// The first number of a list without numbers is 0.
const QString BelowFirst = QStringLiteral("-1");

QString nextNumber(const Family::FamilyAnimations* list)
{
    qint64 highest = -1;
    for (int i = 0; i < list->count(); ++i) {
        bool isNumber = false;
        const qint64 number = list->animation(i)->identifier().toLongLong(&isNumber);
        highest = isNumber ? std::max(highest, number) : highest;
    }
    return Operations::freeIdentifier(list, highest < 0 ? BelowFirst : QString::number(highest));
}

}  // namespace

NewAnimationDialog::NewAnimationDialog(const Family::FamilyAnimations* list, int position,
                                       QWidget* parent)
    : QDialog(parent), m_list(list), m_identifier(new QLineEdit(nextNumber(list))),
      m_place(new QComboBox), m_fault(new QLabel)
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
    QString fault;
    if (!Family::isAnimationIdentifier(identifier())) {
        fault = tr("Write a number, or a word of letters, digits, '_' and '-'.");
    } else if (m_list->indexOfIdentifier(identifier()) >= 0) {
        fault = tr("There is an animation %1 already.").arg(identifier());
    }
    m_fault->setText(fault);
    m_ok->setEnabled(fault.isEmpty());
}

}  // namespace App
