#pragma once

#include "code/codedoc/codedocumenteditor.h"
#include "core/organizableobject.h"

#include <QHash>
#include <QList>

#include <memory>

class QTextCursor;

namespace Zorv {

class AnimationCode;
class AnimationsPrivate;
struct SpriteNumber;

/// All animations of a document as a list that can be rearranged.
///
/// Every operation is an edit of the text; the rows follow by parsing. The host
/// registers it for `CodeNode::Animation`. It is empty when its document dies.
/// Main thread only.
class ZORV_EXPORT Animations : public OrganizableObject, public CodeDocumentEditor
{
    Q_OBJECT

public:
    explicit Animations(CodeDocument* document);
    ~Animations() override;

    /// Removes the lines of animations that change nothing in the game, as one step of undo,
    /// and gives their number. What those are is for the grammar to say. With `dryRun` nothing is
    /// edited. `lines` takes what is done, a line of plain text each, at its end.
    virtual int optimize(bool dryRun = false, QStringList* lines = nullptr) = 0;

    /// The text of a new animation, with "%1" where the identifier goes.
    virtual QString animationTemplate() const = 0;

    /// @name What an import takes from one text to another
    /// @{
    /// True for a text that can name an animation. As it stands here any that is not blank.
    virtual bool canName(const QString& identifier) const;

    /// The lines that an animation takes along, also the place of what replaces it, without the
    /// last line end. As it stands here all its lines but empty ones at the end; in a grammar
    /// whose comments belong to an animation the host says which do. A null cursor outside of the
    /// list.
    virtual QTextCursor ownLines(unsigned index) const;

    /// Those lines as another text would have them, with a line feed between two: under
    /// `identifier`, and with another sprite in each frame whose own is a key of `sprites`. The
    /// text of this document stays. Null if there is none: outside of the list, and for an
    /// identifier that cannot name an animation. As it stands here there never is.
    virtual QString codeFor(unsigned index, const QString& identifier,
                            const QHash<SpriteNumber, SpriteNumber>& sprites) const;
    /// @}

    QList<AnimationCode*> animations() const;
    int count() const;

    /// The animation at a place, null outside of the list.
    AnimationCode* at(unsigned index) const;

    /// The place of the animation that a person looked at last; 0 at first. It goes with the
    /// animation when the text is edited and rows are moved. When that is removed the place
    /// stays, and may be behind the last one.
    int currentIndex() const;

    /// Makes a place current; one outside of the list means that none is.
    void setCurrent(int index);

    /// -1 for a stranger.
    int indexOf(const AnimationCode* animation) const;

    /// The first place from `start` on whose "Identifier" equals `identifier`
    /// as text; -1 if there is none.
    int find(unsigned start, const QVariant& identifier) const;

    /// Writes a new animation in front of another, or at the end; gives it.
    AnimationCode* insert(unsigned index, const QString& identifier);
    AnimationCode* add(const QString& identifier);

    /// Writes a copy behind an animation, with another identifier unless that
    /// is empty: wherever the trimmed template, filled with the old identifier,
    /// stands in the copy, without regard to case, it is filled with the new one.
    /// A template of several lines never does, for the lines of the copy are
    /// divided by U+2029: the copy then keeps the old identifier, and a host that
    /// wants another writes it itself. Inside a change the nodes come when it ends.
    void duplicate(unsigned index, const QString& identifier);

    /// Takes an animation with all its lines out of the text.
    void remove(unsigned index) override;

    /// Moves an animation. Moved to the last place it is written at the very
    /// start of the document: use two moves to reach the end.
    void move(unsigned from, unsigned to) override;

    /// Sorts by identifier: numbers by value, texts without regard to case, a
    /// number and a text stay as they stand. Stable, one step of undo.
    void autoOrganize() override;

    void beginChange(const QString& title) override;
    void endChange() override;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The name of an animation; nothing while the code is being changed.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;
    void childChanged(CodeNode* child) override;

private:
    std::unique_ptr<AnimationsPrivate> d;
};

}  // namespace Zorv
