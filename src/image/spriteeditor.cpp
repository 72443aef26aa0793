#include "image/spriteeditor.h"

#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/fileid.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/framework/findflag.h"
#include "editors/palette/paletteeditor.h"
#include "image/canvas/imagecanvas.h"
#include "image/canvas/imageclipboard.h"
#include "image/canvas/imagelayer.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageundostack.h"
#include "image/spriteeditor_p.h"
#include "image/tools/imagetool.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace Zorv {

namespace {

constexpr unsigned EditorText = 92;
constexpr unsigned NotFoundTitle = 8;

Sprites* spritesOf(const Project* project)
{
    return project ? dynamic_cast<Sprites*>(project->file(FileID::Sprites)) : nullptr;
}

}  // namespace

SpriteEditorPrivate::SpriteEditorPrivate(SpriteEditor* owner, PaletteEditor* panel)
    : editor(owner), host(Interface::instance()), workspace(new SpriteWorkspace(this)),
      palettes(panel), colors(new ColorPalette(panel->view(), this)),
      renderer(new ImageRenderer(colors, this)), tools(new QActionGroup(this))
{
    connect(palettes, &PaletteEditor::currentPaletteChanged, this,
            &SpriteEditorPrivate::currentPaletteChanged);
    connect(palettes, &PaletteEditor::colorsMoving, this, &SpriteEditorPrivate::rememberOrder);
    renderer->setOption(ImageRenderer::CenteredBrush, true);
    workspace->setRenderer(renderer);
    colors->setColorTaker([this](bool isRightButton, unsigned char index) {
        ImageTool* tool = renderer->currentTool();
        return tool && tool->colorClicked(isRightButton, index);
    });
    connect(canvas(), &ImageCanvas::refused, this, &SpriteEditorPrivate::tellRefusal,
            Qt::QueuedConnection);
    connect(renderer, &ImageRenderer::pos, this, &SpriteEditorPrivate::showPlace);
    connect(renderer, &ImageRenderer::cursorLeft, this, &SpriteEditorPrivate::hidePlace);
    for (const auto signal : {&ImageUndoStack::canUndoChanged, &ImageUndoStack::canRedoChanged,
                              &ImageUndoStack::cleanChanged}) {
        connect(history(), signal, this, &SpriteEditorPrivate::historyChanged);
    }
    connect(history(), &ImageUndoStack::indexChanged, this, &SpriteEditorPrivate::historyChanged);
    connect(history(), &ImageUndoStack::undoTextChanged, this,
            &SpriteEditorPrivate::historyChanged);
    connectLayers();
    followCanvas();
}

/// Published widgets are not deleted here: the host's window owns them and may live longer.
SpriteEditorPrivate::~SpriteEditorPrivate()
{
    workspace->setRenderer(nullptr);
    if (sprites) {
        sprites->disconnect(this);
    }
    kept.clear();
    delete renderer;
    delete colors;
}

ImageLayers* SpriteEditorPrivate::layers() const
{
    return canvas()->layers();
}

ImageUndoStack* SpriteEditorPrivate::history() const
{
    return canvas()->undoStack();
}

/// Never call this in the middle of an operation: a dialog runs its own event loop.
void SpriteEditorPrivate::tellRefusal(const QString& message)
{
    Dialogs::instance()->warning(SpriteEditor::tr("Not possible"), message);
}

void SpriteEditorPrivate::historyChanged()
{
    updateEnabled();
    editor->contentsChanged();
}

void SpriteEditorPrivate::updateEnabled()
{
    const bool isThere = hasCanvas();
    emit fileEnabled(inFront());
    emit spriteEnabled(sprite());
    emit enabled(isThere);
    emit enabled2(isThere && canvas()->activeLayer() &&
                  canvas()->format() == ImageCanvas::RGBAFormat);
    emit saveEnabled(sprite() && mayBeChanged());
}

SpriteEditor::SpriteEditor(PaletteEditor* palettes, QObject* parent)
    : FileEditor(parent), d(std::make_unique<SpriteEditorPrivate>(this, palettes))
{
    d->editorAction = host()->createEditorAction(QStringLiteral("editor_spr"),
                                                 ZorvTranslator::instance(), EditorText);
    if (!d->editorAction) {
        d->editorAction = new QAction(this);
    }
    d->editorAction->setEnabled(false);
    d->publish();
    takeDropsOn(d->workspace->widget());
    d->retranslate();
    d->showLayer();
    d->showPosition();
    reconfig();
}

SpriteEditor::~SpriteEditor() = default;

QAction* SpriteEditor::action() const
{
    return d->editorAction;
}

QString SpriteEditor::name() const
{
    return QStringLiteral("spr");
}

int SpriteEditor::canEditFileType() const
{
    return file() && file()->fileName().isEmpty() ? 1 : 0;
}

QStringList SpriteEditor::areas() const
{
    return {QStringLiteral("sprites")};
}

Workspace* SpriteEditor::workspace() const
{
    return d->workspace;
}

void SpriteEditor::activate()
{
    FileEditor::activate();
    d->takeWaiting();
    d->showPalettes();
    d->showFirst();
    d->lendList(true);
}

void SpriteEditor::deactivate()
{
    d->canvas()->endStroke();
    d->hidePlace();
    d->lendList(false);
    FileEditor::deactivate();
    d->takeWaiting();
    d->showPalettes();
}

void SpriteEditor::reconfig()
{
    const qint64 megabytes = host()->option(QStringLiteral("undo_megabytes")).toInt();
    d->history()->setBudget(megabytes > 0 ? megabytes << 20 : ImageUndoStack::DefaultBudget);
    d->renderer->setBackground(host()->colorOption(QStringLiteral("back_start")),
                               host()->colorOption(QStringLiteral("back_end")));
}

void SpriteEditor::retranslate()
{
    d->retranslate();
}

void SpriteEditor::setProject(Project* project)
{
    Sprites* now = spritesOf(project);
    d->isWaiting = now != d->sprites;
    d->waiting = now;
    d->takeWaiting();
    d->showPalettes();
}

void SpriteEditor::projectAboutToClose(Project* project)
{
    if (d->waiting && d->waiting->project() == project) {
        d->waiting = nullptr;
    }
    if (d->sprites && d->sprites->project() == project) {
        d->take(d->isWaiting ? d->waiting.data() : nullptr);
    }
    d->dropKept(spritesOf(project));
}

void SpriteEditor::navigateTo(const QString&, unsigned a, unsigned, unsigned)
{
    const int index = int(qMin(a, unsigned(std::numeric_limits<int>::max())));
    if (d->isWaiting) {
        showSprite(d->waiting, index);
    } else {
        d->selPosChanged(index);
    }
}

ProjectFile* SpriteEditor::file() const
{
    return d->sprites;
}

bool SpriteEditor::isModified() const
{
    return isCanvasModified() || FileEditor::isModified();
}

bool SpriteEditor::canDiscardInput() const
{
    return d->mayLeave();
}

void SpriteEditor::undo()
{
    if (d->history()->canUndo()) {
        d->history()->undo();
    } else {
        FileEditor::undo();
    }
}

void SpriteEditor::redo()
{
    if (d->history()->canRedo()) {
        d->history()->redo();
    } else {
        FileEditor::redo();
    }
}

bool SpriteEditor::canUndo() const
{
    return d->history()->canUndo() || (file() && file()->canUndo());
}

bool SpriteEditor::canRedo() const
{
    return d->history()->canRedo() || (file() && file()->canRedo());
}

QString SpriteEditor::undoTitle() const
{
    if (d->history()->canUndo()) {
        return SpriteTexts::stepTitle(d->history()->undoText());
    }
    return file() ? file()->undoTitle() : QString();
}

QString SpriteEditor::redoTitle() const
{
    if (d->history()->canRedo()) {
        return SpriteTexts::stepTitle(d->history()->redoText());
    }
    return file() ? file()->redoTitle() : QString();
}

void SpriteEditor::cut()
{
    d->endPreview();
    ImageClipboard::cut(d->canvas());
}

void SpriteEditor::copy()
{
    d->endPreview();
    ImageClipboard::copy(d->canvas());
}

void SpriteEditor::paste()
{
    d->endPreview();
    const QString name = d->freshName();
    if (ImageClipboard::paste(d->canvas())) {
        d->canvas()->activeLayer()->setName(name, false);
    }
}

void SpriteEditor::clearSelected()
{
    d->endPreview();
    ImageClipboard::clear(d->canvas());
}

void SpriteEditor::selectAll()
{
    d->selAll();
}

/// Searches from the sprite after the shown one, or backwards from the one before it, once around.
void SpriteEditor::find(const QString& text, unsigned flags)
{
    const int count = d->sprites ? int(d->sprites->count()) : 0;
    const int step = flags & FindBackward ? count - 1 : 1;
    const auto sensitivity = flags & FindCaseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int index = qMax(d->row, 0);
    for (int i = 0; i < count; ++i) {
        index = int((qint64(index) + step) % count);
        const QString name =
            d->sprites->sprite(index)->property(QStringLiteral("Identifier")).toString();
        if (name.compare(text.trimmed(), sensitivity) == 0) {
            d->selPosChanged(index);
            return;
        }
    }
    Dialogs::instance()->information(host()->text(NotFoundTitle), tr("No sprite found!"));
}

void SpriteEditor::replace(const QString&, const QString&, unsigned, bool) {}

SpriteWorkspace* SpriteEditor::spriteWorkspace() const
{
    return d->workspace;
}

ImageRenderer* SpriteEditor::renderer() const
{
    return d->renderer;
}

ColorPalette* SpriteEditor::colors() const
{
    return d->colors;
}

Sprites* SpriteEditor::sprites() const
{
    return d->sprites;
}

Sprite* SpriteEditor::sprite() const
{
    return d->sprite();
}

int SpriteEditor::spriteIndex() const
{
    return d->row;
}

bool SpriteEditor::showSprite(Sprites* sprites, int index)
{
    if (!sprites || !sprites->sprite(index) || (sprites == d->sprites && index == d->row)) {
        return sprites && sprites->sprite(index);
    }
    const QPointer<Sprites> wanted = sprites;
    if (!d->mayLeave() || !wanted || !wanted->sprite(index)) {
        return false;
    }
    if (wanted != d->sprites) {
        d->take(wanted);
    }
    d->show(index);
    return true;
}

void SpriteEditor::followFrame(const Sprite* sprite)
{
    d->followFrame(sprite);
}

bool SpriteEditor::mayDeleteSprite()
{
    return true;
}

void SpriteEditor::saveImage()
{
    d->saveImg();
}

}  // namespace Zorv
