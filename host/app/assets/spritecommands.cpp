#include "app/assets/spritecommands.h"

#include "app/actions/actionregistry.h"
#include "app/assets/axisdialog.h"
#include "app/assets/spritepanel.h"
#include "app/session/gamesession.h"
#include "app/window/editorregistry.h"
#include "app/window/fieldcommands.h"
#include "app/window/filesaving.h"
#include "app/window/partlist.h"
#include "app/window/windowservices.h"
#include "family/assets/familysprite.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "operations/check/uses.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/code/codedoc/framecode.h>
#include <zorv/core/fileinput.h>
#include <zorv/image/spriteeditor.h>

#include <algorithm>

namespace App {

using Family::SpriteCollection;

SpriteCommands::SpriteCommands(const WindowServices& services)
    : QObject(services.window), m_services(services), m_panel(new SpritePanel)
{
    connect(m_panel, &SpritePanel::changed, services.parts, &PartList::updateSoon);
}

QVector<ActionRow> SpriteCommands::actions()
{
    const Members<SpriteCommands> on(this);
    // clang-format off
    return {
        {"sprite_axis", "spr.list", QT_TRANSLATE_NOOP("App::Actions", "Set a&xis..."), {}, on(&SpriteCommands::setAxes), on(&SpriteCommands::hasSprite)},
    };
    // clang-format on
}

void SpriteCommands::actionsMade()
{
    for (const char* name : {"spr_add", "sprite_axis"}) {
        m_panel->list()->addAction(m_services.actions->action(QLatin1String(name)));
    }
}

/// An edit can make the text name another sprite file.
void SpriteCommands::showProject(Family::FamilyProject* project)
{
    m_panel->setSprites(
        dynamic_cast<SpriteCollection*>(project ? project->file(Zorv::FileID::Sprites) : nullptr));
}

void SpriteCommands::followRest(int line)
{
    const Family::FamilyDocument* document = m_services.parts->document();
    if (m_panel->visibleRegion().isEmpty() || !document || document->isCodeBeingChanged()) {
        return;
    }
    const Zorv::CodeNode* node = document->nodeInBlock(document->findBlockByNumber(line));
    if (node && node->type() == Zorv::CodeNode::Frame) {
        const auto* frame = static_cast<const Zorv::FrameCode*>(node);
        m_panel->showSprite(frame->spriteGroup(), frame->spriteNumber());
    }
}

QVector<PanelPlace> SpriteCommands::places()
{
    CommandRows rows = historyCommands([this] { return m_panel->sprites(); });
    rows +=
        CommandRows{{Command::Delete, [this] { removeSelected(); }, [this] { return hasSprite(); }},
                    {Command::SelectAll, [this] { m_panel->list()->selectAll(); }},
                    {Command::Save, [this] { save(); }, [this] { return canSave(); }}};
    return {PanelPlace::of(m_panel, rows)};
}

/// A file missing on disk can be written again.
bool SpriteCommands::canSave() const
{
    const Zorv::Sprites* sprites = m_panel->sprites();
    return sprites && (Zorv::FileInput::isUnsaved(sprites) || isGone(sprites));
}

void SpriteCommands::save()
{
    saveFile(m_services, m_panel->sprites());
}

bool SpriteCommands::hasSprite() const
{
    return m_panel->currentSprite();
}

void SpriteCommands::setAxes()
{
    auto* canvas =
        qobject_cast<Zorv::SpriteEditor*>(m_services.editors->byName(QStringLiteral("spr")));
    setAxesOfSelected(m_panel, canvas, m_services.window);
}

void SpriteCommands::removeSelected()
{
    const auto removal = [this] {
        const SpriteCollection* from = m_panel->sprites();
        return from ? Operations::removalOf(Operations::Removal::Sprites, *from,
                                            m_panel->selectedRows())
                    : Operations::Removal();
    };
    if (removal().names.isEmpty() || !m_services.mayRemove(removal)) {
        return;
    }
    SpriteCollection* sprites = m_panel->sprites();
    const QVector<int> rows = m_panel->selectedRows();
    sprites->beginChange(tr("Remove sprites"));
    sprites->removeSprites(rows);
    sprites->endChange();
    m_panel->setCurrentRow(std::min(rows.first(), int(sprites->count()) - 1));
}

}  // namespace App
