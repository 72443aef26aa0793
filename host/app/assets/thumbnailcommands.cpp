#include "app/assets/thumbnailcommands.h"

#include "app/window/editorregistry.h"
#include "app/window/windowservices.h"
#include "family/project/familyproject.h"

#include <zorv/animation/animationeditor.h>
#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/animation/thumbnails/thumbnailseditor.h>

#include <QMainWindow>

namespace App {

ThumbnailCommands::ThumbnailCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_panel(new Zorv::ThumbnailsEditor(this))
{
    services.editors->addPanel(m_panel);
}

void ThumbnailCommands::actionsMade()
{
    m_panel->setAnimationEditor(
        qobject_cast<Zorv::AnimationEditor*>(m_services.editors->byName(QStringLiteral("anim"))));
}

void ThumbnailCommands::showProject(Family::FamilyProject* project)
{
    m_panel->setProject(project);
}

QVector<PanelPlace> ThumbnailCommands::places()
{
    Zorv::SpriteList* list = m_panel->list();
    if (!list) {
        return {};
    }
    return {PanelPlace::of(list, {{Command::SelectAll, [list] { list->selectAll(); }}})};
}

}  // namespace App
