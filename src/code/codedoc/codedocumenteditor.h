#pragma once

#include "core/projectfile.h"
#include "zorv_export.h"

#include <QPointer>

namespace Zorv {

class CodeDocument;
class CodeNode;

/// A file of a project that is a view on part of a code document.
///
/// Name, messages, state and history are those of the document. Registered with
/// `CodeDocument::registerDocumentEditor()` it hears of the nodes of its kind.
///
/// It is released once: by its project, if it is a file of one that is released
/// or gives the file up, else by its document when that dies. A dying editor
/// takes itself off both. One that outlives its document is an empty file that
/// can neither be read nor written.
class ZORV_EXPORT CodeDocumentEditor : public ProjectFile
{
public:
    /// The document is not owned.
    explicit CodeDocumentEditor(CodeDocument* document);
    ~CodeDocumentEditor() override;

    /// Null when the document has died.
    CodeDocument* document() const;

    Project* project() const override;
    Messages* messages() const override;
    int checkErrors() override;

    /// Those of the document, with bit 0 set if it is the project's main one.
    int capabilities() const override;

    /// False while bit 0 of `capabilities()` is set: the list is saved with its
    /// document.
    bool canSave() const override;
    bool isModified() const override;
    bool isEmpty() const override;
    void reset() override;
    bool toFile(Archive& archive, const QString& fileName, bool asCopy) override;
    bool fromFile(Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override;
    void undo() override;
    void redo() override;

    /// A node of the registered kind has come, gone or changed. `index` is its
    /// place among the nodes of its kind. Called in the middle of a parse: the
    /// text must not be edited here.
    virtual void insertChild(CodeNode* child, unsigned index);
    virtual void removeChild(CodeNode* child);
    virtual void childChanged(CodeNode* child);

private:
    QPointer<CodeDocument> m_document;
};

}  // namespace Zorv
