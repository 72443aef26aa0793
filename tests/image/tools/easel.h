#pragma once

#include "image/canvas/imagecanvas.h"
#include "image/canvas/imagelayers.h"
#include "image/canvas/imageselection.h"
#include "image/canvas/imageundostack.h"
#include "image/canvas/rasterlayer.h"
#include "image/tools/canvasmovetool.h"
#include "image/tools/erasertool.h"
#include "image/tools/floodfilltool.h"
#include "image/tools/penseltool.h"
#include "image/tools/pentool.h"
#include "image/tools/pickertool.h"
#include "image/tools/rectseltool.h"
#include "image/tools/replacetool.h"
#include "image/tools/selmovetool.h"
#include "image/tools/strokeoptions.h"
#include "support/testimagepalette.h"

#include <QCursor>

/// A canvas with one layer, all tools, and a mouse at a zoom of 4.
struct Easel
{
    Easel(Zorv::ImageCanvas::Format format, const QSize& size)
    {
        canvas.setFormat(format, false);
        canvas.setSize(size, {}, false);
        canvas.newRasterLayer({});
        canvas.setActiveLayer(canvas.layers()->at(0));
        canvas.setZoomLevel(4);
        canvas.undoStack()->clear();
        for (Zorv::BasePenTool* tool :
             {static_cast<Zorv::BasePenTool*>(&pen), static_cast<Zorv::BasePenTool*>(&eraser),
              static_cast<Zorv::BasePenTool*>(&replace),
              static_cast<Zorv::BasePenTool*>(&penSel)}) {
            tool->setStrokeOptions(&options);
        }
    }

    Zorv::ImageLayer* layer() const { return canvas.activeLayer(); }
    QImage image() const { return layer()->image(); }

    void press(Zorv::ImageTool& tool, QPoint at, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = {})
    {
        tool.mousePressed(modifiers, button, screen(at), at, cursor);
    }
    void move(Zorv::ImageTool& tool, QPoint at, Qt::KeyboardModifiers modifiers = {})
    {
        tool.mouseMoved(modifiers, screen(at), at, cursor);
    }
    void release(Zorv::ImageTool& tool, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        tool.mouseReleased({}, button, screen(at), at, cursor);
    }

    /// Pressed at the first place, released at the last.
    void stroke(Zorv::ImageTool& tool, const QVector<QPoint>& places,
                Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        press(tool, places.first(), button, modifiers);
        for (const QPoint& place : places) {
            move(tool, place, modifiers);
        }
        release(tool, places.last(), button);
    }

    QPoint screen(QPoint at) const { return at * qRound(canvas.zoomLevel()); }

    TestImagePalette palette;
    Zorv::ImageCanvas canvas{&palette};
    Zorv::StrokeOptions options;
    Zorv::CanvasMoveTool canvasMove{&canvas};
    Zorv::SelMoveTool selMove{&canvas};
    Zorv::RectSelTool rectSel{&canvas};
    Zorv::PenSelTool penSel{&canvas};
    Zorv::PickerTool picker{&canvas};
    Zorv::PenTool pen{&canvas};
    Zorv::EraserTool eraser{&canvas};
    Zorv::ReplaceTool replace{&canvas};
    Zorv::FloodFillTool fill{&canvas};
    Zorv::ImageTool* const tools[9] = {&canvasMove, &selMove, &rectSel, &penSel, &picker,
                                       &pen,        &eraser,  &replace, &fill};
    QCursor cursor;
};
