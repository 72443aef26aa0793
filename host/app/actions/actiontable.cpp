#include "app/actions/actiontable.h"

#include "app/actions/actionsearch.h"
#include "app/actions/keysdialog.h"
#include "app/assets/soundcommands.h"
#include "app/assets/spritecommands.h"
#include "app/code/codehelp.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/find/findbar.h"
#include "app/game/gamecommands.h"
#include "app/main/mainwindow.h"
#include "app/run/runcommands.h"
#include "app/settings/showsettings.h"
#include "app/stage/stagecommands.h"

#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

namespace App {

namespace {

constexpr QKeySequence::StandardKey NoKey = QKeySequence::UnknownKey;

template <void (Zorv::CodeFileEditor::*member)()>
void inText(MainWindow& window)
{
    (window.textEditor()->*member)();
}

template <void (FindBar::*member)()>
void inFindBar(MainWindow& window)
{
    (window.code()->findBar()->*member)();
}

template <void (CodeHelp::*member)()>
void withHelp(MainWindow& window)
{
    (window.codeHelp()->*member)();
}

template <void (GameCommands::*member)()>
void onGame(MainWindow& window)
{
    (window.gameCommands()->*member)();
}

void foldAtCursor(MainWindow& window)
{
    window.code()->workspace()->editor()->toggleFold();
}

template <void (RunCommands::*member)()>
void onEngine(MainWindow& window)
{
    (window.runCommands()->*member)();
}

template <void (SpriteCommands::*member)()>
void onSprites(MainWindow& window)
{
    (window.spriteCommands()->*member)();
}

template <void (StageCommands::*member)()>
void onStage(MainWindow& window)
{
    (window.stage()->*member)();
}

/// What has the keyboard is zoomed: the stage or the text.
template <bool (StageCommands::*onStage)(), void (Zorv::Workspace::*inText)()>
void zoom(MainWindow& window)
{
    if (!(window.stage()->*onStage)()) {
        (window.code()->workspace()->*inText)();
    }
}

template <void (SoundCommands::*member)()>
void onSounds(MainWindow& window)
{
    (window.soundCommands()->*member)();
}

}  // namespace

const QVector<MenuRow>& menuTable()
{
    static const QVector<MenuRow> table{
        {"file", QT_TRANSLATE_NOOP("App::Menus", "&File")},
        {"edit", QT_TRANSLATE_NOOP("App::Menus", "&Edit")},
        {"code", QT_TRANSLATE_NOOP("App::Menus", "&Code")},
        {"anim", QT_TRANSLATE_NOOP("App::Menus", "&Animation")},
        {"spr", QT_TRANSLATE_NOOP("App::Menus", "Sp&rites")},
        {"pal", QT_TRANSLATE_NOOP("App::Menus", "Pa&lettes")},
        {"snd", QT_TRANSLATE_NOOP("App::Menus", "S&ounds")},
        {"view", QT_TRANSLATE_NOOP("App::Menus", "&View")},
        {"tools", QT_TRANSLATE_NOOP("App::Menus", "&Tools")},
        {"help", QT_TRANSLATE_NOOP("App::Menus", "&Help")},
    };
    return table;
}

const QVector<ActionRow>& actionTable()
{
    using W = MainWindow;
    using K = QKeySequence;
    using R = ActionRow;
    // clang-format off
    static const QVector<ActionRow> table{
        {"open_folder",    "file",  QT_TRANSLATE_NOOP("App::Actions", "&Open game folder..."),           K::Open,      nullptr,        NoNeed,          call<&W::openFolderByDialog>},
        {nullptr,          "file",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"save",           "file",  QT_TRANSLATE_NOOP("App::Actions", "&Save"),                          K::Save,      nullptr,        NeedsText,       call<&W::save>},
        {"save_all",       "file",  QT_TRANSLATE_NOOP("App::Actions", "Save a&ll"),                      NoKey,        "Ctrl+Shift+S", NeedsUnsaved,    call<&W::saveAll>},
        {"save_all_as",    "file",  QT_TRANSLATE_NOOP("App::Actions", "Save all &as..."),                NoKey,        nullptr,        NeedsGame,       onGame<&GameCommands::saveAllAs>},
        {nullptr,          "file",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"backup",         "file",  QT_TRANSLATE_NOOP("App::Actions", "&Back up..."),                    NoKey,        nullptr,        NeedsGame,       onGame<&GameCommands::makeBackup>},
        {"restore_backup", "file",  QT_TRANSLATE_NOOP("App::Actions", "Res&tore backup..."),             NoKey,        nullptr,        NeedsGame,       onGame<&GameCommands::restoreBackup>},
        {nullptr,          "file",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"close_text",     "file",  QT_TRANSLATE_NOOP("App::Actions", "&Close text"),                    K::Close,     nullptr,        NeedsText,       call<&W::closeText>},
        {"close_project",  "file",  QT_TRANSLATE_NOOP("App::Actions", "Close &project"),                 NoKey,        "Ctrl+Shift+W", NeedsProject,    call<&W::closeProject>},
        {"close_folder",   "file",  QT_TRANSLATE_NOOP("App::Actions", "Close &game folder"),             NoKey,        nullptr,        NeedsGame,       call<&W::closeFolder>},
        {nullptr,          "file",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"quit",           "file",  QT_TRANSLATE_NOOP("App::Actions", "&Quit"),                          NoKey,        "Ctrl+Q",       NoNeed,          call<&W::quit>},

        {"undo",           "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Undo"),                          K::Undo,      nullptr,        NeedsUndo,       inText<&Zorv::CodeFileEditor::undo>},
        {"redo",           "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Redo"),                          K::Redo,      nullptr,        NeedsRedo,       inText<&Zorv::CodeFileEditor::redo>},
        {nullptr,          "edit",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"cut",            "edit",  QT_TRANSLATE_NOOP("App::Actions", "Cu&t"),                           K::Cut,       nullptr,        NeedsSelection,  inText<&Zorv::CodeFileEditor::cut>},
        {"copy",           "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Copy"),                          K::Copy,      nullptr,        NeedsSelection,  inText<&Zorv::CodeFileEditor::copy>},
        {"paste",          "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Paste"),                         K::Paste,     nullptr,        NeedsText,       inText<&Zorv::CodeFileEditor::paste>},
        {"select_all",     "edit",  QT_TRANSLATE_NOOP("App::Actions", "Select &all"),                    K::SelectAll, nullptr,        NeedsText,       inText<&Zorv::CodeFileEditor::selectAll>},
        {"code_complete",  "code",  QT_TRANSLATE_NOOP("App::Actions", "Co&mplete word"),                  NoKey,        "Ctrl+Space",   NeedsText,       withHelp<&CodeHelp::completeWord>, "code"},
        {"code_definition", "code",  QT_TRANSLATE_NOOP("App::Actions", "&Go to definition"),               NoKey,        "F12",          NeedsText,       withHelp<&CodeHelp::goToDefinition>, "code"},
        {"code_back",      "code",  QT_TRANSLATE_NOOP("App::Actions", "Go &back"),                        NoKey,        "Alt+Left",     NeedsText,       withHelp<&CodeHelp::goBack>, "code"},
        {"code_fold",      "code",  QT_TRANSLATE_NOOP("App::Actions", "&Fold or unfold"),                NoKey,        "Alt+Shift+Up", NeedsText,       foldAtCursor, "code"},
        {nullptr,          "code",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {nullptr,          "edit",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"find",           "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Find..."),                       K::Find,      nullptr,        NeedsText,       inFindBar<&FindBar::openFind>, "code"},
        {"find_next",      "edit",  QT_TRANSLATE_NOOP("App::Actions", "Find &next"),                     NoKey,        "F3",           NeedsText,       inFindBar<&FindBar::findNext>, "code"},
        {"find_previous",  "edit",  QT_TRANSLATE_NOOP("App::Actions", "Find pre&vious"),                 NoKey,        "Shift+F3",     NeedsText,       inFindBar<&FindBar::findPrevious>, "code"},
        {"find_selection", "edit",  QT_TRANSLATE_NOOP("App::Actions", "Find &selection"),                NoKey,        "Ctrl+F3",      NeedsText,       inFindBar<&FindBar::findSelection>, "code"},
        {"replace",        "edit",  QT_TRANSLATE_NOOP("App::Actions", "Rep&lace..."),                    NoKey,        "Ctrl+H",       NeedsText,       inFindBar<&FindBar::openReplace>, "code"},
        {nullptr,          "edit",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"encoding",       "edit",  QT_TRANSLATE_NOOP("App::Actions", "&Encoding..."),                   NoKey,        nullptr,        NeedsText,       call<&W::changeEncoding>, "code"},

        {"anim_add",       "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Add"),                           NoKey,        "Ctrl+Shift+A", NeedsText,       call<&W::addAnimation>},
        {"anim_duplicate", "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Duplicate"),                     NoKey,        "Ctrl+Shift+D", NeedsAnimation,  call<&W::duplicateAnimation>},
        {"anim_remove",    "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Remove"),                        NoKey,        "Ctrl+Shift+R", NeedsAnimation,  call<&W::removeAnimations>},
        {nullptr,          "anim",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"anim_play",              "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Play"),                         NoKey,        "F9",           NeedsFrame,      onStage<&StageCommands::play>, nullptr, R::Switch},
        {"anim_stop",              "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Stop"),                         NoKey,        "Shift+F9",     NeedsFrame,      onStage<&StageCommands::stop>, nullptr, R::Switch},
        {"anim_prev_frame",        "anim",  QT_TRANSLATE_NOOP("App::Actions", "Pre&vious frame"),               NoKey,        "Alt+PgUp",     NeedsFrame,      onStage<&StageCommands::showPreviousFrame>},
        {"anim_next_frame",        "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Next frame"),                   NoKey,        "Alt+PgDown",   NeedsFrame,      onStage<&StageCommands::showNextFrame>},
        {"anim_onion_skin",        "anim",  QT_TRANSLATE_NOOP("App::Actions", "&Onion skin"),                   NoKey,        "Ctrl+Shift+O", NeedsFrame,      onStage<&StageCommands::takeOnionSkin>, nullptr, R::Switch},
        {nullptr,          "anim",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"anim_box_add_attack",    "anim",  QT_TRANSLATE_NOOP("App::Actions", "Draw a&ttack boxes"),            NoKey,        "Ctrl+1",       NeedsStageFrame, onStage<&StageCommands::takeMode>, nullptr, R::Switch},
        {"anim_box_add_collision", "anim",  QT_TRANSLATE_NOOP("App::Actions", "Draw &body boxes"),              NoKey,        "Ctrl+2",       NeedsStageFrame, onStage<&StageCommands::takeMode>, nullptr, R::Switch},
        {"anim_box_del",           "anim",  QT_TRANSLATE_NOOP("App::Actions", "Remove se&lected boxes"),        NoKey,        nullptr,        NeedsBox,        onStage<&StageCommands::removeBoxes>},
        {"stage_capture",          "anim",  QT_TRANSLATE_NOOP("App::Actions", "Pick &colour"),                  NoKey,        "Ctrl+Shift+K", NeedsStageFrame, onStage<&StageCommands::takeMode>, nullptr, R::Switch},
        {nullptr,          "anim",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},

        {"sprite_add",      "spr",   QT_TRANSLATE_NOOP("App::Actions", "&Add images..."),                       NoKey,        nullptr,        NeedsSprites,    onSprites<&SpriteCommands::addImages>},
        {"sprite_replace",  "spr",   QT_TRANSLATE_NOOP("App::Actions", "&Replace image..."),                    NoKey,        nullptr,        NeedsSprite,     onSprites<&SpriteCommands::replaceImage>},
        {"sprite_export",   "spr",   QT_TRANSLATE_NOOP("App::Actions", "&Save images as..."),                   NoKey,        nullptr,        NeedsSprite,     onSprites<&SpriteCommands::exportImages>},
        {"sprite_remove",   "spr",   QT_TRANSLATE_NOOP("App::Actions", "Re&move sprites"),                      NoKey,        nullptr,        NeedsSprite,     onSprites<&SpriteCommands::removeSelected>},
        {nullptr,          "spr",   nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"sprite_undo",     "spr",   QT_TRANSLATE_NOOP("App::Actions", "&Undo change of sprites"),              NoKey,        nullptr,        NeedsSpriteUndo, onSprites<&SpriteCommands::undo>},
        {"sprite_redo",     "spr",   QT_TRANSLATE_NOOP("App::Actions", "Re&do change of sprites"),              NoKey,        nullptr,        NeedsSpriteRedo, onSprites<&SpriteCommands::redo>},

        {"palette_open",    "pal",   QT_TRANSLATE_NOOP("App::Actions", "&Load palette..."),                     NoKey,        nullptr,        NeedsPalette,    onSprites<&SpriteCommands::openPalette>},
        {"palette_save",    "pal",   QT_TRANSLATE_NOOP("App::Actions", "&Save palette as..."),                  NoKey,        nullptr,        NeedsPalette,    onSprites<&SpriteCommands::savePalette>},

        {"sound_add",       "snd",   QT_TRANSLATE_NOOP("App::Actions", "&Add sounds..."),                       NoKey,        nullptr,        NeedsSounds,     onSounds<&SoundCommands::addSounds>},
        {"sound_export",    "snd",   QT_TRANSLATE_NOOP("App::Actions", "&Save sounds as..."),                   NoKey,        nullptr,        NeedsSound,      onSounds<&SoundCommands::exportSounds>},
        {"sound_remove",    "snd",   QT_TRANSLATE_NOOP("App::Actions", "Re&move sounds"),                       NoKey,        nullptr,        NeedsSound,      onSounds<&SoundCommands::removeSelected>},
        {nullptr,          "snd",   nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"sound_undo",      "snd",   QT_TRANSLATE_NOOP("App::Actions", "&Undo change of sounds"),               NoKey,        nullptr,        NeedsSoundUndo,  onSounds<&SoundCommands::undo>},
        {"sound_redo",      "snd",   QT_TRANSLATE_NOOP("App::Actions", "Re&do change of sounds"),               NoKey,        nullptr,        NeedsSoundRedo,  onSounds<&SoundCommands::redo>},

        {"next_panel",     "view",  QT_TRANSLATE_NOOP("App::Actions", "&Next panel"),                    NoKey,        "F6",           NoNeed,          call<&W::focusNextPanel>},
        {"previous_panel", "view",  QT_TRANSLATE_NOOP("App::Actions", "&Previous panel"),                NoKey,        "Shift+F6",     NoNeed,          call<&W::focusPreviousPanel>},
        {"next_text",      "view",  QT_TRANSLATE_NOOP("App::Actions", "Next te&xt"),                     NoKey,        "Ctrl+PgDown; Ctrl+Tab", NeedsText,       call<&W::showNextText>},
        {"previous_text",  "view",  QT_TRANSLATE_NOOP("App::Actions", "Previous t&ext"),                 NoKey,        "Ctrl+PgUp; Ctrl+Shift+Tab", NeedsText,       call<&W::showPreviousText>},
        {nullptr,          "view",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"zoom_in",        "view",  QT_TRANSLATE_NOOP("App::Actions", "&Larger text"),                   K::ZoomIn,    nullptr,        NeedsText,       zoom<&StageCommands::zoomIn, &Zorv::Workspace::zoomIn>},
        {"zoom_out",       "view",  QT_TRANSLATE_NOOP("App::Actions", "&Smaller text"),                  K::ZoomOut,   nullptr,        NeedsText,       zoom<&StageCommands::zoomOut, &Zorv::Workspace::zoomOut>},
        {"zoom_actual",    "view",  QT_TRANSLATE_NOOP("App::Actions", "&Usual size of text"),            NoKey,        "Ctrl+0",       NeedsText,       zoom<&StageCommands::zoomActual, &Zorv::Workspace::zoomActual>},
        {nullptr,          "view",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"view_stage",             "view",  QT_TRANSLATE_NOOP("App::Actions", "Sta&ge"),                        NoKey,        "F7",           NoNeed,          onStage<&StageCommands::showStage>, nullptr, R::Switch},
        {"view_center_origin",     "view",  QT_TRANSLATE_NOOP("App::Actions", "Centre the &origin"),            NoKey,        nullptr,        NeedsStage,      onStage<&StageCommands::centerOrigin>},
        {"view_main_cross",        "view",  QT_TRANSLATE_NOOP("App::Actions", "Ax&is of the animation"),        NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_secondary_cross",   "view",  QT_TRANSLATE_NOOP("App::Actions", "Axis of the spri&te"),           NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_extra_cross",       "view",  QT_TRANSLATE_NOOP("App::Actions", "Extr&a cross"),                  NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_rulers",            "view",  QT_TRANSLATE_NOOP("App::Actions", "&Rulers"),                       NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_guide_lines",       "view",  QT_TRANSLATE_NOOP("App::Actions", "Gui&des"),                       NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_attack_box",        "view",  QT_TRANSLATE_NOOP("App::Actions", "Attac&k boxes"),                 NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {"view_collision_box",     "view",  QT_TRANSLATE_NOOP("App::Actions", "&Body boxes"),                   NoKey,        nullptr,        NoNeed,          onStage<&StageCommands::takeVisibility>, nullptr, R::Switch},
        {nullptr,          "view",  nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},

        {"run",            "tools", QT_TRANSLATE_NOOP("App::Actions", "R&un in engine"),                 NoKey,        "F5",           NeedsProject | NeedsNoEngine, onEngine<&RunCommands::run>},
        {"stop_engine",    "tools", QT_TRANSLATE_NOOP("App::Actions", "&End the engine"),                NoKey,        "Shift+F5",     NeedsEngine,     onEngine<&RunCommands::stop>},
        {nullptr,          "tools", nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"search_actions", "tools", QT_TRANSLATE_NOOP("App::Actions", "&Find action..."),                NoKey,        "Ctrl+Shift+P", NoNeed,          searchActions},
        {nullptr,          "tools", nullptr,                                                             NoKey,        nullptr,        NoNeed,          nullptr},
        {"settings",       "tools", QT_TRANSLATE_NOOP("App::Actions", "&Options..."),                    NoKey,        "Ctrl+,",       NoNeed,          showSettings},

        {"keys",           "help",  QT_TRANSLATE_NOOP("App::Actions", "&Keys..."),                       K::HelpContents, nullptr,     NoNeed,          showKeys},
        {"about",          "help",  QT_TRANSLATE_NOOP("App::Actions", "&About Zorv"),                    NoKey,        nullptr,        NoNeed,          call<&W::showAbout>},
    };
    // clang-format on
    return table;
}

}  // namespace App
