#include "media/paletteobject.h"

#include "media/palettedevice_p.h"

#include <QColor>
#include <QIODevice>

#include <algorithm>
#include <climits>
#include <cstring>
#include <iterator>
#include <utility>

namespace Zorv {

namespace {

const int ColorCount = 256;

// Emits `changing()` when constructed and `changed()` when destroyed.
class Change
{
public:
    explicit Change(PaletteObject* object) : m_object(object) { emit object->changing(); }
    ~Change() { emit m_object->changed(); }

private:
    Q_DISABLE_COPY(Change)
    PaletteObject* m_object;
};

template <class Function>
void forSelected(RGBA* palette, const bool* selection, Function function)
{
    for (int i = 0; i < ColorCount; ++i) {
        if (!selection || selection[i]) {
            function(palette[i]);
        }
    }
}

quint8 clamped(int value)
{
    return quint8(qBound(0, value, 255));
}

int squaredDistance(RGBA x, RGBA y)
{
    const int r = x.r - y.r;
    const int g = x.g - y.g;
    const int b = x.b - y.b;
    return r * r + g * g + b * b;
}

RGBA blend(RGBA from, RGBA to, int step, int steps)
{
    const auto channel = [step, steps](int x, int y) { return quint8(x + step * (y - x) / steps); };
    return {channel(from.r, to.r), channel(from.g, to.g), channel(from.b, to.b),
            channel(from.a, to.a)};
}

// The colours of a gradient, one per call. After the first colour the number of steps drops by one,
// so that the last colour is exactly `to`.
class Run
{
public:
    Run(RGBA from, RGBA to, int count) : m_from(from), m_to(to), m_steps(count) {}

    RGBA next()
    {
        const RGBA color = blend(m_from, m_to, m_step, m_steps);
        if (m_step++ == 0) {
            --m_steps;
        }
        return color;
    }

private:
    RGBA m_from;
    RGBA m_to;
    int m_step = 0;
    int m_steps;
};

void setLevels(RGBA& color, int r, int g, int b)
{
    color = {clamped(r), clamped(g), clamped(b), color.a};
}

void brighten(RGBA& color, int amount)
{
    setLevels(color, color.r + amount, color.g + amount, color.b + amount);
}

void apply(RGBPaletteEffect effect, RGBA& color)
{
    const int average = (color.r + color.g + color.b) / 3;
    const int contrast = average < 128 ? average + 50 : average - 50;
    switch (effect) {
    case RGBPaletteEffect::SwapRedBlue:
    case RGBPaletteEffect::SwapBlueRed:
        std::swap(color.r, color.b);
        break;
    case RGBPaletteEffect::SwapGreenBlue:
    case RGBPaletteEffect::SwapBlueGreen:
        std::swap(color.g, color.b);
        break;
    case RGBPaletteEffect::SwapRedGreen:
    case RGBPaletteEffect::SwapGreenRed:
        std::swap(color.r, color.g);
        break;
    case RGBPaletteEffect::Lighter:
        brighten(color, 32);
        break;
    case RGBPaletteEffect::Darker:
        brighten(color, -32);
        break;
    case RGBPaletteEffect::Gray:
        setLevels(color, average, average, average);
        break;
    case RGBPaletteEffect::Sepia:
        setLevels(color, average + 100, average / 2, 0);
        break;
    case RGBPaletteEffect::Purple:
        setLevels(color, average / 4 + 60, 0, average / 2 + 60);
        break;
    case RGBPaletteEffect::Contrast:
        setLevels(color, contrast, contrast, contrast);
        break;
    case RGBPaletteEffect::MuchLighter:
        brighten(color, 128);
        break;
    case RGBPaletteEffect::MuchDarker:
        brighten(color, -128);
        break;
    case RGBPaletteEffect::None:
        break;
    }
}

}  // namespace

PaletteObject::PaletteObject(RGBA (&palette)[256], QObject* parent)
    : QObject(parent), m_palette(palette)
{
}

void PaletteObject::fromPalette(const RGBA* palette)
{
    const Change change(this);
    std::memmove(m_palette, palette, ColorCount * sizeof(RGBA));
}

void PaletteObject::toPalette(RGBA (&palette)[256]) const
{
    std::memmove(palette, m_palette, sizeof palette);
}

bool PaletteObject::fromFile(QIODevice* device, const char* format)
{
    if (!device->isReadable()) {
        return false;
    }
    RGBA palette[ColorCount];
    std::fill(std::begin(palette), std::end(palette), RGBA{0, 0, 0, 255});
    if (!readPalette(device, format, palette)) {
        return false;
    }
    palette[0].a = 0;
    fromPalette(palette);
    return true;
}

bool PaletteObject::toFile(QIODevice* device, const char* format)
{
    if (!device->isWritable()) {
        return false;
    }
    RGBA palette[ColorCount];
    toPalette(palette);
    return writePalette(device, format, palette);
}

unsigned char PaletteObject::index(RGBA color) const
{
    int best = 0;
    int bestDistance = INT_MAX;
    // Stored in a byte on purpose. After an entry with less alpha than the colour, the difference
    // wraps around and almost any equally near entry wins. Existing palettes with several alpha
    // values rely on it.
    quint8 bestAlpha = 255;
    for (int i = 0; i < ColorCount; ++i) {
        const int distance = squaredDistance(m_palette[i], color);
        const int alpha = m_palette[i].a - color.a;
        if (distance < bestDistance || (distance == bestDistance && alpha < bestAlpha)) {
            best = i;
            bestDistance = distance;
            bestAlpha = quint8(alpha);
        }
    }
    return quint8(best);
}

void PaletteObject::setColor(unsigned char index, RGBA color)
{
    const Change change(this);
    m_palette[index] = color;
}

void PaletteObject::setColor(const bool* selection, RGBA color)
{
    const Change change(this);
    forSelected(m_palette, selection, [color](RGBA& entry) { entry = color; });
}

void PaletteObject::gradient(unsigned char first, RGBA from, unsigned char last, const RGBA& to)
{
    // `to` may refer to an entry that is overwritten here.
    const RGBA end = to;
    const Change change(this);
    const int count = last - first;
    Run run(from, end, count);
    // Starts at entry 0 on purpose; `first` only determines the length.
    for (int i = 0; i < count; ++i) {
        m_palette[i] = run.next();
    }
}

void PaletteObject::gradient(const bool* selection, RGBA from, RGBA to)
{
    const Change change(this);
    const auto count = selection ? std::count(selection, selection + ColorCount, true) : ColorCount;
    Run run(from, to, int(count));
    forSelected(m_palette, selection, [&run](RGBA& entry) { entry = run.next(); });
}

void PaletteObject::clearDuplicated(RGB replacement)
{
    const Change change(this);
    for (int i = 1; i < ColorCount; ++i) {
        for (int before = i - 1; before > 0; --before) {
            if (m_palette[before] == m_palette[i]) {
                m_palette[before] = {replacement.r, replacement.g, replacement.b, 255};
                break;
            }
        }
    }
}

void PaletteObject::addColors(const RGBA* colors)
{
    RGBA added[ColorCount];
    std::memcpy(added, colors, sizeof added);
    const Change change(this);
    // There are at most as many colours as entries, so `end` stays inside the palette.
    RGBA* end = m_palette + ColorCount;
    for (const RGBA color : added) {
        if (std::find(m_palette, m_palette + ColorCount, color) == m_palette + ColorCount) {
            *--end = color;
        }
    }
}

void PaletteObject::applyEffect(RGBPaletteEffect effect, const bool* selection)
{
    const Change change(this);
    forSelected(m_palette, selection, [effect](RGBA& entry) { apply(effect, entry); });
}

void PaletteObject::switchColors(const bool* selection, bool alpha)
{
    const Change change(this);
    RGBA colors[ColorCount];
    int count = 0;
    forSelected(m_palette, selection, [&](const RGBA& entry) { colors[count++] = entry; });
    forSelected(m_palette, selection, [&](RGBA& entry) { entry = colors[--count]; });
    if (alpha) {
        std::swap(m_palette[0].a, m_palette[ColorCount - 1].a);
    }
}

void PaletteObject::sortByTones()
{
    const Change change(this);
    for (int i = 1; i < ColorCount - 1; ++i) {
        const RGBA before = m_palette[i - 1];
        RGBA* nearest =
            std::min_element(m_palette + i, m_palette + ColorCount, [before](RGBA x, RGBA y) {
                return squaredDistance(x, before) < squaredDistance(y, before);
            });
        std::swap(m_palette[i], *nearest);
    }
}

void PaletteObject::addHueSaturation(const bool* selection, short hue, short saturation)
{
    const Change change(this);
    forSelected(m_palette, selection, [hue, saturation](RGBA& entry) {
        const QColor color(entry.r, entry.g, entry.b);
        const QRgb result =
            QColor::fromHsl(qBound(0, color.hslHue() + hue, 359),
                            qBound(0, color.hslSaturation() + saturation, 255), color.lightness())
                .rgb();
        entry = {quint8(qRed(result)), quint8(qGreen(result)), quint8(qBlue(result)), 255};
    });
}

void PaletteObject::addRGB(const bool* selection, short red, short green, short blue)
{
    const Change change(this);
    forSelected(m_palette, selection, [red, green, blue](RGBA& entry) {
        setLevels(entry, entry.r + red, entry.g + green, entry.b + blue);
    });
}

void PaletteObject::empty()
{
    std::memset(m_palette, 0, ColorCount * sizeof(RGBA));
}

}  // namespace Zorv
