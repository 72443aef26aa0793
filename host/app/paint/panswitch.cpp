#include "app/paint/panswitch.h"

#include <zorv/graphics/renderwidget.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteworkspace.h>

#include <QAction>
#include <QKeyEvent>

namespace App {

using Zorv::ImageRenderer;
using Zorv::SpriteWorkspace;

PanSwitch::PanSwitch(QAction* action, ImageRenderer* renderer, SpriteWorkspace* workspace,
                     QObject* parent)
    : QObject(parent), m_action(action), m_renderer(renderer)
{
    // A repeating key would toggle it on and off.
    action->setAutoRepeat(false);
    connect(renderer, &ImageRenderer::panningChanged, action, &QAction::setChecked);
    connect(workspace, &SpriteWorkspace::renderWidgetMade, this,
            [this, workspace] { watch(workspace->renderWidget()); });
    watch(workspace->renderWidget());
}

void PanSwitch::watch(QWidget* canvas)
{
    if (canvas) {
        canvas->installEventFilter(this);
    }
}

void PanSwitch::run()
{
    m_isHeld = m_pressed != 0;
    const bool isOn = m_isHeld || m_action->isChecked();
    m_renderer->setPanning(isOn);
    m_action->setChecked(isOn);
}

void PanSwitch::release()
{
    m_pressed = 0;
    if (m_isHeld) {
        m_isHeld = false;
        m_renderer->setPanning(false);
    }
}

/// The canvas gets the key event before the shortcut triggers the action.
bool PanSwitch::eventFilter(QObject* watched, QEvent* event)
{
    const auto* key = static_cast<QKeyEvent*>(event);
    if (event->type() == QEvent::ShortcutOverride && !key->isAutoRepeat()) {
        const QKeySequence pressed(key->key() | int(key->modifiers()));
        m_pressed = m_action->shortcuts().contains(pressed) ? key->key() : m_pressed;
    } else if (event->type() == QEvent::FocusOut ||
               (event->type() == QEvent::KeyRelease && !key->isAutoRepeat() &&
                key->key() == m_pressed)) {
        release();
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace App
