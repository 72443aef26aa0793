#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace Zorv {
class ImageRenderer;
class SpriteWorkspace;
}  // namespace Zorv

namespace App {

/// The action that lets the mouse move the picture. By a key it does so until that key is released,
/// whichever key it is. From a menu it is a switch, which another tool ends, too.
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
    int m_pressed = 0;  ///< the key that is down and would trigger the action
    bool m_isHeld = false;
};

}  // namespace App
