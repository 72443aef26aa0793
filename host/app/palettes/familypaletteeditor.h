#pragma once

#include <zorv/editors/palette/paletteeditor.h>

namespace Family {
class SpriteCollection;
}

namespace App {

/// The library's editor of palettes for those of the family, which are called by group and number.
class FamilyPaletteEditor : public Zorv::PaletteEditor
{
    Q_OBJECT

public:
    using PaletteEditor::PaletteEditor;

    bool paletteIdentifier(QVariant* id) override;

    /// The first is asked for; the others follow, without those that are taken.
    void paletteIdentifiers(const QStringList& files, QList<QVariant>* ids,
                            bool* reversed) override;
    void reorderColors(const QVector<int>& rows, const Zorv::PaletteOrder& order) override;

    /// Null without palettes.
    Family::SpriteCollection* sprites() const;

    /// Makes the palette of a sprite the current one, and selects a slot of it.
    void selectColour(int group, int number, int slot);
};

}  // namespace App
