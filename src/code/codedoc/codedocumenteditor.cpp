#include "code/codedoc/codedocumenteditor.h"

#include "code/codedoc/codedocument.h"
#include "core/project.h"

namespace Zorv {

CodeDocumentEditor::CodeDocumentEditor(CodeDocument* document) : m_document(document) {}

Project* CodeDocumentEditor::project() const
{
    return m_document->project();
}

Messages* CodeDocumentEditor::messages() const
{
    return m_document->messages();
}

int CodeDocumentEditor::checkErrors()
{
    return m_document->checkErrors();
}

int CodeDocumentEditor::capabilities() const
{
    const Project* project = m_document->project();
    const bool isMain =
        project && project->file(FileID::MainCode) == static_cast<const ProjectFile*>(m_document);
    return m_document->capabilities() | (isMain ? 1 : 0);
}

bool CodeDocumentEditor::canSave() const
{
    return !(capabilities() & 1) && m_document->canSave();
}

bool CodeDocumentEditor::isModified() const
{
    return m_document->isModified();
}

bool CodeDocumentEditor::isEmpty() const
{
    return m_document->isEmpty();
}

void CodeDocumentEditor::reset()
{
    m_document->reset();
}

bool CodeDocumentEditor::toFile(Archive& archive, const QString& fileName, bool asCopy)
{
    const bool done = m_document->toFile(archive, fileName, asCopy);
    setErrorString(m_document->errorString());
    return done;
}

bool CodeDocumentEditor::fromFile(Archive& archive, const QString& fileName, bool asCopy)
{
    const bool done = m_document->fromFile(archive, fileName, asCopy);
    setErrorString(m_document->errorString());
    return done;
}

QString CodeDocumentEditor::fileName() const
{
    return m_document->fileName();
}

void CodeDocumentEditor::undo()
{
    m_document->undo();
}

void CodeDocumentEditor::redo()
{
    m_document->redo();
}

void CodeDocumentEditor::insertChild(CodeNode*, unsigned) {}

void CodeDocumentEditor::removeChild(CodeNode*) {}

void CodeDocumentEditor::childChanged(CodeNode*) {}

}  // namespace Zorv
