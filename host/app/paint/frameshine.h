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

/// Onion skin for the canvas: the frames before and after the one that shows the sprite shine
/// through.
///
/// They are placed as in the animation: axis on axis, with the offsets, flips, scales and angles of
/// both frames. The reference frame is the one on the stage if it shows the sprite, else the first
/// frame of the animation that does.
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
    /// A neighbouring frame. It is rotated and scaled once, then only moved, because dragging the
    /// axis moves it with every mouse event.
    struct Neighbour
    {
        QImage image;
        QTransform toGame;  ///< from its pixels
        QImage shown;       ///< transformed for the canvas; null until it is visible
    };

    void followSprite();
    int frameOfCanvas() const;
    void add(const Zorv::FrameCode* frame);
    void place();

    Zorv::SpriteEditor* m_sprites;
    const Zorv::AnimationEditor* m_animations;
    QPointer<Zorv::Sprites> m_followed;
    std::vector<Neighbour> m_neighbours;
    QTransform m_own;  ///< from canvas axis to game coordinates
    bool m_isOn = false;
    bool m_isShown = false;
};

}  // namespace App
