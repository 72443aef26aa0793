#pragma once

#include <QObject>
#include <QVector>

class QDropEvent;

namespace Operations {
struct PaletteEntries;
}

namespace Zorv {
class Palette;
class PalettePreviews;
class SpriteEditor;
}  // namespace Zorv

namespace App {

/// The panel with the picture of the canvas in the palettes of its file.
///
/// These are the first ones of the file, as many as the panel takes. If the sprite's own is not
/// among them it has the last place. A click makes a palette the current one, in which the canvas
/// is shown; the sprite keeps its own. Colours that are dropped on one go into their slots of it.
class Costumes : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it. The panel goes with the window, or with this.
    Costumes(Zorv::SpriteEditor* editor, QObject* parent);
    ~Costumes() override;

    Zorv::PalettePreviews* panel() const { return m_panel; }

    /// Reads the palettes again.
    void update();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void choose(int index);
    bool isShown(int index) const;
    bool takeDrag(QDropEvent* event);
    void takeColours(const Zorv::Palette& palette, const Operations::PaletteEntries& entries);

    Zorv::SpriteEditor* m_editor;
    Zorv::PalettePreviews* m_panel;
    QVector<Zorv::Palette*> m_palettes;  // in the order of the panel; compared only
};

}  // namespace App
