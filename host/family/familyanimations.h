#pragma once

#include <zorv/code/codedoc/animations.h>

namespace Family {

class AnimationNode;
class FamilyDocument;

/// The animations of a document. Some operations of the library would join lines if the text has no
/// final line end. Here they add that line end first, within the same undo step. Comments directly
/// above an animation belong to it, see `CommentTravel`.
class FamilyAnimations final : public Zorv::Animations
{
    Q_OBJECT

public:
    /// Registers itself with the document, which then owns it.
    explicit FamilyAnimations(FamilyDocument* document);

    /// Null if out of range.
    AnimationNode* animation(int index) const;

    /// The animation that contains a line of the document (from 0); null outside of all animations.
    AnimationNode* animationAt(int line) const;

    /// The index of the first animation with that identifier; -1 if there is none.
    int indexOfIdentifier(const QString& identifier) const;

    /// Inserts a copy directly after an animation, with its comments. The copy gets `identifier`
    /// unless that is empty. One undo step. False, without a change, for an invalid index or
    /// identifier.
    bool duplicateAnimation(int index, const QString& identifier);

    /// Calls `removeRedundantLines()`.
    int optimize(bool dryRun = false, QStringList* lines = nullptr) override;
    QString animationTemplate() const override;
    bool canName(const QString& identifier) const override;

    /// Includes the comments directly above, see `CommentTravel`, but not those below its code.
    QTextCursor ownLines(unsigned index) const override;
    QString codeFor(unsigned index, const QString& identifier,
                    const QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>& sprites) const override;

    /// As in the library, but an animation without any name shows its head line.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void remove(unsigned index) override;

    /// As in the library, including a quirk: an animation moved to the last place is written at the
    /// very start. `moveAnimation()` does not have this quirk.
    void move(unsigned from, unsigned to) override;
    void autoOrganize() override;
    void release() override;

private:
    void ensureEndBehind(unsigned index);
};

/// Moves an animation so that its new index is `to`, the last one included. One undo step. False,
/// without a change, if an index is out of range.
bool moveAnimation(FamilyAnimations* list, int from, int to);

/// True for a number or a word: a valid identifier of an animation.
bool isAnimationIdentifier(const QString& text);

}  // namespace Family
