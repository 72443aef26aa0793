#pragma once

#include "picture/pictures.h"

namespace Rules {
struct FighterData;
struct FighterState;
struct Frame;
}  // namespace Rules

namespace Player {

class Brush;

/// One fighter as it is seen, in its costume, with its shadow and the sparks of its hits.
class FighterScene
{
public:
    /// What a hit shows.
    enum class Spark { Light, Heavy, Guarded };

    /// The data outlives the scene. `shadow` is the colour of shadows on the stage.
    FighterScene(const Rules::FighterData& data, const FighterLook& look, QRgb shadow, int costume);

    void draw(Brush* brush, const Rules::FighterState& state, int floor);
    void drawShadow(Brush* brush, const Rules::FighterState& state, int floor);

    /// A spark so many ticks old, at a place of the stage. False if nothing is left of it.
    bool drawSpark(Brush* brush, Spark spark, int age, QPoint place, int facing);

    /// The costume behind the one that is worn; behind the last comes the first.
    void wearNext() { wear(m_costume + 1); }

    /// Which costume is worn, and another one; beyond the last they begin again.
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
