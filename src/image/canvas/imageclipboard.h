#pragma once

#include "zorv_export.h"

class QMimeData;

namespace Zorv {

class ImageCanvas;

/// Copies pixels of a canvas to the clipboard and back. Other programs see a PNG file.
///
/// A copy is the rectangle around the selected pixels; pixels in it that are not selected become
/// transparent. An indexed canvas gives an indexed file with its palette; the file also stores the
/// place of the piece. True colours are used for a true-colour canvas, and for an indexed one that
/// needs a transparent entry but has none and uses all 256.
///
/// Pasting accepts a PNG or BMP file, or an image of this program or of the system, and converts it
/// to the format of the canvas. A pixel keeps its index if file and canvas have the same colour for
/// it; otherwise it takes the nearest one, and transparent stays transparent. Nothing is scaled. A
/// piece goes to its old place, or to the top left corner if it has none on this canvas. Pixels
/// outside the canvas are cut off.
///
/// A function that returns false or null has changed neither the canvas nor the clipboard, and
/// `ImageCanvas::refused()` has given the reason. Main thread only.
class ZORV_EXPORT ImageClipboard
{
public:
    enum Source {
        ActiveLayer,  ///< as it is, visible or not
        AllLayers     ///< the result of `ImageCanvas::mergeLayers()`
    };

    enum Target {
        NewLayer,        ///< on top
        OntoActiveLayer  ///< drawn over its pixels, selected or not
    };

    /// The selected pixels, for the clipboard or for a drag. Owned by the caller.
    static QMimeData* data(ImageCanvas* canvas, Source source);

    /// Puts the selected pixels on the clipboard.
    static bool copy(ImageCanvas* canvas, Source source = ActiveLayer);

    /// Copies the selected pixels of the active layer, which must be visible, and clears them: to
    /// transparent, or to the background if the palette has no transparent entry. One step, "cut".
    static bool cut(ImageCanvas* canvas);

    /// Clears the pixels like `cut()`, but leaves the clipboard alone. One step, "clear". Also
    /// false without a layer.
    static bool clear(ImageCanvas* canvas);

    /// Whether `data`, or without it the clipboard, claims to contain a picture.
    static bool canPaste(const QMimeData* data = nullptr);

    /// Pastes from `data`, which stays the caller's, or without it from the clipboard. A new layer
    /// becomes the active one. One step, "paste"; no step if no pixel changes.
    static bool paste(ImageCanvas* canvas, Target target = NewLayer,
                      const QMimeData* data = nullptr);
};

}  // namespace Zorv
