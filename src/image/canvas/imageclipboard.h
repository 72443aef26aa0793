#pragma once

#include "zorv_export.h"

class QMimeData;

namespace Zorv {

class ImageCanvas;

/// Pixels of a canvas on the clipboard, from and for other programs: a PNG file.
///
/// What is copied is the rectangle around the selected pixels, with those in it that are not
/// selected transparent. An indexed canvas gives an indexed file with its palette, and the file
/// tells the place where the piece stood. A canvas of true colour gives true colours, as does an
/// indexed one whose palette has no transparent entry, if one is needed and all 256 are used.
///
/// What is pasted is a PNG or BMP file, or an image of this program or of the system. It takes the
/// form of the canvas. A pixel keeps its index where the file has the same colour for it as the
/// palette of the canvas; otherwise it takes the nearest, and transparent becomes transparent.
/// Nothing is scaled. A piece stands where it stood, or at the top left corner if it came from no
/// place on this canvas. What lies beyond the canvas is cut off.
///
/// What returns false or null has changed nothing, neither the canvas nor the clipboard, and
/// `ImageCanvas::refused()` has told why. Main thread only.
class ZORV_EXPORT ImageClipboard
{
public:
    enum Source {
        ActiveLayer,  ///< as it is, visible or not
        AllLayers     ///< what `ImageCanvas::mergeLayers()` gives
    };

    enum Target {
        NewLayer,        ///< on top
        OntoActiveLayer  ///< above its pixels, whether these are selected or not
    };

    /// The selected pixels, for the clipboard or for a drag. The caller's.
    static QMimeData* data(ImageCanvas* canvas, Source source);

    /// Puts them on the clipboard.
    static bool copy(ImageCanvas* canvas, Source source = ActiveLayer);

    /// Copies those of the active layer, which has to be visible, and clears them: to transparent,
    /// or the background if the palette has no transparent entry. One step, "cut".
    static bool cut(ImageCanvas* canvas);

    /// Clears them likewise, and leaves the clipboard alone. One step, "clear"; false without a
    /// layer, too.
    static bool clear(ImageCanvas* canvas);

    /// Whether the data, or without any the clipboard, claim to have a picture.
    static bool canPaste(const QMimeData* data = nullptr);

    /// Pastes from data, which stay the caller's, or without any from the clipboard. A new layer
    /// becomes the active one. One step, "paste"; none if no pixel is different then.
    static bool paste(ImageCanvas* canvas, Target target = NewLayer,
                      const QMimeData* data = nullptr);
};

}  // namespace Zorv
