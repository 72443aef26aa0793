#pragma once

#include "animation/dialogs/animedittxt.h"
#include "animation/followedanimation.h"

#include <QPointer>

namespace Zorv {

class Interface;

/// The window in which the code of an animation is edited, and what stands in it.
///
/// It shows the animation that the editor shows. What is typed stays with its animation, whichever
/// one the editor shows by then, until it is applied or dropped.
class AnimationCodeWindow : public QObject
{
    Q_OBJECT

public:
    explicit AnimationCodeWindow(Interface* host);
    ~AnimationCodeWindow() override;

    /// Opens the window, or brings it to the front.
    void open(AnimationCode* shown);

    /// The editor shows this animation, with this text, or none.
    void follow(AnimationCode* shown);

    bool isOpen() const;

    /// Asks about what is typed and not applied; false if it has to stay.
    bool mayDrop();
    void reconfig();

    /// The window of the host is about to close, and this one with it.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void visibilityChanged();

    /// The text has the new code.
    void applied();

private:
    bool mayReplace();
    void apply(const QString& text);
    void fill();

    Interface* m_host;
    QPointer<AnimEditTxt> m_dialog;
    FollowedAnimation m_animation;  // whose code is in the window
};

}  // namespace Zorv
