#pragma once

#include "core/projectfile.h"
#include "zorv_export.h"

#include <QPointer>

namespace Zorv {

class CodeDocument;
class CodeNode;

/// A file of a project that is a view of one part of a code document.
///
/// Name, messages, modified state and history are those of the document.
/// Registered with `CodeDocument::registerDocumentEditor()`, it is notified
/// about the nodes of its kind.
///
/// It is released exactly once: by its project, if it is registered there as a
/// file and the project is released or removes it; otherwise by its document
/// when that is destroyed. The destructor unregisters it from both. An editor
/// that outlives its document is an empty file that cannot be read or written.
class ZORV_EXPORT CodeDocumentEditor : public ProjectFile
{
public:
    /// The document is not owned.
    explicit CodeDocumentEditor(CodeDocument* document);
    ~CodeDocumentEditor() override;

    /// Null after the document has been destroyed.
    CodeDocument* document() const;

    Project* project() const override;
    Messages* messages() const override;
    int checkErrors() override;

    /// The document's capabilities, with bit 0 set if it is the main document
    /// of the project.
    int capabilities() const override;

    /// False if bit 0 of `capabilities()` is set, because the list is then
    /// saved with its document.
    bool canSave() const override;
    bool isModified() const override;
    bool isEmpty() const override;
    void reset() override;
    bool toFile(Archive& archive, const QString& fileName, bool asCopy) override;
    bool fromFile(Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override;
    void undo() override;
    void redo() override;

    /// A node of the registered kind was added, removed or changed. `index` is
    /// its index among the nodes of its kind. Called during parsing: do not
    /// edit the text here.
    virtual void insertChild(CodeNode* child, unsigned index);
    virtual void removeChild(CodeNode* child);
    virtual void childChanged(CodeNode* child);

private:
    QPointer<CodeDocument> m_document;
};

}  // namespace Zorv
