#include "editors/framework/editortools_p.h"
#include "editors/sound/soundeditor_p.h"
#include "editors/sound/soundtexts_p.h"

#include <QAction>
#include <QSlider>

namespace Zorv {

namespace {

using namespace ToolKind;

const char* const areas[] = {"sounds", nullptr};

const char* const always = nullptr;
const char* const onSound = SIGNAL(enabled(bool));
const char* const onPart = SIGNAL(partEnabled(bool));

// clang-format off
const EditorTool table[] = {
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
    EditorTools tools(this, SoundTexts::instance());
    tools.publish(table, areas);
    slider = tools.widget<QSlider>("snd_sel");
    playAction = tools.action("snd_play");
    playLoopAction = tools.action("snd_play_loop");
    stopAction = tools.action("snd_stop");
}

}  // namespace Zorv
