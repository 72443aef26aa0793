#pragma once

#include "media/tools/gifcomposite_p.h"
#include "media/tools/savegif.h"

#include <QHash>

namespace Zorv {

/// The frames of an animation, prepared for writing: on one canvas, with at most 256 colours each
/// and delays in hundredths of a second.
class GIFAnimation
{
public:
    GIFAnimation(const QVector<GIFFrame>& frames, QRgb background);

    /// False if there is nothing to write or the canvas is too large.
    bool isValid() const { return m_valid; }

    QSize size() const { return m_canvas.size(); }
    int count() const { return m_frames.size(); }
    int delay(int index) const { return m_frames[index].delay; }

    /// The content of the canvas at a frame.
    GIFComposite composite(int index) const;

    /// The number of colour numbers, including 0, and the colour of each.
    int numberCount() const { return m_colors.size(); }
    QRgb color(GIFColorNumber number) const { return m_colors[int(number)]; }

    /// The global colour table: with the colours of all frames if they fit, otherwise of the first
    /// frames that fit.
    GIFTable globalTable() const;

private:
    struct Frame
    {
        QImage image;  ///< `Format_Indexed8`
        QPoint position;
        QVector<GIFColorNumber> numbers;  ///< for each of the 256 indices
        QVector<GIFColorNumber> shown;    ///< the numbers that are visible
        int delay = 0;
    };

    bool addFrame(const GIFFrame& source);
    void takeImage(Frame& frame, const QImage& source);
    void takeNumbers(Frame& frame);
    void addDelays(Frame frame, int ticks);
    GIFColorNumber numberOf(QRgb color);

    QVector<Frame> m_frames;
    QRect m_canvas;
    QRgb m_background;  ///< opaque, or 0
    QVector<QRgb> m_colors = {0};
    QHash<QRgb, GIFColorNumber> m_numbers = {{0, 0}};
    qint64 m_ticks = 0;  ///< of all frames so far
    qint64 m_hundredths = 0;
    bool m_valid = false;
};

}  // namespace Zorv
