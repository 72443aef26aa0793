#pragma once

#include "image/canvas/imagepalette.h"

#include "zorv_export.h"

#include <Qt>

#include <functional>
#include <memory>

namespace Zorv {

class ColorPalettePrivate;
class ColorWidget;
class PaletteWidget;

/// The colours of a grid as those that a canvas is painted with. A click in the grid chooses the
/// foreground, one with the right button the background. Main thread only.
class ZORV_EXPORT ColorPalette : public ImagePalette
{
    Q_OBJECT

public:
    /// A tool that wants a click for itself. True if it has used the click up.
    ///
    /// The grid stands below the tools, so a tool comes as a function:
    ///
    ///     palette->setColorTaker([this](bool isRightButton, unsigned char index) {
    ///         return currentTool()->colorClicked(isRightButton, index);
    ///     });
    using ColorTaker = std::function<bool(bool isRightButton, unsigned char index)>;

    /// The grid is not owned and outlives the palette.
    explicit ColorPalette(PaletteWidget* widget, QObject* parent = nullptr);
    ~ColorPalette() override;

    /// Both are 0 at first.
    unsigned char background() const override;
    unsigned char foreground() const override;

    QRgb color(unsigned char index) const override;
    unsigned char index(const QColor& color) const override;
    void setForeground(unsigned char index) override;
    void setBackground(unsigned char index) override;
    PaletteObject* palette() const override;
    void toRGBPal(RGBA (&colors)[256]) const override;

    PaletteWidget* widget() const;

    /// The wells that show both colours. Where a layout takes them they are its parent's, otherwise
    /// they go with the palette. They follow the colours of the grid.
    ColorWidget* foregroundWidget() const;
    ColorWidget* backgroundWidget() const;

    /// Who is asked first about a click; empty for none. It has to be taken back before it dangles,
    /// and may replace itself while it is called.
    void setColorTaker(ColorTaker taker);

public slots:
    /// A click in the grid; it is connected. Beyond 255 nothing happens.
    void colorClicked(unsigned short color, Qt::MouseButton button);

signals:
    /// The grid has other colours.
    void paletteChanged();

    /// Foreground or background is another index.
    void colorsChosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<ColorPalettePrivate> d;
};

}  // namespace Zorv
