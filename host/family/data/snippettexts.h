#pragma once

#include <QtGlobal>

namespace Family {

/// A text in a shipped snippet, as translation files know it.
struct SnippetText
{
    const char* text;
    const char* comment;  ///< the field of the snippet; "snippet" for its name
};

/// All texts. They are repeated here because no tool extracts translations from snippet files.
constexpr SnippetText snippetTexts[] = {
    QT_TRANSLATE_NOOP3("Snippets", "Attack animation", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Attack", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Character head", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Command", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Comment header", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Group of commands", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Music", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Palette", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Special move", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Stage head", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Stage layer", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Standing animation", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Throw", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Walk cycle", "snippet"),
    QT_TRANSLATE_NOOP3("Snippets", "Number or name", "identifier"),
    QT_TRANSLATE_NOOP3("Snippets", "Display name", "title"),
    QT_TRANSLATE_NOOP3("Snippets", "Group of its sprites", "group"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks before the hit", "startup"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks of the hit", "active"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks after the hit", "recovery"),
    QT_TRANSLATE_NOOP3("Snippets", "Name", "name"),
    QT_TRANSLATE_NOOP3("Snippets", "Command", "command"),
    QT_TRANSLATE_NOOP3("Snippets", "Animation", "shown"),
    QT_TRANSLATE_NOOP3("Snippets", "Priority", "priority"),
    QT_TRANSLATE_NOOP3("Snippets", "Damage", "damage"),
    QT_TRANSLATE_NOOP3("Snippets", "Damage when guarded", "guarded"),
    QT_TRANSLATE_NOOP3("Snippets", "Guarded", "level"),
    QT_TRANSLATE_NOOP3("Snippets", "High", "level"),
    QT_TRANSLATE_NOOP3("Snippets", "Middle", "level"),
    QT_TRANSLATE_NOOP3("Snippets", "Low", "level"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks of stun", "stun"),
    QT_TRANSLATE_NOOP3("Snippets", "Author", "author"),
    QT_TRANSLATE_NOOP3("Snippets", "Name of its files", "file"),
    QT_TRANSLATE_NOOP3("Snippets", "Life", "life"),
    QT_TRANSLATE_NOOP3("Snippets", "Power", "power"),
    QT_TRANSLATE_NOOP3("Snippets", "Motion", "motion"),
    QT_TRANSLATE_NOOP3("Snippets", "Button", "button"),
    QT_TRANSLATE_NOOP3("Snippets", "Light", "button"),
    QT_TRANSLATE_NOOP3("Snippets", "Medium", "button"),
    QT_TRANSLATE_NOOP3("Snippets", "Heavy", "button"),
    QT_TRANSLATE_NOOP3("Snippets", "Title", "title"),
    QT_TRANSLATE_NOOP3("Snippets", "What stands here", "what"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks for the whole motion", "time"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks for which a command stays true", "buffer"),
    QT_TRANSLATE_NOOP3("Snippets", "Sound file", "path"),
    QT_TRANSLATE_NOOP3("Snippets", "Volume in percent", "volume"),
    QT_TRANSLATE_NOOP3("Snippets", "Seconds to fade out", "fade"),
    QT_TRANSLATE_NOOP3("Snippets", "Palette file", "path"),
    QT_TRANSLATE_NOOP3("Snippets", "Button that selects it", "keys"),
    QT_TRANSLATE_NOOP3("Snippets", "Light", "keys"),
    QT_TRANSLATE_NOOP3("Snippets", "Medium", "keys"),
    QT_TRANSLATE_NOOP3("Snippets", "Heavy", "keys"),
    QT_TRANSLATE_NOOP3("Snippets", "Start", "keys"),
    QT_TRANSLATE_NOOP3("Snippets", "In the air", "air"),
    QT_TRANSLATE_NOOP3("Snippets", "No", "air"),
    QT_TRANSLATE_NOOP3("Snippets", "Yes", "air"),
    QT_TRANSLATE_NOOP3("Snippets", "Only", "air"),
    QT_TRANSLATE_NOOP3("Snippets", "Power that it takes", "cost"),
    QT_TRANSLATE_NOOP3("Snippets", "Speed forward", "speed"),
    QT_TRANSLATE_NOOP3("Snippets", "Half of its width", "half"),
    QT_TRANSLATE_NOOP3("Snippets", "How far the camera goes to each side", "camera"),
    QT_TRANSLATE_NOOP3("Snippets", "Group of its sprite", "group"),
    QT_TRANSLATE_NOOP3("Snippets", "Number of its sprite", "number"),
    QT_TRANSLATE_NOOP3("Snippets", "How far it follows the camera", "follow"),
    QT_TRANSLATE_NOOP3("Snippets", "Order; below 0 behind the fighters", "order"),
    QT_TRANSLATE_NOOP3("Snippets", "Repeated", "along"),
    QT_TRANSLATE_NOOP3("Snippets", "Not at all", "along"),
    QT_TRANSLATE_NOOP3("Snippets", "Across", "along"),
    QT_TRANSLATE_NOOP3("Snippets", "Down", "along"),
    QT_TRANSLATE_NOOP3("Snippets", "Both ways", "along"),
    QT_TRANSLATE_NOOP3("Snippets", "Ticks of each frame", "delay"),
};

}  // namespace Family
