#include "app/palettes/palettecommands.h"

#include "app/palettes/familypaletteeditor.h"
#include "app/window/editorregistry.h"
#include "app/window/fieldcommands.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"

#include <zorv/editors/palette/palettewidget.h>

namespace App {

PaletteCommands::PaletteCommands(const WindowServices& services)
    : QObject(services.window), m_editor(new FamilyPaletteEditor(this))
{
    services.editors->addPanel(m_editor);
}

PaletteCommands::~PaletteCommands()
{
    delete m_editor;
}

QVector<PanelPlace> PaletteCommands::places()
{
    if (!m_editor->view()) {
        return {};
    }
    return {
        PanelPlace::of(m_editor->view(), historyCommands([this] { return m_editor->sprites(); }))};
}

}  // namespace App
