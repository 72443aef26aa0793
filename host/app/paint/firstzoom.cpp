#include "app/paint/firstzoom.h"

#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imageundostack.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>

#include <QScopedValueRollback>
#include <QWidget>

namespace App {

using Zorv::ImageCanvas;

namespace {

constexpr int LargestZoom = 8;

}  // namespace

FirstZoom::FirstZoom(Zorv::SpriteEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor)
{
    const ImageCanvas* canvas = editor->renderer()->canvas();
    connect(editor, &Zorv::SpriteEditor::spriteShown, this, [this] {
        if (m_hasPicture) {
            end();
        } else if (m_editor->spriteIndex() >= 0) {
            m_hasPicture = true;
            fit();
        }
    });
    const auto endIfShown = [this] {
        if (m_hasPicture && !m_isFitting) {
            end();
        }
    };
    connect(canvas->undoStack(), &Zorv::ImageUndoStack::indexChanged, this, endIfShown);
    connect(canvas, &ImageCanvas::zoomChanged, this, endIfShown);
    // The position changes when the view changes its size.
    connect(canvas, &ImageCanvas::positionChanged, this, &FirstZoom::fit);
}

void FirstZoom::fit()
{
    const Zorv::ImageRenderer* renderer = m_editor->renderer();
    QSize view = m_editor->spriteWorkspace()->widget()->size();
    if (renderer->widget()) {
        view.setWidth(renderer->splitX());
    }
    ImageCanvas* canvas = renderer->canvas();
    if (m_hasPicture && !canvas->size().isEmpty()) {
        const QScopedValueRollback<bool> fitting(m_isFitting, true);
        const int zoom =
            qMin(view.width() / canvas->size().width(), view.height() / canvas->size().height());
        canvas->setZoomLevel(qBound(1, zoom, LargestZoom));
    }
}

void FirstZoom::end()
{
    disconnect(m_editor, nullptr, this, nullptr);
    disconnect(m_editor->renderer()->canvas(), nullptr, this, nullptr);
    disconnect(m_editor->renderer()->canvas()->undoStack(), nullptr, this, nullptr);
}

}  // namespace App
