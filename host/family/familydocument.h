#pragma once

#include "family/grammar/filekind.h"

#include <zorv/code/codedoc/codedocument.h>

#include <memory>

namespace Family {

class FamilyAnimations;
class FamilyDocument;

/// While an instance exists, comments directly above the heads of animations and groups belong to
/// them (unless the setting "code_comments_travel" is off): operations on an animation include its
/// own comments and leave those of the next one.
class CommentTravel
{
public:
    /// Does nothing for null.
    explicit CommentTravel(FamilyDocument* document);
    ~CommentTravel();

private:
    Q_DISABLE_COPY(CommentTravel)
    FamilyDocument* m_document;  ///< null if the setting is off
};

/// A code file of the family, parsed and coloured, with the list of its animations. Works with and
/// without a project. Destroy it by `release()`, or by `delete` if it is in no project.
class FamilyDocument final : public Zorv::CodeDocument
{
    Q_OBJECT

public:
    explicit FamilyDocument(FileKind kind);
    ~FamilyDocument() override;

    FileKind kind() const;

    /// The list of the document's animations; the document owns it.
    FamilyAnimations* animations() const { return m_animations; }

    /// A new document with the content of a file; the suffix decides the kind. The caller owns it.
    /// Null if the file cannot be read, with the reason in `error`.
    static FamilyDocument* open(const QString& fileName, QString* error);

    /// True while a `CommentTravel` exists.
    bool doCommentsTravel() const { return m_commentTravels > 0; }

    /// The kind as a number: 0 for a character, 1 for a stage.
    int projectKind() const override;
    int blockFolding(const QString& line) const override;

    /// Destroys the tree, then the object.
    void release() override;

    using CodeDocument::toFile;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;

signals:
    /// The content was just read from or written to its file. When reading, the file name is set
    /// only after this.
    void synchronized();

private:
    friend class CommentTravel;

    FamilyAnimations* m_animations;
    int m_commentTravels = 0;
    bool m_releasing = false;
};

}  // namespace Family
