#include "animation/animationeditor_p.h"
#include "animation/edits/frameorder.h"
#include "cache/spritenumber.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"

#include <QTextBlock>
#include <QTextCursor>

#include <numeric>

namespace Zorv {

namespace {

constexpr int NewFrameTime = 10;  // ticks

Dialogs::Button ask(const QString& text, Dialogs::Button defaultButton)
{
    return Dialogs::instance()->question(AnimationEditor::tr("Confirmation"), text,
                                         Dialogs::Yes | Dialogs::No, defaultButton);
}

/// Asks only if the user's options require it.
bool mayDelete(const Interface* host, const QString& text)
{
    return !host->option(QStringLiteral("confirm_delete")).toBool() ||
           ask(text, Dialogs::Yes) == Dialogs::Yes;
}

/// Makes sure that text appended at the end starts on a new line.
void endLastLine(CodeDocument* document)
{
    if (document->lastBlock().length() > 1) {
        document->insert(QStringLiteral("\n"));
    }
}

/// Inserts before the lines that belong to the animation at `position`. Adds an empty line after
/// the text if animations are separated by empty lines.
void insertText(const Animations* list, int position, const QString& text)
{
    CodeDocument* document = list->document();
    QString lines = text.endsWith(QLatin1Char('\n')) ? text : text + QLatin1Char('\n');
    if (!list->at(unsigned(position))) {
        endLastLine(document);
        document->insert(lines);
        return;
    }
    QTextCursor cursor = list->ownLines(unsigned(position));
    cursor.setPosition(cursor.selectionStart());
    const QTextBlock above = cursor.block().previous();
    if (above.isValid() && above.length() == 1) {
        lines += QLatin1Char('\n');
    }
    document->insertOnCursor(lines, cursor);
}

/// Repeats the question while the identifier is taken or not valid in the grammar. Returns none if
/// the list was destroyed while the dialog was open.
std::optional<QString> askIdentifier(const QPointer<Animations>& list, const QString& first)
{
    std::optional<QString> answer = first;
    QString label = AnimationEditor::tr("Identifier:");
    for (;;) {
        answer = Dialogs::instance()->askText(AnimationEditor::tr("Duplicate animation"), label,
                                              *answer);
        if (!list) {
            return {};
        }
        if (!answer || (list->canName(*answer) && list->find(0, *answer) < 0)) {
            return answer;
        }
        label = list->canName(*answer)
                    ? AnimationEditor::tr("There is an animation of this name. Identifier:")
                    : AnimationEditor::tr("This cannot name an animation. Identifier:");
    }
}

/// The code of an animation with a new identifier, or with the old one if `identifier` is empty.
/// Empty if `codeFor()` cannot make it.
QString copyOf(const Animations* list, unsigned index, const QString& identifier)
{
    return identifier.isEmpty() ? list->ownLines(index).selectedText().replace(
                                      QChar::ParagraphSeparator, QLatin1Char('\n'))
                                : list->codeFor(index, identifier, {});
}

}  // namespace

void AnimationEditorPrivate::add()
{
    addAnimation({});
}

void AnimationEditorPrivate::addAnimation(const QVector<SpriteNumber>& sprites)
{
    commitFields();
    stop();
    activatePanel();
    QString identifier;
    QString text;
    int position = animationIndex() + 1;
    if (!animations || !editor->newAnimationData(identifier, text, position) ||
        identifier.isEmpty() || !animations) {
        return;
    }
    const int count = animationCount();
    const int place = position < 0 || position > count ? count : position;
    animations->beginChange(AnimationEditor::tr("Insert animation"));
    insertText(animations, place,
               text.isEmpty() ? animations->animationTemplate().arg(identifier) : text);
    if (animationCount() == count + 1) {
        giveSprites(place, sprites, text.isEmpty());
    }
    animations->endChange();
    showAnimation(place);
    editor->animationCodeChanged(true, false);
}

void AnimationEditorPrivate::del()
{
    commitFields();
    stop();
    activatePanel();
    if (!currentAnimation() ||
        !mayDelete(host, AnimationEditor::tr("Do you really want to delete the animation?")) ||
        !editor->mayDeleteAnimation() || !currentAnimation()) {
        return;
    }
    animations->remove(unsigned(animationIndex()));
    editor->animationCodeChanged(true, false);
}

/// Without a new identifier the copy keeps the original one.
void AnimationEditorPrivate::duplicate()
{
    commitFields();
    stop();
    activatePanel();
    if (!currentAnimation()) {
        return;
    }
    const QPointer<Animations> list = animations;
    std::optional<QString> identifier = QString();
    if (ask(AnimationEditor::tr("Do you want to define a new identifier?"), Dialogs::Yes) ==
        Dialogs::Yes) {
        identifier = askIdentifier(
            list, currentAnimation()->property(QStringLiteral("Identifier")).toString());
    }
    if (!identifier || !currentAnimation() || list != animations) {
        return;
    }
    const int index = animationIndex();
    const int count = animationCount();
    const QString copy = copyOf(animations, unsigned(index), *identifier);
    animations->beginChange(AnimationEditor::tr("Duplicate animation"));
    if (copy.isEmpty()) {
        animations->duplicate(unsigned(index), *identifier);
    } else {
        insertText(animations, index + 1, copy);
    }
    animations->endChange();
    if (animationCount() > count) {
        showAnimation(index + 1);
    }
    editor->animationCodeChanged(true, false);
}

void AnimationEditorPrivate::frameAdd()
{
    commitFields();
    stop();
    activatePanel();
    if (!currentAnimation()) {
        return;
    }
    const int place = frameIndex() + 1;
    {
        const Guard guard(&updating);
        animations->beginChange(AnimationEditor::tr("Add frame"));
        FrameCode* made = currentAnimation()->insertFrame(unsigned(place));
        if (made && made->delay() != NewFrameTime) {
            made->setDelay(NewFrameTime);
        }
        animations->endChange();
    }
    showFrame(place);
    editor->animationCodeChanged(true, false);
}

void AnimationEditorPrivate::frameDel()
{
    commitFields();
    stop();
    activatePanel();
    if (!currentFrame() ||
        !mayDelete(host, AnimationEditor::tr("Do you really want to delete the frame?")) ||
        !currentFrame()) {
        return;
    }
    const int index = frameIndex();
    {
        const Guard guard(&updating);
        animations->beginChange(frameTitle(AnimationEditor::tr("Delete frame #%1")));
        currentAnimation()->removeFrame(unsigned(index));
        animations->endChange();
    }
    if (AnimationCode* shown = currentAnimation()) {
        shown->setCurrentFrame(qMax(qMin(index, frameCount() - 1), 0));
    }
    frameLine = {};
    editor->animationCodeChanged(true, false);
}

/// Keeps showing the same frame at its new index.
void AnimationEditorPrivate::frameReverse()
{
    commitFields();
    stop();
    activatePanel();
    QVector<int> frames = editor->selectedFrames();
    if (frames.size() < 2) {
        frames.resize(frameCount());
        std::iota(frames.begin(), frames.end(), 0);
    }
    const int shown = frameIndex();
    const int row = frames.indexOf(shown);
    if (reverseFrames(animations, animationIndex(), frames) >= 0) {
        refreshAt(row < 0 ? shown : frames.at(frames.size() - 1 - row));
    }
}

}  // namespace Zorv
