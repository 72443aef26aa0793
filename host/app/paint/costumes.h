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

/// The panel that shows the canvas picture in the palettes of its file.
///
/// It shows the first palettes of the file, as many as fit. If the sprite's own palette is not
/// among them, it gets the last place. A click makes a palette current, and the canvas is shown in
/// it; the sprite keeps its own. Colours dropped on a palette go into the same slots of it.
class Costumes : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives it. The panel is destroyed with the window or with this object.
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
    QVector<Zorv::Palette*> m_palettes;  // in panel order; `isShown()` before use
};

}  // namespace App
