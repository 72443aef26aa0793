#include "core/interface.h"

#include "core/dialogs/itemsdlg.h"

#include <QFileInfo>

namespace Zorv {

namespace {

Interface* s_interface = nullptr;

}  // namespace

Interface::~Interface() = default;

Interface* Interface::instance()
{
    return s_interface;
}

void Interface::soundIdentifiers(const QStringList& files, QList<QVariant>* identifiers)
{
    identifiers->clear();
    for (const QString& file : files) {
        identifiers->append(QFileInfo(file).completeBaseName());
    }
}

void Interface::showWorkspace(Workspace*) {}

void Interface::showExtraEditor(ExtraEditor*) {}

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
