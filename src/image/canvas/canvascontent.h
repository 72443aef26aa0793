#pragma once

#include "zorv_export.h"

#include <QtGlobal>

#include <memory>

namespace Zorv {

class CanvasContentPrivate;

/// The content of a canvas with its history, put aside so that the canvas can show another picture
/// and get this one back unchanged. See `ImageCanvas::takeContent()`.
///
/// It belongs to that canvas and must be deleted before it. Main thread only.
class ZORV_EXPORT CanvasContent
{
public:
    ~CanvasContent();

    /// The bytes used by layers, selection and history.
    qint64 byteSize() const;

private:
    Q_DISABLE_COPY(CanvasContent)
    friend class ImageCanvas;
    CanvasContent();

    std::unique_ptr<CanvasContentPrivate> d;
};

}  // namespace Zorv
