#include "image/spritetexts_p.h"

namespace Zorv {

namespace {

/// In the order of `Id`.
const TextTable::Row rows[SpriteTexts::End - SpriteTexts::First] = {
    {QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Sprite:"),
     QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "The sprite on the canvas")},
    {QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Mode:"),
     QT_TRANSLATE_NOOP("Zorv::SpriteTexts",
                       "How the layer is mixed with what is below it; only in true colour, for "
                       "indexed layers have no colours of their own")},
    {QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Opacity:"),
     QT_TRANSLATE_NOOP(
         "Zorv::SpriteTexts",
         "How much of the layer is seen, in percent; only in true colour, for indexed "
         "layers have no colours of their own")},
};

const struct
{
    const char* title;
    const char* text;
} steps[] = {
    {"axis", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Move axis")},
    {"changePalette", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change palette")},
    {"clear", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Clear")},
    {"crop", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Crop image")},
    {"cut", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Cut")},
    {"edit", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Paint")},
    {"eraser", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Erase")},
    {"fill", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Fill")},
    {"flip", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Flip image")},
    {"layerAdd", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Add layer")},
    {"layerBlend", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change mode of layer")},
    {"layerDelete", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Delete layer")},
    {"layerInsert", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Add layer")},
    {"layerName", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Rename layer")},
    {"layerOpacity", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change opacity of layer")},
    {"mergeAll", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Merge all layers")},
    {"mergeVisible", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Merge visible layers")},
    {"moveSelection", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Move selection")},
    {"paste", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Paste")},
    {"pen", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Draw")},
    {"properties", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change properties")},
    {"replace", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Replace colors")},
    {"restore", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Restore unsaved work")},
    {"resize", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Resize image")},
    {"rotate", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Rotate image")},
    {"select", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Select")},
    {"setFormat", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change format")},
    {"setSize", QT_TRANSLATE_NOOP("Zorv::SpriteTexts", "Change size of canvas")},
};

}  // namespace

SpriteTexts::SpriteTexts() : TextTable("Zorv::SpriteTexts", First, rows) {}

SpriteTexts* SpriteTexts::instance()
{
    static SpriteTexts texts;
    return &texts;
}

QString SpriteTexts::stepTitle(const QString& title)
{
    for (const auto& row : steps) {
        if (title == QLatin1String(row.title)) {
            return instance()->translated(row.text);
        }
    }
    return title;
}

}  // namespace Zorv
