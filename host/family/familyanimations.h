#pragma once

#include <zorv/code/codedoc/animations.h>

namespace Family {

class AnimationNode;
class FamilyDocument;

/// The animations of a document. The operations of the library that would join
/// lines of a text without a final line end put that end first, within the same
/// step of undo. Comments directly above an animation go with it, see `CommentTravel`.
class FamilyAnimations final : public Zorv::Animations
{
    Q_OBJECT

public:
    /// Registers itself with the document, which owns it from then on.
    explicit FamilyAnimations(FamilyDocument* document);

    /// Null outside of the list.
    AnimationNode* animation(int index) const;

    /// The animation that a line of the document, counted from 0, stands in; null outside of all.
    AnimationNode* animationAt(int line) const;

    /// The place of the first animation with that identifier, -1 without one.
    int indexOfIdentifier(const QString& identifier) const;

    /// Writes a copy right behind an animation, with its comments; `identifier` replaces its own
    /// unless it is empty. One step of undo. False, and no change, for a place
    /// outside of the list or a text that is no identifier.
    bool duplicateAnimation(int index, const QString& identifier);

    /// As `removeRedundantLines()`.
    int optimize(bool dryRun = false, QStringList* lines = nullptr) override;
    QString animationTemplate() const override;
    bool canName(const QString& identifier) const override;

    /// With the comments directly above, see `CommentTravel`, and without those below its code.
    QTextCursor ownLines(unsigned index) const override;
    QString codeFor(unsigned index, const QString& identifier,
                    const QHash<Zorv::SpriteNumber, Zorv::SpriteNumber>& sprites) const override;

    /// As that of the library; the head line for an animation without any name.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    void remove(unsigned index) override;

    /// As that of the library: moved to the last place, an animation is
    /// written at the very start. `moveAnimation()` has no such corner.
    void move(unsigned from, unsigned to) override;
    void autoOrganize() override;
    void release() override;

private:
    void ensureEndBehind(unsigned index);
};

/// Moves an animation so that it stands at `to` afterwards, also at the end.
/// One step of undo. False, and no change, if an index is outside of the list.
bool moveAnimation(FamilyAnimations* list, int from, int to);

/// True for a number or word that can name an animation.
bool isAnimationIdentifier(const QString& text);

}  // namespace Family
