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

/// The editor of sprites in the window: the canvas in the middle, and what the window alone can do
/// with it. Its tools are the library's.
class PaintCommands : public QObject, public Part
{
    Q_OBJECT

public:
    /// Makes the editor, as a child of the window. The editor of animations is there by then. The
    /// panel of palettes is not owned.
    PaintCommands(const WindowServices& services, Zorv::PaletteEditor* palettes);
    ~PaintCommands() override;

    Zorv::SpriteEditor* editor() const { return m_editor; }

    /// The panel of `Costumes`.
    Zorv::PalettePreviews* costumes() const;

    /// Brings a sprite onto the canvas and the canvas to the front. The person is asked first if
    /// the canvas has changes.
    void showSprite(Family::SpriteCollection* sprites, int row);

    /// The same for the sprites of the project in front, with the one that was there last.
    void comeForward();

    /// How the canvas does the commands of the window.
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
