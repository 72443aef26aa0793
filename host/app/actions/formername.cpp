#include "app/actions/formername.h"

#include <QString>

#include <algorithm>
#include <iterator>

namespace App {

const char* formerNameOf(const QString& action)
{
    static const struct
    {
        const char* name;
        const char* former;
    } table[] = {
        {"anim_add", "animation_add"},
        {"anim_duplicate", "animation_duplicate"},
        {"anim_delete", "animation_remove"},
        {"anim_play", "stage_play"},
        {"anim_stop", "stage_stop"},
        {"anim_prev_frame", "stage_prev_frame"},
        {"anim_next_frame", "stage_next_frame"},
        {"anim_onion_skin", "stage_onion_skin"},
        {"anim_box_add_attack", "stage_draw_attack"},
        {"anim_box_add_collision", "stage_draw_body"},
        {"anim_box_del", "stage_remove_boxes"},
        {"view_center_origin", "stage_center_origin"},
        {"view_main_cross", "stage_main_cross"},
        {"view_secondary_cross", "stage_secondary_cross"},
        {"view_extra_cross", "stage_extra_cross"},
        {"view_rulers", "stage_rulers"},
        {"view_guide_lines", "stage_guide_lines"},
        {"view_attack_box", "stage_attack_box"},
        {"view_collision_box", "stage_collision_box"},
    };
    const auto* found =
        std::find_if(std::begin(table), std::end(table),
                     [&action](const auto& row) { return action == QLatin1String(row.name); });
    return found == std::end(table) ? nullptr : found->former;
}

}  // namespace App
