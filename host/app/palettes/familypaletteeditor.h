#pragma once

#include <zorv/editors/palette/paletteeditor.h>

namespace Family {
class SpriteCollection;
}

namespace App {

/// The library's palette editor for palettes of this engine family, which are identified by group
/// and number.
class FamilyPaletteEditor : public Zorv::PaletteEditor
{
    Q_OBJECT

public:
    using PaletteEditor::PaletteEditor;

    bool paletteIdentifier(QVariant* id) override;

    /// Asks for the first identifier; the others follow it, skipping those in use.
    void paletteIdentifiers(const QStringList& files, QList<QVariant>* ids,
                            bool* reversed) override;
    void reorderColors(const QVector<int>& rows, const Zorv::PaletteOrder& order) override;

    /// Null without palettes.
    Family::SpriteCollection* sprites() const;

    /// Makes the palette of a sprite current and selects a slot in it.
    void selectColour(int group, int number, int slot);
};

}  // namespace App
