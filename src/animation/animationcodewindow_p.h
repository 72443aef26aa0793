#pragma once

#include "animation/dialogs/animedittxt.h"
#include "animation/followedanimation.h"

#include <QPointer>

namespace Zorv {

class Interface;

/// The window that edits the code of one animation, and its content.
///
/// It shows the animation that the editor shows. Typed text stays with its animation until it is
/// applied or dropped, even if the editor shows another animation meanwhile.
class AnimationCodeWindow : public QObject
{
    Q_OBJECT

public:
    explicit AnimationCodeWindow(Interface* host);
    ~AnimationCodeWindow() override;

    /// Opens the window, or brings it to the front.
    void open(AnimationCode* shown);

    /// The editor now shows this animation or this text of it; null for none.
    void follow(AnimationCode* shown);

    bool isOpen() const;

    /// Asks about unapplied text; false if it must be kept.
    bool mayDrop();
    void reconfig();

    /// Closes this window when the host's window is about to close.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void visibilityChanged();

    /// The text contains the new code now.
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
