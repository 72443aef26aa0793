#pragma once

#include "app/window/part.h"

#include <QObject>

namespace Family {
class SpriteCollection;
}

namespace Zorv {
class PaletteEditor;
class AnimationEditor;
class PalettePreviews;
class SpriteEditor;
}  // namespace Zorv

namespace App {

class Costumes;
class FrameShine;
class PaintOptions;
class PanSwitch;
struct WindowServices;

/// The sprite editor in the window: the canvas in the middle, and commands that only the window can
/// provide. The tools come from the library.
class PaintCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Creates the editor as a child of the window. The animation editor must exist. Does not own
    /// the palette panel.
    PaintCommands(const WindowServices& services, Zorv::PaletteEditor* palettes);
    ~PaintCommands() override;

    Zorv::SpriteEditor* editor() const { return m_editor; }

    /// The panel of `Costumes`.
    Zorv::PalettePreviews* costumes() const;

    /// Opens a sprite on the canvas and brings the canvas to the front. Asks first if the canvas
    /// has changes.
    void showSprite(Family::SpriteCollection* sprites, int row);

    /// The same for the sprites of the current project, with the sprite shown last.
    void comeForward();

    /// How the canvas runs the window's commands.
    CommandRows commands() const;

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void updateState() override;
    void reconfig() override;
    QVector<PanelPlace> places() override;

private:
    void swapColours();
    void stepColour(int step);
    void nextColour() { stepColour(1); }
    void previousColour() { stepColour(-1); }
    void larger();
    void smaller();
    void pan();
    void followFrame();
    void centerSymmetry();
    void toIndexed();
    void toTrueColour();
    bool isIndexed() const;
    bool isTrueColour() const;
    void save();
    bool canSave() const;

    const WindowServices& m_services;
    Zorv::SpriteEditor* m_editor;
    Zorv::AnimationEditor* m_animations;
    FrameShine* m_shine;
    PaintOptions* m_options;
    Costumes* m_costumes;
    PanSwitch* m_pan = nullptr;
    bool m_isInFront = false;
};

}  // namespace App
