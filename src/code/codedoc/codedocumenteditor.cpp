#include "code/codedoc/codedocumenteditor.h"

#include "code/codedoc/codedocument.h"
#include "core/project.h"

namespace Zorv {

CodeDocumentEditor::CodeDocumentEditor(CodeDocument* document) : m_document(document) {}

CodeDocumentEditor::~CodeDocumentEditor()
{
    if (m_document) {
        m_document->removeDocumentEditor(this);
    }
}

CodeDocument* CodeDocumentEditor::document() const
{
    return m_document;
}

Project* CodeDocumentEditor::project() const
{
    return m_document ? m_document->project() : ProjectFile::project();
}

Messages* CodeDocumentEditor::messages() const
{
    return m_document ? m_document->messages() : ProjectFile::messages();
}

int CodeDocumentEditor::checkErrors()
{
    return m_document ? m_document->checkErrors() : 0;
}

int CodeDocumentEditor::capabilities() const
{
    if (!m_document) {
        return ProjectFile::capabilities();
    }
    const Project* project = m_document->project();
    const ProjectFile* main = project ? project->file(FileID::MainCode) : nullptr;
    const bool isMain = main && main == static_cast<const ProjectFile*>(m_document.data());
    return m_document->capabilities() | (isMain ? 1 : 0);
}

bool CodeDocumentEditor::canSave() const
{
    return m_document && !(capabilities() & 1) && m_document->canSave();
}

bool CodeDocumentEditor::isModified() const
{
    return m_document && m_document->isModified();
}

bool CodeDocumentEditor::isEmpty() const
{
    return !m_document || m_document->isEmpty();
}

void CodeDocumentEditor::reset()
{
    if (m_document) {
        m_document->reset();
    }
}

bool CodeDocumentEditor::toFile(Archive& archive, const QString& fileName, bool asCopy)
{
    const bool done = m_document && m_document->toFile(archive, fileName, asCopy);
    setErrorString(m_document ? m_document->errorString() : QString());
    return done;
}

bool CodeDocumentEditor::fromFile(Archive& archive, const QString& fileName, bool asCopy)
{
    const bool done = m_document && m_document->fromFile(archive, fileName, asCopy);
    setErrorString(m_document ? m_document->errorString() : QString());
    return done;
}

QString CodeDocumentEditor::fileName() const
{
    return m_document ? m_document->fileName() : QString();
}

void CodeDocumentEditor::undo()
{
    if (m_document) {
        m_document->undo();
    }
}

void CodeDocumentEditor::redo()
{
    if (m_document) {
        m_document->redo();
    }
}

void CodeDocumentEditor::insertChild(CodeNode*, unsigned) {}

void CodeDocumentEditor::removeChild(CodeNode*) {}

void CodeDocumentEditor::childChanged(CodeNode*) {}

}  // namespace Zorv
