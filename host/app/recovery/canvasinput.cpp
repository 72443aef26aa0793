#include "app/recovery/canvasinput.h"

#include "operations/recovery/canvascopy.h"
#include "operations/recovery/recoverycopy.h"

#include <zorv/cache/sprite.h>
#include <zorv/cache/sprites.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>

#include <QTimer>

namespace App {

namespace {

QString identifierOf(const Zorv::Sprite* sprite)
{
    return sprite ? sprite->property(QStringLiteral("Identifier")).toString() : QString();
}

bool hasHiddenLayer(const Zorv::ImageLayers& layers)
{
    for (unsigned i = 0; i < layers.count(); ++i) {
        if (!layers.at(i)->isVisible()) {
            return true;
        }
    }
    return false;
}

/// The row of a canvas's sprite, or -1. The stored row is checked first: several sprites can have
/// the same identifier.
int rowOf(const Zorv::Sprites& sprites, const Operations::CanvasCopy& canvas)
{
    if (identifierOf(sprites.sprite(canvas.row)) == canvas.identifier && canvas.row >= 0) {
        return canvas.row;
    }
    int row = int(sprites.count()) - 1;
    while (row >= 0 && identifierOf(sprites.sprite(row)) != canvas.identifier) {
        --row;
    }
    return row;
}

}  // namespace

CanvasInput::CanvasInput(Zorv::SpriteEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor)
{
    const Zorv::ImageCanvas* canvas = editor->renderer()->canvas();
    connect(editor, &Zorv::Editor::modified, this, &CanvasInput::changeSoon);
    connect(editor, &Zorv::SpriteEditor::spriteShown, this, &CanvasInput::changeSoon);
    connect(canvas, &Zorv::ImageCanvas::layerChanged, this, &CanvasInput::changeSoon);
    connect(canvas, &Zorv::ImageCanvas::axisChanged, this, &CanvasInput::changeSoon);
}

/// Merges the changes of one operation into one signal.
void CanvasInput::changeSoon()
{
    if (!m_isPending) {
        m_isPending = true;
        QTimer::singleShot(0, this, [this] {
            m_isPending = false;
            emit changed();
        });
    }
}

Zorv::ProjectFile* CanvasInput::file() const
{
    const bool hasWork =
        m_editor->isCanvasModified() || hasHiddenLayer(*m_editor->renderer()->canvas()->layers());
    return hasWork ? m_editor->file() : nullptr;
}

std::function<bool(QIODevice*)> CanvasInput::take(Operations::RecoveryCopy* copy) const
{
    Operations::CanvasCopy canvas{identifierOf(m_editor->sprite()), m_editor->spriteIndex(),
                                  m_editor->canvasRecord()};
    copy->content = Operations::RecoveryCopy::Canvas;
    copy->text = canvas.lines();
    return [canvas](QIODevice* device) { return canvas.write(device); };
}

bool CanvasInput::restore(Zorv::ProjectFile* file, const Operations::CanvasCopy& canvas,
                          QString* error)
{
    auto* sprites = dynamic_cast<Zorv::Sprites*>(file);
    const int row = sprites ? rowOf(*sprites, canvas) : -1;
    if (row < 0) {
        *error = tr("The sprite %1, which was painted on, is no longer in its file. The copy is "
                    "kept; it can be saved as a picture.")
                     .arg(canvas.identifier);
        return false;
    }
    if (!m_editor->showSprite(sprites, row) ||
        !canvas.record.applyTo(m_editor->renderer()->canvas())) {
        *error = tr("The canvas of the sprite %1 could not be shown. The copy is kept.")
                     .arg(canvas.identifier);
        return false;
    }
    emit changed();
    return true;
}

}  // namespace App
