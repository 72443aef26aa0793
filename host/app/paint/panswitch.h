#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace Zorv {
class ImageRenderer;
class SpriteWorkspace;
}  // namespace Zorv

namespace App {

/// The action that makes the mouse pan the picture. Triggered by a key, it lasts until that key is
/// released, whichever shortcut is set. Triggered from a menu, it is a switch; choosing another
/// tool also ends it.
class PanSwitch : public QObject
{
    Q_OBJECT

public:
    /// All of them outlive it.
    PanSwitch(QAction* action, Zorv::ImageRenderer* renderer, Zorv::SpriteWorkspace* workspace,
              QObject* parent);

    /// The action was triggered.
    void run();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watch(QWidget* canvas);
    void release();

    QAction* m_action;
    Zorv::ImageRenderer* m_renderer;
    int m_pressed = 0;  ///< the pressed key that would trigger the action
    bool m_isHeld = false;
};

}  // namespace App
