#include "app/controls/controllayout.h"

#include <zorv/text/zorvtranslator.h>

#include <cstring>

namespace App {

namespace {

// Of the texts of the library's tools.
enum TextId : unsigned {
    PalettesText = 27,
    AnimationsText = 45,
    SpritesText = 92,
    LayersText = 117,
    SoundsText = 145,
    OrganizerText = 158,
    ThumbnailsText = 166
};

ActionText own(const char* text)
{
    return {"App::Bars", text};
}

ActionText shared(TextId id)
{
    return {Zorv::ZorvTranslator::instance(), id};
}

struct KeyRow
{
    const char* name;
    const char* key;
};

const KeyRow firstKeys[] = {
    {"org_up", "Alt+Up"},
    {"org_down", "Alt+Down"},
    {"code_goto", "Ctrl+L"},
    {"code_snippet_insert", "Ctrl+J"},
    {"code_prev_error", "Shift+F8"},
    {"code_next_error", "F8"},
    {"code_prev_deprecation", "Ctrl+Shift+F8"},
    {"code_next_deprecation", "Ctrl+F8"},
    {"code_comment", "Ctrl+/"},
    {"code_fold_all", "Alt+Shift+Left"},
    {"code_unfold_all", "Alt+Shift+Right"},
};

}  // namespace

const QVector<BarRow>& barTable()
{
    // clang-format off
    static const QVector<BarRow> table{
        {"main",         BarRow::ToolBar, Qt::TopToolBarArea,      nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Main"))},
        {"editors",      BarRow::ToolBar, Qt::TopToolBarArea,      nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Editors")), nullptr, 2},
        {"code",         BarRow::ToolBar, Qt::TopToolBarArea,      nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Code"))},
        {"stage",        BarRow::ToolBar, Qt::TopToolBarArea,      nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Stage"))},
        {"animation",    BarRow::ToolBar, Qt::TopToolBarArea,      "anim",  "animations", shared(AnimationsText)},
        {"frame",        BarRow::ToolBar, Qt::TopToolBarArea,      "anim",  "animations", own(QT_TRANSLATE_NOOP("App::Bars", "Frame"))},
        {"boxes",        BarRow::ToolBar, Qt::TopToolBarArea,      "anim",  "animations", own(QT_TRANSLATE_NOOP("App::Bars", "Contact boxes"))},
        {"onion",        BarRow::ToolBar, Qt::BottomToolBarArea,   "anim",  "animations", own(QT_TRANSLATE_NOOP("App::Bars", "Onion skin"))},
        {"sprites",      BarRow::ToolBar, Qt::TopToolBarArea,      "spr",   "sprites",    shared(SpritesText)},
        {"sprite_tools", BarRow::ToolBar, Qt::LeftToolBarArea,     "spr",   "sprites",    own(QT_TRANSLATE_NOOP("App::Bars", "Painting tools"))},
        {"sound",        BarRow::ToolBar, Qt::TopToolBarArea,      "snd",   "sounds",     shared(SoundsText)},
        {"nodes",        BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Nodes"))},
        {"organizer",    BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      shared(OrganizerText), "show_organizer"},
        {"thumbnails",   BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      shared(ThumbnailsText)},
        {"palette",      BarRow::Panel,   Qt::RightDockWidgetArea, "pal",   "sprites",    shared(PalettesText)},
        {"layers",       BarRow::Panel,   Qt::RightDockWidgetArea, "spr",   "sprites",    shared(LayersText)},
    };
    // clang-format on
    return table;
}

PlaceRow placeOf(const QString& name)
{
    static const PlaceRow table[] = {
        {"editor_", "editors", "view", "all"},
        {"view_", "stage", "view", "all"},
        {"code_", "code", "code", "code"},
        {"code_tree", "nodes", "view", "code"},
        {"org_", "organizer", "anim", "all"},
        {"thumb_", "thumbnails", "anim", "anim"},
        {"anim_", "animation", "anim", "animations"},
        {"anim_frame_", "frame", "anim", "animations"},
        {"anim_frameall_", "frame", "anim", "animations"},
        {"anim_pos_", "frame", "anim", "animations"},
        {"anim_box_", "boxes", "anim", "animations"},
        {"anim_onion_", "onion", "anim", "animations"},
        {"pal_", "palette", "pal", "sprites"},
        {"spr_", "sprites", "spr", "sprites"},
        {"spr_tool_", "sprite_tools", "spr", "sprites"},
        {"spr_layer_", "layers", "spr", "sprites"},
        {"spr_layers_", "layers", "spr", "sprites"},
        {"snd_", "sound", "snd", "sounds"},
    };
    PlaceRow best{"", nullptr, "edit", "all"};
    for (const PlaceRow& row : table) {
        if (name.startsWith(QLatin1String(row.prefix)) &&
            std::strlen(row.prefix) > std::strlen(best.prefix)) {
            best = row;
        }
    }
    return best;
}

QString prefixOf(const QString& name)
{
    return name.section(QLatin1Char('_'), 0, 0);
}

const char* firstKeyOf(const QString& name)
{
    for (const KeyRow& row : firstKeys) {
        if (name == QLatin1String(row.name)) {
            return row.key;
        }
    }
    return nullptr;
}

const QVector<const char*>& mainBarTable()
{
    static const QVector<const char*> table{
        "open_folder", "save", "save_all", nullptr, "undo", "redo", nullptr, "run", "stop_engine"};
    return table;
}

}  // namespace App
