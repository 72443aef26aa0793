#include "app/controls/controllayout.h"

#include <zorv/text/zorvtranslator.h>

#include <cstring>

namespace App {

namespace {

// Numbers of texts in the library's table.
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
    {"anim_add", "Ctrl+Shift+A"},
    {"anim_duplicate", "Ctrl+Shift+D"},
    {"anim_delete", "Ctrl+Shift+R"},
    {"anim_play", "F9"},
    {"anim_play_here", "Ctrl+F9"},
    {"anim_stop", "Shift+F9"},
    {"anim_prev_frame", "Alt+PgUp"},
    {"anim_next_frame", "Alt+PgDown"},
    {"anim_onion_skin", "Ctrl+Shift+O"},
    {"anim_box_add_attack", "Ctrl+1"},
    {"anim_box_add_collision", "Ctrl+2"},
    {"org_up", "Alt+Up"},
    {"org_down", "Alt+Down"},
    {"spr_prev", "Alt+PgUp"},
    {"spr_next", "Alt+PgDown"},
    {"snd_play", "F9"},
    {"snd_play_loop", "Ctrl+F9"},
    {"snd_stop", "Shift+F9"},
    {"snd_prev", "Alt+PgUp"},
    {"snd_next", "Alt+PgDown"},
    {"spr_tool_selmove", "V"},
    {"spr_tool_rectsel", "M"},
    {"spr_tool_picker", "I"},
    {"spr_tool_pen", "B"},
    {"spr_tool_eraser", "E"},
    {"spr_tool_paintbucket", "G"},
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
        {"code",         BarRow::ToolBar, Qt::TopToolBarArea,      nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Code")), nullptr, 1, nullptr, "sprites"},
        {"animation",    BarRow::ToolBar, Qt::TopToolBarArea,      "anim",  "animations", shared(AnimationsText), nullptr, 1, "animations"},
        {"stage",        BarRow::Page,    0,                       nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Stage"))},
        {"onion",        BarRow::Page,    0,                       "anim",  "animations", own(QT_TRANSLATE_NOOP("App::Bars", "Onion skin"))},
        {"sprites",      BarRow::ToolBar, Qt::TopToolBarArea,      "spr",   "sprites",    shared(SpritesText), nullptr, 1, "sprites"},
        {"sprite_tools", BarRow::ToolBar, Qt::LeftToolBarArea,     "spr",   "sprites",    own(QT_TRANSLATE_NOOP("App::Bars", "Painting tools")), nullptr, 1, "sprites"},
        {"tool",         BarRow::Panel,   Qt::LeftDockWidgetArea,  "spr",   "sprites",    own(QT_TRANSLATE_NOOP("App::Bars", "Painting tool")), nullptr, 1, "sprites", nullptr, true},
        {"sound",        BarRow::ToolBar, Qt::TopToolBarArea,      "snd",   "sounds",     shared(SoundsText), nullptr, 1, "sounds"},
        {"frame",        BarRow::Panel,   Qt::RightDockWidgetArea, "anim",  "animations", own(QT_TRANSLATE_NOOP("App::Bars", "Frame")), nullptr, 1, "animations"},
        {"nodes",        BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      own(QT_TRANSLATE_NOOP("App::Bars", "Nodes")), nullptr, 1, nullptr, "sprites"},
        {"organizer",    BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      shared(OrganizerText), "show_organizer"},
        {"thumbnails",   BarRow::Panel,   Qt::RightDockWidgetArea, nullptr, nullptr,      shared(ThumbnailsText)},
        {"palette",      BarRow::Panel,   Qt::RightDockWidgetArea, "pal",   "sprites",    shared(PalettesText), nullptr, 1, "sprites"},
        {"layers",       BarRow::Panel,   Qt::RightDockWidgetArea, "spr",   "sprites",    shared(LayersText), nullptr, 1, "sprites"},
    };
    // clang-format on
    return table;
}

PlaceRow placeOf(const QString& name)
{
    static const PlaceRow table[] = {
        {"editor_", "editors", "view", "all"},
        {"view_", "stage", "view.stage", "all"},
        {"code_", "code", "code", "code"},
        {"code_tree", "nodes", "view", "code"},
        {"org_", "organizer", "anim.order", "all"},
        {"thumb_", "thumbnails", "anim", "anim"},
        {"anim_", "animation", "anim.list", "animations"},
        {"anim_play", "stage", "anim.play", "animations"},
        {"anim_stop", "stage", "anim.play", "animations"},
        {"anim_prev_anim", "frame", "anim.play", "animations"},
        {"anim_next_anim", "frame", "anim.play", "animations"},
        {"anim_prev_frame", "stage", "anim.play", "animations"},
        {"anim_next_frame", "stage", "anim.play", "animations"},
        {"anim_sel", "frame", "anim.play", "animations"},
        {"anim_frame_", "frame", "frame.all", "animations"},
        {"anim_frameall_", "frame", "frame.all", "animations"},
        {"anim_pos_", "frame", "frame.all", "animations"},
        {"anim_facts_", "frame", "frame.all", "animations"},
        {"anim_box_", "frame", "boxes.all", "animations"},
        {"anim_box_add_", "stage", "boxes.all", "animations"},
        {"anim_box_del", "stage", "boxes.all", "animations"},
        {"anim_box_delall", "frame", "boxes.all", "animations"},
        {"anim_onion_", "onion", "anim.play", "animations"},
        {"pal_", "palette", "pal.list", "sprites"},
        {"pal_open", "palette", "pal.files", "sprites"},
        {"pal_save", "palette", "pal.files", "sprites"},
        {"pal_undo", "palette", "pal.colours", "sprites"},
        {"pal_redo", "palette", "pal.colours", "sprites"},
        {"pal_switch_color", "palette", "pal.colours", "sprites"},
        {"pal_set_color", "palette", "pal.colours", "sprites"},
        {"pal_remap", "palette", "pal.sprites", "sprites"},
        {"pal_apply_sprite", "palette", "pal.sprites", "sprites"},
        {"spr_", "sprites", "spr.image", "sprites"},
        {"spr_add", "sprites", "spr.files", "sprites"},
        {"spr_openimg", "sprites", "spr.files", "sprites"},
        {"spr_saveimg", "sprites", "spr.files", "sprites"},
        {"spr_saveimgas", "sprites", "spr.files", "sprites"},
        {"spr_import_proj", "sprites", "spr.files", "sprites"},
        {"spr_delete", "sprites", "spr.list", "sprites"},
        {"spr_duplicate", "sprites", "spr.list", "sprites"},
        {"spr_frame_spr", "sprites", "spr.follow", "sprites"},
        {"spr_switch_pal", "sprites", "spr.follow", "sprites"},
        {"spr_prev", "sprites", "spr.list", "sprites"},
        {"spr_next", "sprites", "spr.list", "sprites"},
        {"spr_select_", "sprites", "select.all", "sprites"},
        {"spr_tool_", "sprite_tools", "paint.tools", "sprites"},
        {"spr_tool_options", "tool", "spr", "sprites"},
        {"spr_foreground", "palette", "spr", "sprites"},
        {"spr_background", "palette", "spr", "sprites"},
        {"spr_layer_", "layers", "layers.all", "sprites"},
        {"spr_layers_", "layers", "layers.all", "sprites"},
        {"snd_", "sound", "snd.list", "sounds"},
        {"snd_open_sample", "sound", "snd.sample", "sounds"},
        {"snd_save_sample", "sound", "snd.sample", "sounds"},
        {"snd_resample", "sound", "snd.sample", "sounds"},
        {"snd_trim", "sound", "snd.sample", "sounds"},
        {"snd_fade_", "sound", "snd.sample", "sounds"},
        {"snd_normalize", "sound", "snd.sample", "sounds"},
        {"snd_silence", "sound", "snd.sample", "sounds"},
        {"snd_play", "sound", "snd.play", "sounds"},
        {"snd_stop", "sound", "snd.play", "sounds"},
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

const QVector<const char*>& orderOf(const QString& bar)
{
    static const QVector<const char*> none;
    static const struct
    {
        const char* bar;
        QVector<const char*> names;
    } table[] = {
        {"main",
         {"open_folder", "save", "save_all", nullptr, "undo", "redo", nullptr, "run",
          "stop_engine"}},
        {"animation",
         {"anim_add", "anim_duplicate", "anim_delete", nullptr, "anim_code", "anim_editcode",
          nullptr, "anim_optimize", "anim_import_proj", "anim_save_gif"}},
        {"sprites",
         {"spr_add",
          "spr_duplicate",
          "spr_delete",
          nullptr,
          "spr_openimg",
          "spr_saveimg",
          "spr_saveimgas",
          "spr_import_proj",
          nullptr,
          "spr_prev",
          "spr_sel",
          "spr_sel_lb",
          "spr_next",
          "spr_frame_spr",
          "spr_switch_pal",
          nullptr,
          "spr_crop",
          "spr_resize",
          "spr_image_rotate",
          "spr_image_fliph",
          "spr_image_flipv",
          "spr_split_channels",
          "spr_image_properties",
          nullptr,
          "spr_select_all",
          "spr_select_none",
          "spr_select_invert",
          nullptr,
          "spr_view_original"}},
        {"sprite_tools",
         {"spr_tool_pen",
          "spr_tool_eraser",
          "spr_tool_paintbucket",
          "spr_tool_picker",
          "spr_tool_remap_pen",
          nullptr,
          "spr_tool_rectsel",
          "spr_tool_freesel",
          "spr_tool_selmove",
          "spr_tool_canvasmove",
          nullptr,
          "paint_swap",
          nullptr,
          "paint_pixel_perfect",
          "paint_straight",
          "paint_shading",
          "paint_symmetry_x",
          "paint_symmetry_y",
          "paint_grid",
          "paint_shine"}},
        {"stage",
         {"anim_prev_frame",
          "anim_play",
          "anim_play_here",
          "anim_stop",
          "anim_next_frame",
          "anim_play_again",
          "anim_play_half",
          "anim_play_quarter",
          nullptr,
          "anim_box_add_attack",
          "anim_box_add_collision",
          "anim_box_del",
          "stage_capture",
          nullptr,
          "view_main_cross",
          "view_secondary_cross",
          "view_extra_cross",
          "view_rulers",
          "view_guide_lines",
          "view_attack_box",
          "view_collision_box",
          nullptr,
          "anim_onion_skin",
          nullptr,
          "view_center_origin"}},
    };
    for (const auto& row : table) {
        if (bar == QLatin1String(row.bar)) {
            return row.names;
        }
    }
    return none;
}

const QVector<FormRow>& formTable()
{
    static const QVector<FormRow> table{
        {"frame", {"anim_prev_anim", "anim_sel", "anim_next_anim", "anim_sel_lb"}},
        {"frame", {"anim_frame_sel", "anim_frame_sel_lb"}},
        {"frame",
         {"anim_frame_add", "anim_frame_delete", "anim_frame_reverse", "anim_frame_align",
          "anim_frameall_offset", "anim_frameall_time", "anim_frameall_flip",
          "anim_frameall_scale"}},
        {"frame", {"anim_frame_time", "anim_frame_flip"}},
        {"frame", {"anim_frame_xaxis", "anim_frame_yaxis"}},
        {"frame", {"anim_frame_xscale", "anim_frame_yscale"}},
        {"frame",
         {"anim_frame_angle", "anim_pos_left", "anim_pos_up", "anim_pos_down", "anim_pos_right"}},
        {"frame",
         {"anim_box_copy", "anim_box_paste", "anim_box_mirror", "anim_box_type", "anim_box_prev",
          "anim_box_to_frames", "anim_box_allinst", "anim_box_lock", "anim_box_delall",
          "anim_box_delall_anim"}},
        {"frame", {"anim_box_x", "anim_box_y"}},
        {"frame", {"anim_box_width", "anim_box_height"}},
        {"frame", {"anim_facts_lb"}},
        {"palette", {"pal_prev", "pal_sel", "pal_next", "pal_sel_lb"}},
        {"palette",
         {"pal_add", "pal_delete", "pal_open", "pal_save", "pal_apply_sprite", "pal_remap"}},
        {"palette",
         {"pal_undo", "pal_redo", "pal_set_color", "pal_switch_color", "pal_delete_duplicates",
          "pal_clear_unused", "pal_clear"}},
        {"palette", {"spr_foreground", "spr_background"}},
        {"palette", {"pal_view"}},
        {"layers",
         {"spr_layer_add", "spr_layer_duplicate", "spr_layer_delete", "spr_layers_menu",
          "spr_layer_mergevis"}},
        {"layers", {"spr_layers_list"}},
        {"layers", {"spr_layers_blendmode"}},
        {"layers", {"spr_layers_opacity"}},
        {"tool", {"spr_tool_options"}},
        {"onion", {"anim_onion_skin"}},
        {"onion", {"anim_onion_before", "anim_onion_after"}},
        {"onion", {"anim_onion_sel"}},
        {"onion", {"anim_onion_framesel"}},
        {"onion", {"anim_onion_lb"}},
    };
    return table;
}

}  // namespace App
