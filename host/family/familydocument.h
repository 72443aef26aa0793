#pragma once

#include "family/grammar/filekind.h"

#include <zorv/code/codedoc/codedocument.h>

#include <memory>

namespace Family {

class FamilyAnimations;
class FamilyDocument;

/// As long as one lives, the comments directly above the heads of animations and groups belong to
/// them, unless the setting "code_comments_travel" is off: what is done with an animation takes
/// its own comments along and leaves those of the next one.
class CommentTravel
{
public:
    /// Nothing for null.
    explicit CommentTravel(FamilyDocument* document);
    ~CommentTravel();

private:
    Q_DISABLE_COPY(CommentTravel)
    FamilyDocument* m_document;  ///< null if the setting is off
};

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

    /// True inside of a `CommentTravel`.
    bool doCommentsTravel() const { return m_commentTravels > 0; }

    /// The kind as a number: 0 for a character, 1 for a stage.
    int projectKind() const override;
    int blockFolding(const QString& line) const override;

    /// Destroys the tree and then the object.
    void release() override;

    using CodeDocument::toFile;
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;

signals:
    /// What is here has just been read from its file, or written to it. The name of a file that is
    /// read comes behind this.
    void synchronized();

private:
    friend class CommentTravel;

    FamilyAnimations* m_animations;
    int m_commentTravels = 0;
    bool m_releasing = false;
};

}  // namespace Family
