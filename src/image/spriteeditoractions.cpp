#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "editors/organizer/organizereditor.h"
#include "image/canvas/imagecanvas.h"
#include "image/spriteeditor_p.h"
#include "text/zorvtranslator.h"

#include <QAction>

namespace Zorv {

namespace {

constexpr unsigned DeleteText = 123;
constexpr unsigned DuplicateText = 128;
constexpr unsigned SplitText = 139;
constexpr unsigned OrganizerPanel = 0;

/// Actions whose state is remembered, and the settings that store it.
const struct
{
    const char* action;
    const char* setting;
} switches[] = {
    {"spr_switch_pal", "switch_to_imgpal"},
    {"spr_frame_spr", "switch_frame_spr"},
};

QString textOf(unsigned id)
{
    return ZorvTranslator::instance()->trText(id);
}

}  // namespace

bool SpriteEditorPrivate::isOn(const char* name) const
{
    const QAction* action = published.action(name);
    return action && action->isChecked();
}

void SpriteEditorPrivate::restoreSwitches()
{
    for (const auto& each : switches) {
        published.action(each.action)
            ->setChecked(host->option(QLatin1String(each.setting)).toBool());
    }
}

void SpriteEditorPrivate::switchPalChanged(bool isOn)
{
    host->setOption(QStringLiteral("switch_to_imgpal"), isOn);
    followPalette();
}

void SpriteEditorPrivate::frameSpr(bool isOn)
{
    host->setOption(QStringLiteral("switch_frame_spr"), isOn);
    followed = {};
}

/// Called many times for the same frame. Only the first call switches the sprite: the user may have
/// chosen another one since.
void SpriteEditorPrivate::followFrame(const Sprite* wanted)
{
    const SpriteNumber number = spriteNumber(wanted);
    if (!isOn("spr_frame_spr") || !wanted || number == followed || !sprites) {
        return;
    }
    followed = number;
    int index = int(sprites->count()) - 1;
    while (index >= 0 && sprites->sprite(index) != wanted) {
        --index;
    }
    if (index >= 0 && index != row && !editor->isCanvasModified()) {
        show(index);
    }
}

/// Returns a function that checks, after a dialog, whether the edited sprite is still the same.
/// During a dialog its file can be reloaded or closed.
std::function<bool()> SpriteEditorPrivate::stillThere() const
{
    const QPointer<const SpriteEditorPrivate> self(this);
    const QPointer<Sprites> before(sprites);
    return [self, before, id = identifier] {
        return self && before && self->sprites == before && self->sprite() &&
               self->identifier == id;
    };
}

/// One question for both: deleting the sprite and losing its unsaved changes.
bool SpriteEditorPrivate::mayDelete() const
{
    const bool isModified = editor->isCanvasModified();
    if (!isModified && !host->option(QStringLiteral("confirm_delete")).toBool()) {
        return true;
    }
    QString text = SpriteEditor::tr("Do you really want to delete the sprite?");
    if (isModified) {
        text += QLatin1String("\n\n") +
                SpriteEditor::tr("The changes on the canvas that are not saved go with it.");
    }
    return Dialogs::instance()->question(textOf(DeleteText), text, Dialogs::Yes | Dialogs::No,
                                         Dialogs::Yes) == Dialogs::Yes;
}

void SpriteEditorPrivate::del()
{
    if (!sprite()) {
        return;
    }
    const std::function<bool()> isThere = stillThere();
    if (!mayDelete() || !isThere() || !editor->mayDeleteSprite() || !isThere()) {
        return;
    }
    canvas()->endStroke();
    const int index = row;
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        sprites->removeSprite(index);
    }
    show(qMin(index, int(sprites->count()) - 1));
}

/// Saves the canvas and then changes the stored sprite, as one undo step: so the change applies to
/// what the canvas shows.
void SpriteEditorPrivate::changeStored(const QString& title, int nextRow,
                                       const std::function<void()>& change)
{
    bool isSaved = false;
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        sprites->beginChange(title);
        saveImg();
        isSaved = !isChanged();
        if (isSaved) {
            change();
        }
        sprites->endChange();
    }
    if (isSaved && nextRow != row) {
        show(nextRow);
    } else {
        showPosition();
    }
}

void SpriteEditorPrivate::duplicate()
{
    if (sprite()) {
        changeStored(textOf(DuplicateText), row + 1, [this] { sprite()->duplicate(); });
    }
}

void SpriteEditorPrivate::splitRGB()
{
    if (sprite()) {
        changeStored(textOf(SplitText), row, [this] { sprite()->splitChannels(); });
    }
}

OrganizerEditor* SpriteEditorPrivate::organizer() const
{
    return qobject_cast<OrganizerEditor*>(host->extraEditor(OrganizerPanel));
}

/// Does nothing if the row is current already: the user may have selected several rows there.
void SpriteEditorPrivate::selectInList()
{
    OrganizerEditor* list = editor->isActive() ? organizer() : nullptr;
    if (list && list->object() == sprites && list->currentRow() != row) {
        list->setCurrentRow(row);
    }
}

/// The organizer shows the sprites while this editor is in front. Afterwards it is emptied, and the
/// editor whose list it showed before sets that again.
void SpriteEditorPrivate::lendList(bool isLent)
{
    OrganizerEditor* list = organizer();
    if (!list) {
        return;
    }
    list->disconnect(this);
    if (isLent) {
        list->setObject(sprites);
        selectInList();
        connect(list, &OrganizerEditor::rowActivated, this, &SpriteEditorPrivate::selPosChanged);
    } else if (list->object() && list->object() == sprites) {
        list->setObject(nullptr);
    }
}

}  // namespace Zorv
