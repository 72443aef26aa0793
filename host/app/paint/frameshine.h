#pragma once

#include <QObject>

namespace Family {
class FrameNode;
}

namespace Zorv {
class AnimationEditor;
class SpriteEditor;
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
    int frameOfCanvas() const;

    Zorv::SpriteEditor* m_sprites;
    const Zorv::AnimationEditor* m_animations;
    bool m_isOn = false;
    bool m_isShown = false;
};

}  // namespace App
