#pragma once

#include <QImage>
#include <QObject>
#include <QPointer>
#include <QSize>
#include <QTransform>

#include <vector>

namespace Family {
class FrameNode;
}

namespace Zorv {
class AnimationEditor;
class FrameCode;
class SpriteEditor;
class Sprites;
}  // namespace Zorv

namespace App {

/// The frames before and after the one that shows the sprite on the canvas, shining through it.
///
/// They stand as they do in the animation: axis on axis, with the offsets, flips, scales and angles
/// of both frames. The frame is the one on the stage if that shows the sprite, else the first of
/// the animation that does.
class FrameShine : public QObject
{
    Q_OBJECT

public:
    /// Both editors outlive it.
    FrameShine(Zorv::SpriteEditor* sprites, const Zorv::AnimationEditor* animations,
               QObject* parent);

    bool isOn() const { return m_isOn; }
    void setOn(bool isOn);

    /// Reads the frames again.
    void update();

private:
    /// A frame beside that of the canvas. It is turned and scaled once, and then only moved, as
    /// while the axis is dragged.
    struct Neighbour
    {
        QImage image;
        QTransform toGame;  ///< from its pixels
        QImage shown;       ///< as the canvas shows it; null until it is seen
    };

    void followSprite();
    int frameOfCanvas() const;
    void add(const Zorv::FrameCode* frame);
    void place();

    Zorv::SpriteEditor* m_sprites;
    const Zorv::AnimationEditor* m_animations;
    QPointer<Zorv::Sprites> m_followed;
    std::vector<Neighbour> m_neighbours;
    QTransform m_own;  ///< from the axis of the canvas to the game
    bool m_isOn = false;
    bool m_isShown = false;
};

}  // namespace App
