#include "animation/animationcodewindow_p.h"

#include "animation/edits/animationtext.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"

#include <QEvent>

namespace Zorv {

namespace {

struct Place
{
    Animations* list = nullptr;
    int index = -1;
};

Place placeOf(const FollowedAnimation& animation)
{
    const AnimationCode* code = animation.animation();
    auto* list =
        code ? dynamic_cast<Animations*>(code->document()->documentEditor(CodeNode::Animation, 0))
             : nullptr;
    return {list, list ? list->indexOf(code) : -1};
}

}  // namespace

AnimationCodeWindow::AnimationCodeWindow(Interface* host) : m_host(host) {}

AnimationCodeWindow::~AnimationCodeWindow()
{
    delete m_dialog;
}

void AnimationCodeWindow::open(AnimationCode* shown)
{
    if (!m_dialog) {
        QWidget* window = m_host->mainWindow();
        m_dialog = new AnimEditTxt(m_host, window);
        if (window) {
            window->installEventFilter(this);
        }
        connect(m_dialog, &AnimEditTxt::applyRequested, this, &AnimationCodeWindow::apply);
        connect(m_dialog, &AnimEditTxt::visibilityChanged, this,
                &AnimationCodeWindow::visibilityChanged);
    }
    m_dialog->show();
    m_dialog->raise();
    m_dialog->activateWindow();
    follow(shown);
}

bool AnimationCodeWindow::isOpen() const
{
    return m_dialog && m_dialog->isVisible();
}

bool AnimationCodeWindow::mayDrop()
{
    return !isOpen() || m_dialog->mayDrop();
}

bool AnimationCodeWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close && watched == m_host->mainWindow() && !mayDrop()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void AnimationCodeWindow::reconfig()
{
    if (m_dialog) {
        m_dialog->reconfig();
    }
}

void AnimationCodeWindow::follow(AnimationCode* shown)
{
    if (m_dialog && !m_dialog->isModified()) {
        m_animation.setAnimation(isOpen() ? shown : nullptr);
        fill();
    }
}

void AnimationCodeWindow::fill()
{
    const Place place = placeOf(m_animation);
    const AnimationCode* code = m_animation.animation();
    m_dialog->setText(animationText(place.list, place.index),
                      code ? code->displayName() : QString());
}

/// Asks before overwriting an animation that has changed since it came into the window.
bool AnimationCodeWindow::mayReplace()
{
    const Place place = placeOf(m_animation);
    if (!place.list || animationText(place.list, place.index) == m_dialog->firstText()) {
        return true;
    }
    const QString text = tr("The animation has been changed elsewhere since it came into this "
                            "window. Replace it?");
    return Dialogs::instance()->question(m_dialog->windowTitle(), text, Dialogs::Yes | Dialogs::No,
                                         Dialogs::No) == Dialogs::Yes;
}

/// The text can change or disappear while the question is open, so the place is looked up again.
void AnimationCodeWindow::apply(const QString& text)
{
    if (!mayReplace()) {
        return;
    }
    const Place place = placeOf(m_animation);
    const QString title = m_dialog->windowTitle();
    Dialogs* dialogs = Dialogs::instance();
    if (!place.list) {
        dialogs->warning(title, tr("The animation is no longer in the text. Add a new one, and "
                                   "copy the code there."));
        return;
    }
    if (!replaceAnimation(place.list, place.index, text)) {
        dialogs->warning(title, tr("This is not the code of one animation. Begin with its head "
                                   "line, and leave out other animations and groups."));
        return;
    }
    fill();
    emit applied();
}

}  // namespace Zorv
