#include "core/dialogs/itemsdlg.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "core/dialogs/itempicker_p.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

ItemsDlg::ItemsDlg(QWidget* parent, const QString& title, QAbstractItemModel* model, int row)
    : ItemsDialog(parent), m_picker(new ItemPicker(model, row))
{
    setWindowTitle(title.isEmpty() ? tr("Items") : title);
    auto* box = Zorv::makeOkCancel(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_picker);
    layout->addWidget(box);
}

ItemsDlg::~ItemsDlg() = default;

QList<int> ItemsDlg::selected() const
{
    return m_picker->selected();
}

bool ItemsDlg::hasSelection() const
{
    return !selected().isEmpty();
}

void ItemsDlg::release()
{
    m_picker->release();
}
