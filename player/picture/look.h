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

/// Factors for red, green and blue.
using Tint = std::array<double, 3>;

constexpr Tint NoTint{1, 1, 1};

/// A colour scheme for a character.
struct Costume
{
    QString name;
    QString file;          ///< a palette file; empty for the colours of the sprites
    QVector<QRgb> shades;  ///< replace the first colours
    int brightness = 100;  ///< percent
};

/// The look of a character apart from its animations.
struct FighterLook
{
    QString sprites;  ///< a file or folder; empty if there is none
    QString sounds;
    double scaleX = 1;
    double scaleY = 1;
    Tint tint = NoTint;
    QRgb shadow = 0;  ///< 0 for the stage's colour
    QVector<QRgb> sparks;
    QVector<Costume> costumes;
};

enum class Blend { None, Add, Subtract, Multiply };

/// A layer of a stage. Positions are in pixels of the stage.
struct LayerLook
{
    int group = -1;  ///< of a sprite; -1 for an animation or nothing
    int number = 0;
    int animation = -1;  ///< index in `StageLook::animations`
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
    int countX = 0;  ///< 0 repeats without end
    int countY = 0;
    QPoint gap;
};

struct MusicLook
{
    QString file;
    int volume = 100;
    int loopFirst = -1;  ///< -1 for the whole music
    int loopLast = -1;
    double fade = 0;  ///< seconds
};

/// The look and music of a stage.
struct StageLook
{
    static constexpr QSize UsualScreen{640, 360};

    QString sprites;
    QSize screen = UsualScreen;
    QRect camera;  ///< allowed positions of the middle of the screen
    bool hasCamera = false;
    double smallestZoom = 1;
    double largestZoom = 1;
    QRgb shadow = 0xff101010;
    QVector<LayerLook> layers;  ///< farthest first
    QVector<Rules::Animation> animations;
    MusicLook music;
};

/// Reads the look keys of a text. Files outside of the game are left out.
FighterLook fighterLook(const Rules::CodeText& text);
StageLook stageLook(const Rules::CodeText& text);

}  // namespace Player
