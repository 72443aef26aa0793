#include "app/progressdialog.h"

namespace App {

ProgressDialog::ProgressDialog(QWidget* parent, const QString& title) : m_dialog(parent)
{
    m_dialog.setWindowTitle(title);
    m_dialog.setLabelText(title);
    m_dialog.setCancelButton(nullptr);
    m_dialog.setWindowModality(Qt::WindowModal);
    m_dialog.setAutoClose(false);
}

void ProgressDialog::update(int value, int maximum)
{
    if (maximum > 0) {
        m_dialog.setMaximum(maximum);
    }
    m_dialog.setValue(value);
}

void ProgressDialog::finish()
{
    delete this;
}

}  // namespace App
