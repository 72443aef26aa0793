#pragma once

#include "zorv_export.h"

#include <QtGlobal>

#include <memory>

namespace Zorv {

class CanvasContentPrivate;

/// What was on a canvas, with its history: so a canvas can show another picture meanwhile and have
/// this one back as it was. See `ImageCanvas::takeContent()`.
///
/// It belongs to that canvas and must go before it. Main thread only.
class ZORV_EXPORT CanvasContent
{
public:
    ~CanvasContent();

    /// The bytes that layers, selection and history hold.
    qint64 byteSize() const;

private:
    Q_DISABLE_COPY(CanvasContent)
    friend class ImageCanvas;
    CanvasContent();

    std::unique_ptr<CanvasContentPrivate> d;
};

}  // namespace Zorv
