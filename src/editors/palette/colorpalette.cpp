#include "editors/palette/colorpalette.h"

#include "editors/palette/colorwidget.h"
#include "editors/palette/palettewidget.h"
#include "media/paletteobject.h"

#include <QColor>
#include <QEvent>
#include <QPointer>

#include <utility>

namespace Zorv {

class ColorPalettePrivate
{
public:
    /// An index, and the well that shows its colour. A well with a parent dies with it.
    struct Choice
    {
        unsigned char index = 0;
        QPointer<ColorWidget> well = new ColorWidget;
    };

    explicit ColorPalettePrivate(ColorPalette* palette, PaletteWidget* grid)
        : owner(palette), widget(grid)
    {
    }
    ~ColorPalettePrivate()
    {
        delete foreground.well;
        delete background.well;
    }

    void choose(Choice* choice, unsigned char index);
    void show(const Choice& choice) const;
    void retranslate() const;

    ColorPalette* owner;
    PaletteWidget* widget;
    Choice foreground;
    Choice background;
    ColorPalette::ColorTaker taker;
};

void ColorPalettePrivate::choose(Choice* choice, unsigned char index)
{
    const bool isOther = choice->index != index;
    choice->index = index;
    show(*choice);
    widget->update();
    if (isOther) {
        emit owner->colorsChosen();
    }
}

void ColorPalettePrivate::show(const Choice& choice) const
{
    if (choice.well) {
        choice.well->setColor(owner->color(choice.index));
    }
}

void ColorPalettePrivate::retranslate() const
{
    const auto name = [](ColorWidget* well, const QString& text) {
        if (well) {
            well->setToolTip(text);
            well->setAccessibleName(text);
        }
    };
    name(foreground.well, ColorPalette::tr("Foreground color"));
    name(background.well, ColorPalette::tr("Background color"));
}

ColorPalette::ColorPalette(PaletteWidget* widget, QObject* parent)
    : ImagePalette(parent), d(std::make_unique<ColorPalettePrivate>(this, widget))
{
    d->show(d->foreground);
    d->show(d->background);
    d->retranslate();
    for (ColorWidget* well : {foregroundWidget(), backgroundWidget()}) {
        well->installEventFilter(this);
    }
    connect(widget, &PaletteWidget::colorClick, this, &ColorPalette::colorClicked);
    connect(widget, &PaletteWidget::changed, this, [this] {
        d->show(d->foreground);
        d->show(d->background);
        emit paletteChanged();
    });
}

ColorPalette::~ColorPalette() = default;

unsigned char ColorPalette::background() const
{
    return d->background.index;
}

unsigned char ColorPalette::foreground() const
{
    return d->foreground.index;
}

QRgb ColorPalette::color(unsigned char index) const
{
    const RGBA color = palette()->color(index);
    return qRgba(color.r, color.g, color.b, color.a);
}

unsigned char ColorPalette::index(const QColor& color) const
{
    return palette()->index(
        {quint8(color.red()), quint8(color.green()), quint8(color.blue()), quint8(color.alpha())});
}

void ColorPalette::setForeground(unsigned char index)
{
    d->choose(&d->foreground, index);
}

void ColorPalette::setBackground(unsigned char index)
{
    d->choose(&d->background, index);
}

PaletteObject* ColorPalette::palette() const
{
    return d->widget->palette();
}

void ColorPalette::toRGBPal(RGBA (&colors)[256]) const
{
    palette()->toPalette(colors);
}

PaletteWidget* ColorPalette::widget() const
{
    return d->widget;
}

ColorWidget* ColorPalette::foregroundWidget() const
{
    return d->foreground.well;
}

ColorWidget* ColorPalette::backgroundWidget() const
{
    return d->background.well;
}

void ColorPalette::setColorTaker(ColorTaker taker)
{
    d->taker = std::move(taker);
}

void ColorPalette::colorClicked(unsigned short color, Qt::MouseButton button)
{
    if (color > 255) {
        return;
    }
    const auto index = static_cast<unsigned char>(color);
    const bool isRight = button == Qt::RightButton;
    const ColorTaker taker = d->taker;
    if (taker && taker(isRight, index)) {
        return;
    }
    d->choose(isRight ? &d->background : &d->foreground, index);
}

bool ColorPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        d->retranslate();
    }
    return ImagePalette::eventFilter(watched, event);
}

}  // namespace Zorv
