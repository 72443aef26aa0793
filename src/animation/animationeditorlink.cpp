#include "animation/animationeditor_p.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"

#include <QAction>
#include <QTextBlock>

namespace Zorv {

bool AnimationEditorPrivate::isLinked() const
{
    const QAction* link = action("anim_editcode");
    return link && link->isChecked();
}

/// The workspace can show another document.
bool AnimationEditorPrivate::isTextShown() const
{
    const CodeDocument* document = editor->document();
    return document && editor->codeWorkspace()->editor()->codeDocument() == document;
}

void AnimationEditorPrivate::editCode(bool isOn)
{
    if (isOn) {
        updateCurrLine();
    }
}

/// Null outside of all animations.
AnimationCode* AnimationEditorPrivate::animationOfLine(int line) const
{
    const CodeDocument* document = editor->document();
    const QTextBlock block = document->findBlockByNumber(line);
    CodeNode* node = document->nodeInBlock(block);
    if (!node) {
        node = document->nodeBefore(block);
    }
    if (node && node->type() != CodeNode::Animation) {
        node = node->previous(CodeNode::Animation, CodeNode::Group);
    }
    return static_cast<AnimationCode*>(node);
}

/// Boxes are above their frame. -1 for the head of the animation.
int AnimationEditorPrivate::frameOfLine(const AnimationCode* animation, int line) const
{
    const CodeDocument* document = editor->document();
    const QTextBlock block = document->findBlockByNumber(line);
    const CodeNode* node = document->nodeInBlock(block);
    if (node == animation) {
        return -1;
    }
    if (!node) {
        node = document->nodeBefore(block);
    }
    if (node && (node->type() != CodeNode::Frame || node->block() != block)) {
        node = node->next(CodeNode::Frame, CodeNode::Animation | CodeNode::Group);
    }
    return node ? static_cast<const FrameCode*>(node)->index() : animation->frameCount() - 1;
}

void AnimationEditorPrivate::followLine(int line)
{
    AnimationCode* const found = animationOfLine(line);
    if (!found || !animations) {
        return;
    }
    {
        const Guard guard(&playing);
        const int frame = frameOfLine(found, line);
        if (found != currentAnimation()) {
            showAnimation(animations->indexOf(found));
        }
        if (frame >= 0 && frame != frameIndex()) {
            showFrame(frame);
        }
    }
    setTick(frameIndex());
}

bool AnimationEditorPrivate::isCursorInFrame() const
{
    const int line = editor->codeWorkspace()->editor()->textCursor().blockNumber();
    const AnimationCode* const found = animationOfLine(line);
    return found && found == currentAnimation() && frameOfLine(found, line) == frameIndex();
}

/// False if text cursor and stage are not linked now.
bool AnimationEditorPrivate::updateCurrLine()
{
    if (playing > 0 || isPlaying() || !isLinked()) {
        return false;
    }
    const AnimationCode* const shown = currentAnimation();
    if (!shown || !editor->isActive() || !isTextShown() || isCursorInFrame()) {
        return true;
    }
    const FrameCode* const frame = currentFrame();
    const QTextBlock block = frame ? frame->block() : shown->block();
    const Guard guard(&cursorMoves);
    editor->codeWorkspace()->editor()->setCurrentLine(unsigned(block.blockNumber()),
                                                      CodeEditor::NearestLine);
    return true;
}

}  // namespace Zorv
