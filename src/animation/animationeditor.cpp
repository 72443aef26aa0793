#include "animation/animationeditor.h"

#include "animation/animationeditor_p.h"
#include "animation/framefacts.h"
#include "animation/timeline/timelinewidget.h"
#include "cache/sprites.h"
#include "code/codedoc/animationcode.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/code/codeworkspace.h"
#include "graphics/graphicwork/graphicsworkspace.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QScopedValueRollback>

namespace Zorv {

namespace {

constexpr unsigned EditorText = 45;

/// The document behind a project file, which can be the document itself or a view of it.
CodeDocument* documentOf(ProjectFile* file)
{
    auto* list = dynamic_cast<Animations*>(file);
    return list ? list->document() : dynamic_cast<CodeDocument*>(file);
}

}  // namespace

AnimationEditorPrivate::AnimationEditorPrivate(AnimationEditor* owner, GraphicsWorkspace* workspace,
                                               GraphicsRenderer* shown)
    : editor(owner), renderer(shown), stage(workspace), host(Interface::instance()),
      timeLine(workspace->timeLine()), strip(this), codeWindow(host)
{
    connect(&codeWindow, &AnimationCodeWindow::visibilityChanged, this,
            &AnimationEditorPrivate::updateEnabled);
    connect(&codeWindow, &AnimationCodeWindow::applied, this,
            [this] { editor->animationCodeChanged(true, false); });
    connect(&followed, &FollowedAnimation::changed, this, &AnimationEditorPrivate::textChanged);
    connect(&followed, &FollowedAnimation::changed, this, &AnimationEditorPrivate::showFactsSoon);
    connect(timeLine, &TimeLineWidget::tickChanged, this, &AnimationEditorPrivate::playAnimation);
    connect(editor, &AnimationEditor::shownChanged, &strip, &AnimationStrip::follow);
    connect(renderer, &GraphicsRenderer::itemMoved, this,
            [this](auto type, void* item, QPoint position) {
                if (editor->isActive()) {
                    editor->itemMoved(type, item, position);
                }
            });
    connect(renderer, &GraphicsRenderer::itemReleased, this,
            [this](auto type, void* item, QPoint position) {
                if (editor->isActive()) {
                    editor->itemReleased(type, item, position);
                }
            });
    connect(renderer, &GraphicsRenderer::cursorChanged, this, &AnimationEditorPrivate::showPlace);
    connect(renderer, &GraphicsRenderer::appendContactBox, this,
            &AnimationEditorPrivate::appendContactBox);
    connect(renderer, &GraphicsRenderer::boxSelectionChanged, this,
            &AnimationEditorPrivate::fillBox);
    connect(renderer, &GraphicsRenderer::contactDrawingExit, this,
            &AnimationEditorPrivate::leaveDrawing);
    connect(renderer, &GraphicsRenderer::inputComes, this, &AnimationEditorPrivate::inputComes);
    connect(renderer, &GraphicsRenderer::inputTaken, this, &AnimationEditorPrivate::inputTaken);
    connect(renderer, &GraphicsRenderer::aboutToGrab, this, &AnimationEditorPrivate::stop);
}

AnimationEditorPrivate::~AnimationEditorPrivate() = default;

void AnimationEditorPrivate::bind(CodeDocument* document)
{
    Animations* const list =
        document ? dynamic_cast<Animations*>(document->documentEditor(CodeNode::Animation, 0))
                 : nullptr;
    if (animations && animations != list && animations->document()) {
        animations->document()->disconnect(this);
    }
    if (list && list != animations) {
        connect(document, &CodeDocument::codeChanged, this, &AnimationEditorPrivate::textChanged);
        connect(document, &CodeDocument::closing, this, [this] { bind(nullptr); });
    }
    if (list != animations) {
        animations = list;
        followed.setAnimation(nullptr);
        frameLine = {};
        onion = {};
    }
    if (editorAction) {
        editorAction->setEnabled(list);
    }
    findAnimation();
}

void AnimationEditorPrivate::attach()
{
    bind(editor->document());
    applyRanges();
    stage->setRenderer(renderer);
    renderer->setSprites(this);
    if (timeLine) {
        timeLine->clearTimeLines();
        timeLine->addTimeLine(this);
        timeLine->setSlowness(slowness);
    }
    shownCount = -1;
    applyOnion();
    refresh();
    editor->animationChanged(currentAnimation());
}

void AnimationEditorPrivate::detach()
{
    commitFields();
    if (timeLine) {
        timeLine->stop();
        timeLine->clearTimeLines();
    }
    setPlayChecks(false);
    leaveDrawing();
    currentSprite = nullptr;
    renderer->setSprites(nullptr);
    renderer->setContactBoxes(ContactBoxCode::Attack, nullptr);
    renderer->setContactBoxes(ContactBoxCode::Collision, nullptr);
    renderer->replaceOnionSkinSprite(nullptr, {});
    renderer->setOnionSkins({});
    if (!editor->isActive() && stage->renderer() == renderer) {
        stage->setRenderer(nullptr);
    }
}

/// A collection deletes a sprite before it reports the replacement, so the pointer is dropped
/// early.
void AnimationEditorPrivate::followSprites()
{
    Sprites* const now = editor->sprites();
    if (now == spriteList) {
        return;
    }
    if (spriteList) {
        spriteList->disconnect(this);
    }
    spriteList = now;
    if (now) {
        connect(now, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                &AnimationEditorPrivate::dropSprites);
        connect(now, &QAbstractItemModel::modelAboutToBeReset, this,
                &AnimationEditorPrivate::dropSprites);
        connect(now, &Sprites::closing, this, [this] {
            spriteList = nullptr;
            dropSprites();
        });
        connect(now, &OrganizableObject::changed, this, &AnimationEditorPrivate::refreshSoon);
        connect(now, &QAbstractItemModel::modelReset, this, &AnimationEditorPrivate::refreshSoon);
    }
}

void AnimationEditorPrivate::dropSprites()
{
    if (currentSprite) {
        currentSprite = nullptr;
        emit changed();
    }
    renderer->replaceOnionSkinSprite(nullptr, {});
    renderer->setOnionSkins({});
    refreshSoon();
}

void AnimationEditorPrivate::takeSprite()
{
    followSprites();
    const FrameCode* frame = currentFrame();
    currentSprite = frame ? frame->sprite() : nullptr;
    emit changed();
}

QString AnimationEditorPrivate::name() const
{
    const AnimationCode* shown = currentAnimation();
    return shown ? shown->displayName() : QString();
}

bool AnimationEditorPrivate::markerAtTick(unsigned int tick, Marker& marker) const
{
    return followed.ticks().markerAt(tick, marker);
}

AnimationEditor::AnimationEditor(CodeWorkspace* code, GraphicsWorkspace* stage,
                                 GraphicsRenderer* renderer, CodeItemModel* model,
                                 const char* treeName, QObject* parent)
    : CodeFileEditor(code, model, treeName, parent),
      d(std::make_unique<AnimationEditorPrivate>(this, stage, renderer))
{
    d->editorAction = host()->createEditorAction(QStringLiteral("editor_anim"),
                                                 ZorvTranslator::instance(), EditorText);
    if (!d->editorAction) {
        d->editorAction = new QAction(this);
    }
    d->editorAction->setEnabled(false);
    d->publish();
    connect(d.get(), &AnimationEditorPrivate::enabled, this, &AnimationEditor::enabled);
    connect(d.get(), &AnimationEditorPrivate::frameEnabled, this, &AnimationEditor::frameEnabled);
    connect(d.get(), &AnimationEditorPrivate::frameEnabledNC, this,
            &AnimationEditor::frameEnabledNC);
    connect(d.get(), &AnimationEditorPrivate::frameEnabledExtra, this,
            &AnimationEditor::frameEnabledExtra);
    d->retranslate();
    d->tellEnabled({});
}

/// Stage and strip must not keep pointers to this editor.
AnimationEditor::~AnimationEditor()
{
    CodeFileEditor::deactivate();
}

QAction* AnimationEditor::action() const
{
    return d->editorAction;
}

QString AnimationEditor::name() const
{
    return QStringLiteral("anim");
}

int AnimationEditor::canEditFileType() const
{
    return 1;
}

QStringList AnimationEditor::areas() const
{
    // The areas of its own tools and of the thumbnails.
    return {QStringLiteral("animations"), QStringLiteral("anim")};
}

Workspace* AnimationEditor::workspace() const
{
    return d->stage;
}

void AnimationEditor::reconfig()
{
    d->codeWindow.reconfig();
    d->applyOnion();
    d->renderer->Renderer::update();
}

void AnimationEditor::retranslate()
{
    d->retranslate();
    d->showFactsSoon();
    d->refresh();
}

void AnimationEditor::setProject(Project* project)
{
    if (project && document() && document()->project() == project) {
        return;
    }
    CodeDocument* found = project ? documentOf(project->file(FileID::Animations)) : nullptr;
    if (!found && project) {
        found = documentOf(project->file(FileID::MainCode));
    }
    setDocument(found);
}

void AnimationEditor::projectAboutToClose(Project* project)
{
    if (document() && document()->project() == project) {
        setDocument(nullptr);
    }
}

void AnimationEditor::setDocument(CodeDocument* document)
{
    CodeFileEditor::setDocument(document);
    if (!isActive()) {
        d->bind(document);
    }
}

bool AnimationEditor::canDiscardInput() const
{
    return d->codeWindow.mayDrop();
}

void AnimationEditor::save()
{
    d->commitFields();
    CodeFileEditor::save();
}

void AnimationEditor::undo()
{
    d->commitFields();
    CodeFileEditor::undo();
    d->refresh();
}

void AnimationEditor::redo()
{
    d->commitFields();
    CodeFileEditor::redo();
    d->refresh();
}

void AnimationEditor::currLineChanged(int line)
{
    CodeFileEditor::currLineChanged(line);
    if (!d->isLinked() || !d->isTextShown() || d->cursorMoves > 0 || d->updating > 0 ||
        d->inputs > 0 || document()->isCodeBeingChanged()) {
        return;
    }
    if (isPlaying()) {
        d->isCursorPending = true;
    } else {
        d->followLine(line);
    }
}

Animations* AnimationEditor::animations() const
{
    return d->animations;
}

Sprites* AnimationEditor::sprites() const
{
    const Project* project = document() ? document()->project() : nullptr;
    return project ? dynamic_cast<Sprites*>(project->file(FileID::Sprites)) : nullptr;
}

AnimationCode* AnimationEditor::currentAnimation() const
{
    return d->currentAnimation();
}

FrameCode* AnimationEditor::currentFrame() const
{
    return d->currentFrame();
}

int AnimationEditor::animationIndex() const
{
    return d->animationIndex();
}

int AnimationEditor::frameIndex() const
{
    return d->frameIndex();
}

int AnimationEditor::frameCount() const
{
    return d->frameCount();
}

FrameCode* AnimationEditor::nextFrame() const
{
    return d->followed.frame(d->next(d->frameIndex()));
}

QVector<int> AnimationEditor::selectedFrames() const
{
    return d->strip.selectedFrames();
}

GraphicsRenderer* AnimationEditor::renderer() const
{
    return d->renderer;
}

GraphicsWorkspace* AnimationEditor::graphicsWorkspace() const
{
    return d->stage;
}

bool AnimationEditor::isPlaying() const
{
    return d->isPlaying();
}

bool AnimationEditor::isEditCodeMode() const
{
    return d->isLinked();
}

void AnimationEditor::setEditCodeMode(bool on, Editor* editor)
{
    d->setChecked("anim_editcode", on);
    d->editCode(on);
    if (editor && !editor->isActive()) {
        host()->activateEditor(editor);
    }
}

bool AnimationEditor::canChangeFieldValue() const
{
    return d->updating == 0 && d->currentFrame();
}

void AnimationEditor::beginChangeFieldValue()
{
    if (d->isLinked()) {
        ++d->updating;
    }
}

void AnimationEditor::endChangeFieldValue()
{
    if (d->isLinked() && d->updating > 0) {
        --d->updating;
    }
}

void AnimationEditor::animationCodeChanged(bool countChanged, bool fromCode)
{
    if (countChanged) {
        d->shownCount = -1;
    }
    d->refresh(fromCode);
    if (!fromCode) {
        d->updateCurrLine();
    }
}

void AnimationEditor::update()
{
    d->refresh();
    d->stage->update();
}

void AnimationEditor::selectAnimation(int index)
{
    d->selPosChanged(index);
}

void AnimationEditor::selectFrame(int index)
{
    d->stop();
    d->frameSelPosChanged(index);
}

void AnimationEditor::play()
{
    d->startPlay(0);
}

void AnimationEditor::stopPlaying()
{
    d->stop();
}

void AnimationEditor::playStopped() {}

void AnimationEditor::animationChanged(AnimationCode*) {}

void AnimationEditor::animationCountChanged()
{
    d->updateRange();
}

void AnimationEditor::interpolateFrame(FrameCode*, int) {}

QPoint AnimationEditor::offsetToParentFromInterpolation(QPoint position) const
{
    return position;
}

FrameFacts AnimationEditor::frameFacts(const AnimationCode* animation) const
{
    return FrameFacts(animation);
}

bool AnimationEditor::mayDeleteAnimation()
{
    return true;
}

void AnimationEditor::setSpriteItemType(GraphicsRenderer::ItemType type)
{
    d->spriteItemType = type;
}

void AnimationEditor::setFrameExtra(bool hasExtra)
{
    d->hasExtra = hasExtra;
    d->updateEnabled();
}

void AnimationEditor::attach()
{
    CodeFileEditor::attach();
    d->attach();
}

void AnimationEditor::detach()
{
    d->detach();
    CodeFileEditor::detach();
}

}  // namespace Zorv
