#include "app/palettes/palettecommands.h"

#include "app/palettes/colorexchange.h"
#include "app/palettes/familypaletteeditor.h"
#include "app/palettes/palettetools.h"
#include "app/palettes/paletteusage.h"
#include "app/palettes/sightswitches.h"
#include "app/window/editorregistry.h"
#include "app/window/fieldcommands.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"

#include <zorv/editors/palette/palettewidget.h>

namespace App {

PaletteCommands::PaletteCommands(const WindowServices& services)
    : QObject(services.window), m_editor(new FamilyPaletteEditor(this)),
      m_usage(new PaletteUsage(m_editor, this)),
      m_tools(new PaletteTools(services, m_editor, m_usage, this)),
      m_exchange(new ColorExchange(m_editor, this)), m_sight(new SightSwitches(services, this))
{
    services.editors->addPanel(m_editor);
    connect(m_editor, &Zorv::PaletteEditor::currentPaletteChanged, services.parts,
            &PartList::updateSoon);
    connect(m_editor->view(), &Zorv::PaletteWidget::selectionChanged, services.parts,
            &PartList::updateSoon);
}

// Destroy what uses the editor before the editor.
PaletteCommands::~PaletteCommands()
{
    delete m_exchange;
    delete m_tools;
    delete m_usage;
    delete m_editor;
}

QVector<ActionRow> PaletteCommands::actions()
{
    return m_tools->actions() + m_sight->actions();
}

void PaletteCommands::actionsMade()
{
    m_tools->actionsMade();
}

void PaletteCommands::retranslate()
{
    m_usage->showLine();
}

QVector<PanelPlace> PaletteCommands::places()
{
    if (!m_editor->view()) {
        return {};
    }
    return {PanelPlace::of(m_editor->view(), historyCommands([this] {
                                                 return m_editor->sprites();
                                             }) + m_exchange->commands())};
}

}  // namespace App
