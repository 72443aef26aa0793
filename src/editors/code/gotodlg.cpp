#include "editors/code/gotodlg.h"

#include "core/dialogs/dialogbuttons_p.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

#include <limits>

GoToDlg::GoToDlg(QWidget* parent, int value) : QDialog(parent), m_line(new QSpinBox(this))
{
    setWindowTitle(tr("Go to line"));
    m_line->setObjectName(QStringLiteral("line"));
    m_line->setRange(1, std::numeric_limits<int>::max());
    m_line->setValue(value);
    m_line->selectAll();
    auto* label = new QLabel(tr("&Line:"), this);
    label->setBuddy(m_line);
    auto* buttons = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_line);
    layout->addWidget(buttons);
}

GoToDlg::~GoToDlg() = default;

int GoToDlg::getValue() const
{
    return m_line->value();
}
