#include "media/tools/gifanimation_p.h"

#include "media/tools/colorquantizer.h"
#include "media/tools/gifpixels_p.h"

#include <algorithm>

namespace Zorv {

static const int Largest = 65535;

// The limit for one composite, so that it fits into a vector.
static const qint64 MostPixels = 1 << 28;

static bool isInRange(const QSize& size)
{
    return qint64(size.width()) * size.height() <= MostPixels;
}

static bool isInRange(const QPoint& position)
{
    const int Farthest = 1 << 28;
    return qAbs(qint64(position.x())) < Farthest && qAbs(qint64(position.y())) < Farthest;
}

GIFAnimation::GIFAnimation(const QVector<GIFFrame>& frames, QRgb background)
    : m_background(gifColor(background))
{
    numberOf(m_background);
    for (const GIFFrame& frame : frames) {
        if (!isInRange(frame.position)) {
            return;
        }
        m_canvas |= QRect(frame.position, frame.image.size());
    }
    const bool fits = m_canvas.width() <= Largest && m_canvas.height() <= Largest &&
                      (m_background == 0 || isInRange(m_canvas.size()));
    if (!m_canvas.isEmpty() && fits) {
        m_valid = std::all_of(frames.begin(), frames.end(),
                              [this](const GIFFrame& frame) { return addFrame(frame); });
    }
}

bool GIFAnimation::addFrame(const GIFFrame& source)
{
    Frame frame;
    frame.position = source.position - m_canvas.topLeft();
    if (!source.image.isNull()) {
        takeImage(frame, source.image);
        if (frame.image.isNull() || !isInRange(frame.image.size())) {
            return false;
        }
    }
    addDelays(frame, source.ticks);
    return true;
}

void GIFAnimation::takeImage(Frame& frame, const QImage& source)
{
    frame.image = gifIndexed(source);
    if (!frame.image.isNull()) {
        takeNumbers(frame);
    }
    if (frame.image.isNull() || frame.shown.size() > 256) {
        // One colour is reserved for the background.
        const int colors = m_background != 0 ? 255 : 256;
        frame.image = ColorQuantizer::quantize(gifTrueColor(source), colors);
        takeNumbers(frame);
    }
}

void GIFAnimation::takeNumbers(Frame& frame)
{
    QVector<QRgb> colors = frame.image.colorTable();
    colors.resize(256);
    const GIFIndexSet used = gifIndices(frame.image);
    frame.numbers.fill(0, 256);
    frame.shown.clear();
    // The background is visible beside an image smaller than the canvas.
    if (m_background != 0 && frame.image.size() != m_canvas.size()) {
        frame.shown.append(numberOf(m_background));
    }
    for (int i = 0; i < 256; ++i) {
        if (used[size_t(i)]) {
            const QRgb color = gifColor(colors[i]);
            frame.numbers[i] = numberOf(color != 0 ? color : m_background);
            if (!frame.shown.contains(frame.numbers[i])) {
                frame.shown.append(frame.numbers[i]);
            }
        }
    }
}

GIFColorNumber GIFAnimation::numberOf(QRgb color)
{
    const auto known = m_numbers.constFind(color);
    if (known != m_numbers.constEnd()) {
        return *known;
    }
    m_numbers.insert(color, GIFColorNumber(m_colors.size()));
    m_colors.append(color);
    return m_numbers.value(color);
}

/// Rounds the end time of each frame, not its length, so rounding errors cannot add up. A frame
/// longer than the greatest delay is repeated.
void GIFAnimation::addDelays(Frame frame, int ticks)
{
    m_ticks += qMax(1, ticks);
    const qint64 end = (m_ticks * 100 + 30) / 60;
    do {
        frame.delay = int(qMin(end - m_hundredths, qint64(Largest)));
        m_hundredths += frame.delay;
        m_frames.append(frame);
    } while (m_hundredths < end);
}

GIFComposite GIFAnimation::composite(int index) const
{
    const Frame& frame = m_frames[index];
    const QRect place(frame.position, frame.image.size());
    GIFComposite result;
    result.rect = place;
    if (m_background != 0) {
        result.rect = QRect(QPoint(0, 0), m_canvas.size());
        const GIFColorNumber number = m_numbers.value(m_background);
        result.pixels.fill(number, m_canvas.width() * m_canvas.height());
    }
    result.pixels.resize(result.rect.width() * result.rect.height());
    const GIFColorNumber* const numbers = frame.numbers.constData();
    for (int y = 0; y < place.height(); ++y) {
        const uchar* const from = frame.image.constScanLine(y);
        GIFColorNumber* const to =
            result.line(place.top() + y) + (place.left() - result.rect.left());
        std::transform(from, from + place.width(), to, [numbers](uchar i) { return numbers[i]; });
    }
    return result;
}

GIFTable GIFAnimation::globalTable() const
{
    GIFTable table(numberCount());
    const auto isOpaque = [](const Frame& frame) { return !frame.shown.contains(0); };
    // With 256 colours and no transparency, no entry is left for "unchanged".
    const bool full =
        numberCount() == 257 && std::all_of(m_frames.begin(), m_frames.end(), isOpaque);
    if (!full) {
        table.insert(0, m_background & RGB_MASK);
    }
    for (const Frame& frame : m_frames) {
        GIFTable extended = table;
        const bool fits =
            std::all_of(frame.shown.begin(), frame.shown.end(), [&](GIFColorNumber number) {
                return extended.insert(number, color(number));
            });
        if (fits) {
            table = extended;
        }
    }
    return table;
}

}  // namespace Zorv
