#pragma once

#include "rules/fighterdata.h"

#include <QColor>
#include <QRect>
#include <QStringList>

#include <array>

namespace Rules {
class CodeText;
}

namespace Player {

/// By what red, green and blue are multiplied.
using Tint = std::array<double, 3>;

constexpr Tint NoTint{1, 1, 1};

/// Colours that a character can wear.
struct Costume
{
    QString name;
    QString file;          ///< a palette file; empty for the colours of the sprites
    QVector<QRgb> shades;  ///< in place of the first ones
    int brightness = 100;  ///< percent
};

/// What is seen of a character besides its animations.
struct FighterLook
{
    QString sprites;  ///< a file or folder; empty without one
    QString sounds;
    double scaleX = 1;
    double scaleY = 1;
    Tint tint = NoTint;
    QRgb shadow = 0;  ///< 0 for that of the stage
    QVector<QRgb> sparks;
    QVector<Costume> costumes;
};

enum class Blend { None, Add, Subtract, Multiply };

/// A layer of a stage. Places are in pixels of the stage.
struct LayerLook
{
    int group = -1;  ///< of a sprite; -1 for an animation, or nothing
    int number = 0;
    int animation = -1;  ///< of `StageLook::animations`
    QPoint offset;
    double followX = 1;
    double followY = 1;
    double velocityX = 0;
    double velocityY = 0;
    Tint tint = NoTint;
    int opacity = 100;  ///< percent
    Blend blend = Blend::None;
    int order = -1;
    bool alongX = false;
    bool alongY = false;
    int countX = 0;  ///< 0 is without end
    int countY = 0;
    QPoint gap;
};

struct MusicLook
{
    QString file;
    int volume = 100;
    int loopFirst = -1;  ///< -1 for all of it
    int loopLast = -1;
    double fade = 0;  ///< seconds
};

/// What is seen and heard of a stage.
struct StageLook
{
    static constexpr QSize UsualScreen{640, 360};

    QString sprites;
    QSize screen = UsualScreen;
    QRect camera;  ///< where the middle of the screen can go
    bool hasCamera = false;
    double smallestZoom = 1;
    double largestZoom = 1;
    QRgb shadow = 0xff101010;
    QVector<LayerLook> layers;  ///< the farthest first
    QVector<Rules::Animation> animations;
    MusicLook music;
};

/// Reads what the keys of looks say. What lies outside of the game is left out.
FighterLook fighterLook(const Rules::CodeText& text);
StageLook stageLook(const Rules::CodeText& text);

}  // namespace Player
