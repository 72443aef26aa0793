#include "family/familyanimations.h"

#include "family/familydocument.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/headcomments.h"
#include "family/redundantlines.h"
#include "family/takencode.h"

#include <QTextBlock>
#include <QTextCursor>

namespace Family {

namespace {

/// Groups edits into one undo step while it exists; comments travel in it.
class Change
{
public:
    Change(Zorv::Animations* list, const QString& title)
        : m_list(list), m_travel(static_cast<FamilyDocument*>(list->document()))
    {
        m_list->beginChange(title);
    }
    ~Change() { m_list->endChange(); }

private:
    Q_DISABLE_COPY(Change)
    Zorv::Animations* m_list;
    CommentTravel m_travel;
};

/// The text of an animation with a new identifier in its head line.
QString renamed(const AnimationNode* animation, const QString& identifier)
{
    const QTextCursor all = animation->selectAll();
    const QTextBlock head = animation->block();
    return all.selectedText().replace(head.position() - all.selectionStart(), head.length() - 1,
                                      headLineFor(animation, identifier));
}

}  // namespace

FamilyAnimations::FamilyAnimations(FamilyDocument* document) : Animations(document)
{
    document->registerDocumentEditor(this, Zorv::CodeNode::Animation, 0);
}

AnimationNode* FamilyAnimations::animation(int index) const
{
    return index < 0 ? nullptr : static_cast<AnimationNode*>(at(unsigned(index)));
}

AnimationNode* FamilyAnimations::animationAt(int line) const
{
    const QTextBlock block = document()->findBlockByNumber(line);
    Zorv::CodeNode* node = document()->nodeInBlock(block);
    if (!node) {
        node = document()->nodeBefore(block);
    }
    if (node->type() != Zorv::CodeNode::Animation) {
        node = node->previous(Zorv::CodeNode::Animation, Zorv::CodeNode::Group);
    }
    return static_cast<AnimationNode*>(node);
}

int FamilyAnimations::indexOfIdentifier(const QString& identifier) const
{
    return find(0, identifier);
}

int FamilyAnimations::optimize(bool dryRun, QStringList* lines)
{
    return removeRedundantLines(this, dryRun, lines);
}

QString FamilyAnimations::animationTemplate() const
{
    return QStringLiteral("animation %1\nframe 0,0  delay -1\n");
}

bool FamilyAnimations::canName(const QString& identifier) const
{
    return isAnimationIdentifier(identifier);
}

QTextCursor FamilyAnimations::ownLines(unsigned index) const
{
    const CommentTravel travel(static_cast<FamilyDocument*>(document()));
    const AnimationNode* own = animation(int(index));
    return own ? ownLinesOf(own) : QTextCursor();
}

QString FamilyAnimations::codeFor(unsigned index, const QString& identifier,
                                  const SpriteMap& sprites) const
{
    const CommentTravel travel(static_cast<FamilyDocument*>(document()));
    const AnimationNode* own = animation(int(index));
    return own && canName(identifier) ? ownCodeFor(own, identifier, sprites) : QString();
}

QVariant FamilyAnimations::data(const QModelIndex& index, int role) const
{
    const QVariant value = Animations::data(index, role);
    const bool isNameless =
        role == Qt::DisplayRole && value.isValid() && value.toString().isEmpty();
    return isNameless ? animation(index.row())->block().text().trimmed() : value;
}

/// The last animation extends to the end of the text. Without a final line end the library would
/// cut off its last character, or join it with the text after it. A comment at the end must not end
/// up above another head.
void FamilyAnimations::ensureEndBehind(unsigned index)
{
    auto* text = static_cast<FamilyDocument*>(document());
    const Zorv::AnimationCode* moved = at(index);
    if (!moved || moved->lastLine() < text->blockCount()) {
        return;
    }
    const bool hasEnd = text->lastBlock().length() == 1;
    const QTextBlock last = hasEnd ? text->lastBlock().previous() : text->lastBlock();
    const bool isNextToHead = text->doCommentsTravel() && isCommentLine(last);
    if (!hasEnd || isNextToHead) {
        text->insert(QString(int(!hasEnd) + int(isNextToHead), QLatin1Char('\n')));
    }
}

bool FamilyAnimations::duplicateAnimation(int index, const QString& identifier)
{
    if (!animation(index) || !(identifier.isEmpty() || isAnimationIdentifier(identifier))) {
        return false;
    }
    const Change change(this, tr("Duplicate animation"));
    ensureEndBehind(unsigned(index));
    const AnimationNode* source = animation(index);
    const QString text = renamed(source, identifier);
    QTextCursor cursor = source->selectAll();
    cursor.setPosition(cursor.selectionEnd());
    document()->insertOnCursor(text, cursor);
    return true;
}

void FamilyAnimations::remove(unsigned index)
{
    const Change change(this, tr("Remove animation"));
    Animations::remove(index);
}

void FamilyAnimations::move(unsigned from, unsigned to)
{
    const Change change(this, tr("Move animation"));
    ensureEndBehind(from);
    Animations::move(from, to);
}

void FamilyAnimations::autoOrganize()
{
    const Change change(this, tr("Sort animations"));
    Animations::autoOrganize();
}

void FamilyAnimations::release()
{
    delete this;
}

bool moveAnimation(FamilyAnimations* list, int from, int to)
{
    const int last = list->count() - 1;
    if (from < 0 || to < 0 || from > last || to > last) {
        return false;
    }
    if (from == to) {
        return true;
    }
    const Change change(list, FamilyAnimations::tr("Move animation"));
    if (to < last) {
        list->move(unsigned(from), unsigned(to));
        return true;
    }
    // The last place is reached by moving the last animation up by one.
    if (from < last - 1) {
        list->move(unsigned(from), unsigned(last - 1));
    }
    list->move(unsigned(last), unsigned(last - 1));
    return true;
}

bool isAnimationIdentifier(const QString& text)
{
    return isWord(text);
}

}  // namespace Family
