#pragma once

#include "picture/pictures.h"

namespace Rules {
struct FighterData;
struct FighterState;
struct Frame;
}  // namespace Rules

namespace Player {

class Brush;

/// Draws a fighter in its costume, with its shadow and the sparks of its hits.
class FighterScene
{
public:
    /// The kind of spark that a hit shows.
    enum class Spark { Light, Heavy, Guarded };

    /// The data must outlive the scene. `shadow` is the shadow colour of the stage.
    FighterScene(const Rules::FighterData& data, const FighterLook& look, QRgb shadow, int costume);

    void draw(Brush* brush, const Rules::FighterState& state, int floor);
    void drawShadow(Brush* brush, const Rules::FighterState& state, int floor);

    /// Draws a spark that is `age` ticks old, at a point of the stage. False if it is over.
    bool drawSpark(Brush* brush, Spark spark, int age, QPoint place, int facing);

    /// Switches to the next costume; after the last one to the first.
    void wearNext() { wear(m_costume + 1); }

    /// The index of the current costume. `wear()` wraps around after the last one.
    int costume() const { return m_costume; }
    void wear(int costume);

    QStringList notes() const { return m_pictures.notes(); }

private:
    enum DyeIndex { Plain, Shadow };

    void dye();
    void drawBareSpark(Brush* brush, Spark spark, int age, QPoint place);

    const Rules::FighterData& m_data;
    FighterLook m_look;
    QRgb m_shadow;
    int m_costume;
    Pictures m_pictures;
};

/// The frame that a fighter shows; null without an animation.
const Rules::Frame* shownFrame(const Rules::FighterData& data, const Rules::FighterState& state);

}  // namespace Player
