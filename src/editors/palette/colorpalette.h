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

/// Makes the colours of a palette grid the paint colours of a canvas. A left click in the grid
/// chooses the foreground, a right click the background. Main thread only.
class ZORV_EXPORT ColorPalette : public ImagePalette
{
    Q_OBJECT

public:
    /// Lets a tool take a click in the grid. Returns true if the tool has used the click.
    ///
    /// A function, so that the grid does not depend on the tools:
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

    /// The wells that show the two colours. They follow the grid's colours. A well in a layout is
    /// owned by its parent; otherwise it dies with the palette.
    ColorWidget* foregroundWidget() const;
    ColorWidget* backgroundWidget() const;

    /// Sets the function that gets a click first; empty for none. Reset it before it dangles. It
    /// may replace itself while it is called.
    void setColorTaker(ColorTaker taker);

public slots:
    /// Handles a click in the grid, and is already connected to it. Indexes above 255 are ignored.
    void colorClicked(unsigned short color, Qt::MouseButton button);

signals:
    /// The colours of the grid have changed.
    void paletteChanged();

    /// The foreground or background index has changed.
    void colorsChosen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<ColorPalettePrivate> d;
};

}  // namespace Zorv
