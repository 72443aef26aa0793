#include "core/interface.h"

#include "core/dialogs/itemsdlg.h"

namespace Zorv {

namespace {

Interface* s_interface = nullptr;

}  // namespace

Interface::~Interface() = default;

Interface* Interface::instance()
{
    return s_interface;
}

ItemsDialog* Interface::itemsDialog(QWidget* parent, const QString& title,
                                    QAbstractItemModel* model, int row) const
{
    return new ItemsDlg(parent, title, model, row);
}

bool Interface::watchesFiles() const
{
    return true;
}

}  // namespace Zorv

void setGlobalInterface(Zorv::Interface* interface)
{
    Zorv::s_interface = interface;
}
