#pragma once

#include "family/grammar/filekind.h"

#include <zorv/code/codedoc/codedocument.h>

#include <memory>

namespace Family {

class FamilyAnimations;

/// A code file of the family, parsed and coloured, with the list of its
/// animations. Works with and without a project. Ends through `release()`, or
/// by `delete` if it is in no project.
class FamilyDocument final : public Zorv::CodeDocument
{
    Q_OBJECT

public:
    explicit FamilyDocument(FileKind kind);
    ~FamilyDocument() override;

    FileKind kind() const;

    /// The list of the document's animations; the document owns it.
    FamilyAnimations* animations() const { return m_animations; }

    /// A new document with the content of a file, of the kind of its suffix.
    /// The caller owns it. Null if it cannot be read; `error` takes the reason.
    static FamilyDocument* open(const QString& fileName, QString* error);

    /// The kind as a number: 0 for a character, 1 for a stage.
    int projectKind() const override;
    int blockFolding(const QString& line) const override;

    /// Destroys the tree and then the object.
    void release() override;

private:
    FamilyAnimations* m_animations;
    bool m_releasing = false;
};

}  // namespace Family
