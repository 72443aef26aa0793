#include "animation/animationeditor_p.h"
#include "text/zorvtranslator.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>

namespace Zorv {

namespace {

using namespace ToolKind;

const char* const areas[] = {"animations", nullptr};

const char* const always = nullptr;
const char* const animation = SIGNAL(enabled(bool));
const char* const frame = SIGNAL(frameEnabled(bool));
const char* const frameNC = SIGNAL(frameEnabledNC(bool));
const char* const frameExtra = SIGNAL(frameEnabledExtra(bool));
const char* const box = SIGNAL(boxEnabled(bool));

// clang-format off
const EditorTool tools[] = {
    {"anim_editcode",            CheckAction, 46, always,    SLOT(editCode(bool)),        nullptr},
    {"anim_code",                Action,      50, animation, SLOT(editAnimCode()),        nullptr},
    {"anim_add",                 Action,      47, always,    SLOT(add()),                 nullptr},
    {"anim_delete",              Action,      48, animation, SLOT(del()),                 nullptr},
    {"anim_duplicate",           Action,      49, animation, SLOT(duplicate()),           nullptr},
    {"anim_save_gif",            Action,      51, animation, SLOT(saveGIF()),             nullptr},
    {"anim_play",                CheckAction, 52, animation, SLOT(playChanged(bool)),     nullptr},
    {"anim_stop",                CheckAction, 53, animation, SLOT(stopChanged(bool)),     nullptr},
    {"anim_frame_add",           Action,      58, animation, SLOT(frameAdd()),            nullptr},
    {"anim_frame_delete",        Action,      59, frame,     SLOT(frameDel()),            nullptr},
    {"anim_frameall_offset",     Action,      72, frame,     SLOT(frameAllOffset()),      nullptr},
    {"anim_frameall_time",       Action,      70, frame,     SLOT(frameAllTime()),        nullptr},
    {"anim_frameall_flip",       Action,      71, frame,     SLOT(frameAllFlip()),        nullptr},
    {"anim_frameall_scale",      Action,      73, frame,     SLOT(frameAllScale()),       nullptr},
    {"anim_frame_align",         Action,      74, frame,     SLOT(frameAlign()),          nullptr},
    {"anim_box_add_attack",      CheckAction, 60, frameNC,   SLOT(boxAddAChanged(bool)),  nullptr},
    {"anim_box_add_collision",   CheckAction, 61, frameNC,   SLOT(boxAddCChanged(bool)),  nullptr},
    {"anim_box_del",             Action,      62, frameNC,   SLOT(boxDel()),              nullptr},
    {"anim_box_delall",          Action,      63, frame,     SLOT(boxDelAll()),           nullptr},
    {"anim_box_delall_anim",     Action,      64, frame,     SLOT(boxDelAllAnim()),       nullptr},
    {"anim_box_type",            Action,      65, frameNC,   SLOT(boxSwType()),           nullptr},
    {"anim_box_prev",            Action,      66, frame,     SLOT(boxPrev()),             nullptr},
    {"anim_box_allinst",         Action,      67, frame,     SLOT(boxAllInst()),          nullptr},
    {"anim_optimize",            Action,      68, always,    SLOT(optimize()),            nullptr},
    {"anim_import_proj",         Action,      69, always,    SLOT(projImport()),          nullptr},
    {"anim_sel",                 Slider, AnimationTexts::Animation, always, SLOT(selPosChanged(int)), SIGNAL(setSelPos(int))},
    {"anim_sel_lb",              Label,   NoText, always,    nullptr,                     SIGNAL(setPosText(QString))},
    {"anim_frame_sel",           Slider,      75, always,    SLOT(frameSelPosChanged(int)), SIGNAL(setFrameSelPos(int))},
    {"anim_frame_sel_lb",        Label,   NoText, always,    nullptr,                     SIGNAL(setFramePosText(QString))},
    {"anim_frame_xaxis",         Spin,        76, frame,     SLOT(frameXChanged(int)),    SIGNAL(setFrameX(int))},
    {"anim_frame_yaxis",         Spin,        77, frame,     SLOT(frameYChanged(int)),    SIGNAL(setFrameY(int))},
    {"anim_frame_flip",          Combo,       78, frame,     SLOT(frameFlipChanged(int)), SIGNAL(setFrameFlip(int))},
    {"anim_frame_xscale",        Real,        83, frameExtra, SLOT(frameScaleXChanged(double)), SIGNAL(setFrameScaleX(double))},
    {"anim_frame_yscale",        Real,        84, frameExtra, SLOT(frameScaleYChanged(double)), SIGNAL(setFrameScaleY(double))},
    {"anim_frame_angle",         Real,        85, frameExtra, SLOT(frameAngleChanged(double)), SIGNAL(setFrameAngle(double))},
    {"anim_pos_left",            Action,      54, frame,     SLOT(axisLeft()),            nullptr},
    {"anim_pos_up",              Action,      55, frame,     SLOT(axisUp()),              nullptr},
    {"anim_pos_right",           Action,      56, frame,     SLOT(axisRight()),           nullptr},
    {"anim_pos_down",            Action,      57, frame,     SLOT(axisDown()),            nullptr},
    {"anim_frame_time",          Spin,        86, frame,     SLOT(frameTimeChanged(int)), SIGNAL(setFrameTime(int))},
    {"anim_onion_skin",          Check,       91, frameNC,   SLOT(onionSkinChanged(bool)), SIGNAL(setOnionSkin(bool))},
    {"anim_onion_sel",           Slider, AnimationTexts::OnionAnimation, always, SLOT(onionSelPosChanged(int)), SIGNAL(setOnionSelPos(int))},
    {"anim_onion_framesel",      Slider, AnimationTexts::OnionFrame, always, SLOT(onionFrameSelPosChanged(int)), SIGNAL(setOnionFrameSelPos(int))},
    {"anim_onion_lb",            Label,   NoText, always,    nullptr,                     SIGNAL(setOnionText(QString))},
    {"anim_prev_anim",           Action,      87, animation, SLOT(prevAnim()),            nullptr},
    {"anim_next_anim",           Action,      88, animation, SLOT(nextAnim()),            nullptr},
    {"anim_prev_frame",          Action,      89, frame,     SLOT(prevFrame()),           nullptr},
    {"anim_next_frame",          Action,      90, frame,     SLOT(nextFrame()),           nullptr},
    {"anim_onion_before",        Spin, AnimationTexts::OnionBefore, frameNC, SLOT(onionBeforeChanged(int)), SIGNAL(setOnionBefore(int))},
    {"anim_onion_after",         Spin, AnimationTexts::OnionAfter, frameNC, SLOT(onionAfterChanged(int)), SIGNAL(setOnionAfter(int))},
    {"anim_box_x",               Spin, AnimationTexts::BoxX, box, SLOT(boxXChanged(int)), SIGNAL(setBoxX(int))},
    {"anim_box_y",               Spin, AnimationTexts::BoxY, box, SLOT(boxYChanged(int)), SIGNAL(setBoxY(int))},
    {"anim_box_width",           Spin, AnimationTexts::BoxWidth, box, SLOT(boxWidthChanged(int)), SIGNAL(setBoxWidth(int))},
    {"anim_box_height",          Spin, AnimationTexts::BoxHeight, box, SLOT(boxHeightChanged(int)), SIGNAL(setBoxHeight(int))},
    {"anim_box_copy",            Action, AnimationTexts::BoxCopy, frame, SLOT(boxCopy()), nullptr},
    {"anim_box_paste",           Action, AnimationTexts::BoxPaste, frameNC, SLOT(boxPaste()), nullptr},
    {"anim_box_mirror",          Action, AnimationTexts::BoxMirror, frameNC, SLOT(boxMirror()), nullptr},
    {"anim_box_to_frames",       Action, AnimationTexts::BoxToFrames, frameNC, SLOT(boxToFrames()), nullptr},
    {"anim_box_lock",            CheckAction, AnimationTexts::BoxLock, always, SLOT(boxLock(bool)), nullptr},
    {"anim_play_here",           Action, AnimationTexts::PlayHere, animation, SLOT(playHere()), nullptr},
    {"anim_play_half",           CheckAction, AnimationTexts::PlayHalf, animation, SLOT(playHalfChanged(bool)), nullptr},
    {"anim_play_quarter",        CheckAction, AnimationTexts::PlayQuarter, animation, SLOT(playQuarterChanged(bool)), nullptr},
    {"anim_play_again",          CheckAction, AnimationTexts::PlayAgain, animation, SLOT(playAgainChanged(bool)), nullptr},
    {"anim_frame_reverse",       Action, AnimationTexts::FrameReverse, frame, SLOT(frameReverse()), nullptr},
    {"anim_facts_lb",            Label, AnimationTexts::Facts, always, nullptr, SIGNAL(setFacts(QString))},
};
// clang-format on

/// The entries of the flip list, as numbers of texts.
constexpr unsigned flipTexts[] = {79, 80, 81, 82};

}  // namespace

void AnimationEditorPrivate::publish()
{
    published.publish(tools, areas);
    setChecked("anim_editcode", true);
    setChecked("anim_stop", true);
    for (const EditorTool& tool : tools) {
        // Typing becomes one edit when it is entered, not one edit per key.
        if (auto* field = widget<QAbstractSpinBox>(tool.name)) {
            field->setProperty("keyboardTracking", false);
        }
    }
}

void AnimationEditorPrivate::retranslate()
{
    const Guard guard(&updating);
    if (auto* flips = widget<QComboBox>("anim_frame_flip")) {
        const int row = flips->currentIndex();
        flips->clear();
        for (const unsigned id : flipTexts) {
            flips->addItem(ZorvTranslator::instance()->trText(id));
        }
        flips->setCurrentIndex(row);
    }
}

void AnimationEditorPrivate::setChecked(const char* name, bool isChecked)
{
    if (QAction* found = action(name)) {
        found->setChecked(isChecked);
    }
}

}  // namespace Zorv
