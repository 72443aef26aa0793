#include "app/windowinterface.h"

#include "app/gamesession.h"
#include "app/mainwindow.h"
#include "app/progressdialog.h"
#include "app/statusfields.h"
#include "family/project/familyproject.h"

#include <QAction>
#include <QMenu>

namespace App {

namespace {

constexpr double ReferenceResolution = 96;

// "anim_frame_add" becomes "Anim frame add".
QString readableName(const QString& name)
{
    QString text = name;
    text.replace(QLatin1Char('_'), QLatin1Char(' '));
    return text.left(1).toUpper() + text.mid(1);
}

}  // namespace

void WindowInterface::setWindow(MainWindow* window)
{
    m_window = window;
}

QWidget* WindowInterface::mainWindow() const
{
    return m_window;
}

Zorv::ProgressReporter* WindowInterface::progress(const QString& title, int)
{
    return new ProgressDialog(m_window, title);
}

unsigned WindowInterface::projectCount() const
{
    return m_window ? unsigned(m_window->session()->projects().size()) : 0;
}

Zorv::Project* WindowInterface::projectAt(unsigned index) const
{
    return m_window ? m_window->session()->projects().value(int(index)) : nullptr;
}

Zorv::Project* WindowInterface::currentProject() const
{
    return m_window ? m_window->currentProject() : nullptr;
}

int WindowInterface::pixels(int size) const
{
    return m_window ? qRound(size * m_window->logicalDpiX() / ReferenceResolution)
                    : HostInterface::pixels(size);
}

void WindowInterface::showStatus(int field, const QString& text)
{
    if (m_window) {
        m_window->status()->showField(field, text);
    }
}

QMenu* WindowInterface::menu(const char* name) const
{
    return m_window ? m_window->menuByName(name) : nullptr;
}

QAction* WindowInterface::createAction(const char* const*, const QString& name, Zorv::Translator*,
                                       unsigned, const char* shortcut, QObject* receiver,
                                       const char* slot, const char* enableSignal,
                                       const char* checkSignal)
{
    if (!m_window) {
        return nullptr;
    }
    auto* action = new QAction(readableName(name), m_window);
    action->setObjectName(name);
    const QVariant chosen = option(QLatin1String("shortcut_") + name);
    action->setShortcut(
        QKeySequence(chosen.isValid() ? chosen.toString() : QString::fromLatin1(shortcut),
                     QKeySequence::PortableText));
    m_window->addAction(action);
    if (receiver && slot) {
        QObject::connect(action, SIGNAL(triggered(bool)), receiver, slot);
    }
    const QObject* source = receiver;
    if (source && enableSignal) {
        QObject::connect(source, enableSignal, action, SLOT(setEnabled(bool)));
    }
    if (source && checkSignal) {
        action->setCheckable(true);
        QObject::connect(source, checkSignal, action, SLOT(setChecked(bool)));
    }
    return action;
}

void WindowInterface::setMenuEnabled(const char* name, const char*, bool enabled)
{
    if (QMenu* found = menu(name)) {
        found->menuAction()->setVisible(enabled);
    }
}

void WindowInterface::refreshProjects()
{
    if (m_window) {
        for (Family::FamilyProject* project : m_window->session()->projects()) {
            project->reload();
        }
    }
}

}  // namespace App
