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
/// Every operation edits the text; the rows follow from parsing. The host registers it for
/// `CodeNode::Animation`. It becomes empty when its document is destroyed. Main thread only.
class ZORV_EXPORT Animations : public OrganizableObject, public CodeDocumentEditor
{
    Q_OBJECT

public:
    explicit Animations(CodeDocument* document);
    ~Animations() override;

    /// Removes lines of animations that have no effect in the game, as one undo step, and returns
    /// their number. The derived class decides which lines these are. With `dryRun` nothing is
    /// edited. One line of plain text per change is appended to `lines`.
    virtual int optimize(bool dryRun = false, QStringList* lines = nullptr) = 0;

    /// The text of a new animation, with "%1" for the identifier.
    virtual QString animationTemplate() const = 0;

    /// @name For importing animations from another text
    /// @{
    /// True if the text is a valid name for an animation. By default every text that is not blank.
    virtual bool canName(const QString& identifier) const;

    /// Selects the lines that belong to an animation and are replaced with it, without the last
    /// line end. By default these are all its lines except empty ones at the end. A host whose
    /// comments belong to an animation overrides this. Null cursor for an index outside of the
    /// list.
    virtual QTextCursor ownLines(unsigned index) const;

    /// These lines as another text would contain them, separated by LF: with the given identifier,
    /// and with sprites replaced according to `sprites` in each frame. The text of this document
    /// does not change. Returns a null string for an index outside of the list and for an invalid
    /// identifier. The default always returns null.
    virtual QString codeFor(unsigned index, const QString& identifier,
                            const QHash<SpriteNumber, SpriteNumber>& sprites) const;
    /// @}

    QList<AnimationCode*> animations() const;
    int count() const;

    /// The animation at an index; null outside of the list.
    AnimationCode* at(unsigned index) const;

    /// The index of the animation the user looked at last; initially 0. It follows the animation
    /// when the text is edited or rows move. When that animation is removed, the index stays and
    /// may be behind the end of the list.
    int currentIndex() const;

    /// Makes a row current. An index outside of the list means none.
    void setCurrent(int index);

    /// The index of an animation; -1 if it is not in the list.
    int indexOf(const AnimationCode* animation) const;

    /// The first index, starting at `start`, whose "Identifier" equals `identifier` as text; -1 if
    /// there is none.
    int find(unsigned start, const QVariant& identifier) const;

    /// Writes a new animation in front of another one, or at the end, and returns it.
    AnimationCode* insert(unsigned index, const QString& identifier);
    AnimationCode* add(const QString& identifier);

    /// Writes a copy behind an animation. If `identifier` is not empty, the copy gets it: every
    /// occurrence of the trimmed template with the old identifier, ignoring case, is replaced by
    /// the template with the new one. This never works for templates of several lines, because the
    /// lines of the copy are separated by U+2029: the copy keeps the old identifier, and the host
    /// must change it itself. Inside a change, the nodes only appear at its end.
    void duplicate(unsigned index, const QString& identifier);

    /// Removes an animation with all its lines from the text.
    void remove(unsigned index) override;

    /// Moves an animation. Moving it to the last index writes it at the very start of the document:
    /// use two moves to reach the end.
    void move(unsigned from, unsigned to) override;

    /// Sorts by identifier: numbers by value, texts ignoring case. A number and a text are not
    /// compared and keep their order. Stable; one undo step.
    void autoOrganize() override;

    void beginChange(const QString& title) override;
    void endChange() override;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// The name of an animation; empty while the code is being changed.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    void insertChild(CodeNode* child, unsigned index) override;
    void removeChild(CodeNode* child) override;
    void childChanged(CodeNode* child) override;

private:
    std::unique_ptr<AnimationsPrivate> d;
};

}  // namespace Zorv
