#include "editors/framework/editor.h"

#include "core/interface.h"
#include "core/projectfile.h"

namespace Zorv {

Editor::Editor(QObject* parent) : QObject(parent), m_host(Interface::instance()) {}

Editor::~Editor() = default;

bool Editor::isModified() const
{
    const ProjectFile* current = file();
    return current && current->isModified();
}

Workspace* Editor::workspace() const
{
    return nullptr;
}

void Editor::activate()
{
    m_active = true;
}

void Editor::deactivate()
{
    m_active = false;
}

void Editor::reconfig() {}

void Editor::setProject(Project*) {}

void Editor::projectAboutToClose(Project*) {}

void Editor::navigateTo(const QString&, unsigned, unsigned, unsigned) {}

void Editor::undo()
{
    if (ProjectFile* current = file()) {
        current->undo();
    }
}

void Editor::redo()
{
    if (ProjectFile* current = file()) {
        current->redo();
    }
}

bool Editor::isActive() const
{
    return m_active;
}

void Editor::contentsChanged()
{
    emit modified();
}

Interface* Editor::host() const
{
    return m_host;
}

}  // namespace Zorv
