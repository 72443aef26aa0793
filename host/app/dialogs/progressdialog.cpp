#include "app/dialogs/progressdialog.h"

#include <QProgressDialog>

namespace App {

namespace {

constexpr int ShownAfter = 400;  // milliseconds

}  // namespace

ProgressDialog::ProgressDialog(QWidget* parent, const QString& title)
    : m_dialog(new QProgressDialog(parent))
{
    m_dialog->setWindowTitle(title);
    m_dialog->setLabelText(title);
    m_dialog->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    m_dialog->setMinimumDuration(ShownAfter);
    m_dialog->setMinimumWidth(m_dialog->fontMetrics().averageCharWidth() * 50);
    m_dialog->setAutoClose(false);
    m_dialog->setAutoReset(false);
}

ProgressDialog::~ProgressDialog()
{
    delete m_dialog;
}

// setValue() processes events once the dialog is shown, and may thereby destroy it.
void ProgressDialog::update(int value, int maximum)
{
    if (m_dialog && maximum > 0) {
        m_dialog->setMaximum(maximum);
    }
    if (m_dialog) {
        m_dialog->setValue(value);
    }
}

bool ProgressDialog::isCanceled() const
{
    return m_dialog && m_dialog->wasCanceled();
}

void ProgressDialog::finish()
{
    delete this;
}

}  // namespace App
