#include "core/interface.h"
#include "editors/framework/toolbuttoncontrol.h"
#include "editors/framework/trwidgetcontrol.h"
#include "editors/sound/soundeditor_p.h"
#include "editors/sound/soundtexts_p.h"

#include <QAction>

namespace Zorv {

namespace {

const char* const areas[] = {"sounds", nullptr};

enum Kind { Action, CheckAction, Slider, Label };

constexpr unsigned NoText = ~0U;

const char* const always = nullptr;
const char* const onSound = SIGNAL(enabled(bool));
const char* const onPart = SIGNAL(partEnabled(bool));

// clang-format off
const struct
{
    const char* name;
    Kind kind;
    unsigned textId;
    const char* enableSignal;
    const char* slot;
    const char* setSignal;
} table[] = {
    {"snd_add",         Action,                   146, always,  SLOT(add()),              nullptr},
    {"snd_delete",      Action,                   147, onSound, SLOT(del()),              nullptr},
    {"snd_duplicate",   Action,                   151, onSound, SLOT(duplicate()),        nullptr},
    {"snd_open_sample", Action,                   148, onSound, SLOT(openSnd()),          nullptr},
    {"snd_save_sample", Action,                   149, onSound, SLOT(saveSndAs()),        nullptr},
    {"snd_resample",    Action,                   150, onSound, SLOT(resample()),         nullptr},
    {"snd_play",        CheckAction,              152, onSound, SLOT(play(bool)),         nullptr},
    {"snd_play_loop",   CheckAction,              153, onSound, SLOT(playLoop(bool)),     nullptr},
    {"snd_stop",        CheckAction,              154, onSound, SLOT(stop(bool)),         nullptr},
    {"snd_import_proj", Action,                   155, always,  SLOT(projImport()),       nullptr},
    {"snd_sel",         Slider,     SoundTexts::Sound, always,  SLOT(selPosChanged(int)), SIGNAL(setSelPos(int))},
    {"snd_sel_lb",      Label,                 NoText, always,  nullptr,                  SIGNAL(setPosText(QString))},
    {"snd_info_lb",     Label,                 NoText, always,  nullptr,                  SIGNAL(setInfoText(QString))},
    {"snd_prev",        Action,                   156, onSound, SLOT(previous()),         nullptr},
    {"snd_next",        Action,                   157, onSound, SLOT(next()),             nullptr},
    {"snd_trim",        Action,      SoundTexts::Trim, onPart,  SLOT(trim()),             nullptr},
    {"snd_fade_in",     Action,    SoundTexts::FadeIn, onSound, SLOT(fadeIn()),           nullptr},
    {"snd_fade_out",    Action,   SoundTexts::FadeOut, onSound, SLOT(fadeOut()),          nullptr},
    {"snd_normalize",   Action, SoundTexts::Normalize, onSound, SLOT(normalize()),        nullptr},
    {"snd_silence",     Action,   SoundTexts::Silence, onPart,  SLOT(silence()),          nullptr},
};
// clang-format on

}  // namespace

void SoundEditorPrivate::publish()
{
    QHash<QString, QAction*> made;
    for (const auto& tool : table) {
        const QString name = QString::fromLatin1(tool.name);
        if (tool.kind == Slider) {
            trWidgetControl control(WidgetControl::Slider, 0, SoundTexts::of(tool.textId),
                                    tool.textId, this, tool.slot, tool.setSignal,
                                    tool.enableSignal);
            control.setAreas(areas);
            slider = qobject_cast<QWidget*>(host->addControl(name, control));
            continue;
        }
        if (tool.kind == Label) {
            WidgetControl control(WidgetControl::Label, 0, this, tool.slot, tool.setSignal,
                                  tool.enableSignal);
            control.setAreas(areas);
            host->addControl(name, control);
            continue;
        }
        QAction* action = host->createAction(areas, name, SoundTexts::of(tool.textId), tool.textId,
                                             nullptr, this, tool.slot, tool.enableSignal, nullptr);
        if (action) {
            action->setCheckable(tool.kind == CheckAction);
            host->addControl(name, ToolButtonControl(action));
            made.insert(name, action);
        }
    }
    playAction = made.value(QStringLiteral("snd_play"));
    playLoopAction = made.value(QStringLiteral("snd_play_loop"));
    stopAction = made.value(QStringLiteral("snd_stop"));
}

}  // namespace Zorv
