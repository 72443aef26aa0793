#include "editors/code/encdlg.h"

#include "code/codecs/textcodecs.h"
#include "core/dialogs/dialogbuttons_p.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QVBoxLayout>

using Zorv::TextCodecs;

EncDlg::EncDlg(QWidget* parent, int index) : QDialog(parent), m_list(new QListWidget(this))
{
    setWindowTitle(tr("Encoding"));
    auto* label = new QLabel(tr("&Encoding of the file:"), this);
    label->setBuddy(m_list);
    m_list->setObjectName(QStringLiteral("list"));
    for (int i = 0; i < TextCodecs::count(); ++i) {
        m_list->addItem(TextCodecs::name(i));
    }
    m_list->setCurrentRow(index);
    auto* buttons = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_list);
    layout->addWidget(buttons);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
}

EncDlg::~EncDlg() = default;

int EncDlg::index() const
{
    return m_list->currentRow();
}
