#include "app/main/windowinterface.h"

#include "app/code/codetexteditor.h"
#include "app/controls/controlplacer.h"
#include "app/dialogs/progressdialog.h"
#include "app/game/gamecommands.h"
#include "app/look/theme.h"
#include "app/main/mainwindow.h"
#include "app/session/gamesession.h"
#include "app/window/editorregistry.h"
#include "app/window/statusfields.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/core/dialogs/dialogs.h>

#include <QCoreApplication>
#include <QFileInfo>

namespace App {

namespace {

constexpr double ReferenceResolution = 96;

}  // namespace

void WindowInterface::setWindow(MainWindow* window)
{
    m_window = window;
    if (window) {
        window->publishTools();
    }
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

void WindowInterface::selectPaletteFiles(QStringList& files, QStringList& names, bool* flag)
{
    const Zorv::Project* project = currentProject();
    const QString near = files.value(0, project ? project->fileName() : QString());
    files = Zorv::Dialogs::instance()->openFileNames(
        m_window, QCoreApplication::translate("App::WindowInterface", "Choose palettes"),
        QFileInfo(near).absolutePath(),
        QCoreApplication::translate("App::WindowInterface", "Palettes") +
            QLatin1String(" (*.act *.pal)"));
    names.clear();
    for (const QString& file : qAsConst(files)) {
        names.append(QFileInfo(file).completeBaseName());
    }
    if (flag) {
        *flag = false;
    }
}

QVariant WindowInterface::option(const QString& key) const
{
    const QVariant stored = storedOption(key);
    const QVariant colour = Theme::codeSetting(key, stored.value<QColor>());
    return colour.isValid() ? colour : stored;
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

QAction* WindowInterface::createAction(const char* const* areas, const QString& name,
                                       Zorv::Translator* translator, unsigned textId,
                                       const char* shortcut, QObject* receiver, const char* slot,
                                       const char* enableSignal, const char* checkSignal)
{
    return m_window
               ? m_window->controls()->createAction({areas, name, translator, textId, shortcut,
                                                     receiver, slot, enableSignal, checkSignal})
               : nullptr;
}

QAction* WindowInterface::createEditorAction(const QString& name, Zorv::Translator* translator,
                                             unsigned textId)
{
    return m_window ? m_window->controls()->createEditorAction(name, translator, textId) : nullptr;
}

QObject* WindowInterface::addControl(const QString& name, const Zorv::Control& control)
{
    return m_window ? m_window->controls()->addControl(name, control) : nullptr;
}

void WindowInterface::setMenuEnabled(const char* menu, const char* group, bool enabled)
{
    if (m_window) {
        m_window->controls()->setMenuEnabled(menu, group, enabled);
    }
}

Zorv::ExtraEditor* WindowInterface::extraEditor(unsigned index) const
{
    return m_window ? m_window->editors()->panel(int(index)) : nullptr;
}

Zorv::Editor* WindowInterface::currentEditor() const
{
    return m_window ? m_window->editors()->current() : nullptr;
}

Zorv::Editor* WindowInterface::editorByName(const char* name) const
{
    return m_window ? m_window->editors()->byName(QLatin1String(name)) : nullptr;
}

Zorv::Editor* WindowInterface::fileEditor(Zorv::ProjectFile* file, Zorv::FileID id) const
{
    if (!m_window || !file) {
        return nullptr;
    }
    auto* document = dynamic_cast<Family::FamilyDocument*>(file);
    if (!document) {
        return m_window->editors()->forFile(id);
    }
    m_window->showDocument(document);
    return m_window->editors()->current();
}

void WindowInterface::activateEditor(Zorv::Editor* editor)
{
    if (m_window) {
        m_window->editors()->activate(editor);
    }
}

void WindowInterface::showWorkspace(Zorv::Workspace* workspace)
{
    if (m_window) {
        m_window->editors()->showWorkspace(workspace);
    }
}

void WindowInterface::showExtraEditor(Zorv::ExtraEditor* editor)
{
    if (m_window) {
        m_window->editors()->showPanel(editor);
    }
}

void WindowInterface::refreshProjects()
{
    if (m_window) {
        m_window->gameCommands()->refresh();
    }
}

}  // namespace App
