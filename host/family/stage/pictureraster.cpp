#include "family/stage/pictureraster.h"

#include "family/stage/placedpicture.h"

#include <QVector>

// A picture that is not rotated is drawn by a table of source columns, computed once, and one
// source row per line. A rotated one is drawn line by line along the spans of
// `PlacedPicture::spanAt()`, which contain only positions inside the picture, so the inner loop
// needs no range checks. Both loops are templates over pixel types and blending, so that blending
// is inlined.

namespace Family {

namespace {

/// channel * alpha / 255, rounded like 8-bit blending.
uint weighed(uint channel, uint alpha)
{
    const uint product = channel * alpha;
    return (product + (product >> 8) + 128) >> 8;
}

uint mixed(uint from, uint alpha, uint to)
{
    return weighed(from, alpha) + weighed(to, 255 - alpha);
}

/// Blends one colour over another; both may be partly transparent.
QRgb over(QRgb color, QRgb ground)
{
    const uint alpha = uint(qAlpha(color));
    const uint groundAlpha = uint(qAlpha(ground));
    if (groundAlpha == 255) {
        return qRgb(int(mixed(uint(qRed(color)), alpha, uint(qRed(ground)))),
                    int(mixed(uint(qGreen(color)), alpha, uint(qGreen(ground)))),
                    int(mixed(uint(qBlue(color)), alpha, uint(qBlue(ground)))));
    }
    if (groundAlpha == 0) {
        return color;
    }
    const uint above = alpha * 255;
    const uint below = groundAlpha * (255 - alpha);
    const uint both = above + below;
    const auto channel = [=](int from, int to) {
        return int((uint(from) * above + uint(to) * below + both / 2) / both);
    };
    return qRgba(channel(qRed(color), qRed(ground)), channel(qGreen(color), qGreen(ground)),
                 channel(qBlue(color), qBlue(ground)), int((both + 127) / 255));
}

inline void blend(QRgb* to, QRgb color)
{
    const uint alpha = color >> 24;
    if (alpha == 255) {
        *to = color;
    } else if (alpha != 0) {
        *to = over(color, *to);
    }
}

/// Combines each channel of a colour, its alpha and the channel of the background by a function.
template <class Function>
void mixChannels(QRgb* to, QRgb color, Function function)
{
    const uint alpha = uint(qAlpha(color));
    const auto channel = [=](int from, int ground) {
        return int(function(uint(from), alpha, uint(ground)));
    };
    *to = alpha == 0 ? *to
                     : qRgba(channel(qRed(color), qRed(*to)), channel(qGreen(color), qGreen(*to)),
                             channel(qBlue(color), qBlue(*to)), qAlpha(*to));
}

uint added(uint from, uint alpha, uint to)
{
    return qMin(to + weighed(from, alpha), 255U);
}

uint subtracted(uint from, uint alpha, uint to)
{
    return to - qMin(weighed(from, alpha), to);
}

uint multiplied(uint from, uint alpha, uint to)
{
    return mixed(weighed(to, from), alpha, to);
}

}  // namespace

PictureRaster::PictureRaster(QImage* image, QPoint topLeft)
    : m_image(image), m_area(topLeft, image->size()), m_bits(image->bits())
{
}

template <class To>
To* PictureRaster::at(int x, int y) const
{
    return reinterpret_cast<To*>(m_bits + qint64(y - m_area.top()) * m_image->bytesPerLine()) +
           (x - m_area.left());
}

template <class To, class From, class Mix>
void PictureRaster::putUpright(const PlacedPicture& place, const QImage& picture, Mix mix)
{
    const QRect seen = place.bounds() & m_area;
    QVector<int> columns(seen.width());
    for (int x = 0; x < columns.size(); ++x) {
        columns[x] = place.columnAt(seen.left() + x);
    }
    const int width = columns.size();
    const int* const column = columns.constData();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const auto* const from =
            reinterpret_cast<const From*>(picture.constScanLine(place.rowAt(y)));
        To* const to = at<To>(seen.left(), y);
        for (int x = 0; x < width; ++x) {
            mix(to + x, from[column[x]]);
        }
    }
}

template <class To, class From, class Mix>
void PictureRaster::putTurned(const PlacedPicture& place, const QImage& picture, Mix mix)
{
    const QRect seen = place.bounds() & m_area;
    const uchar* const bits = picture.constBits();
    const qint64 stride = picture.bytesPerLine();
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        const PlacedPicture::Span span = place.spanAt(y);
        const int first = qMax(span.first, seen.left());
        const int count = qMin(span.first + span.count - 1, seen.right()) - first + 1;
        if (count <= 0) {
            continue;
        }
        const qint64 skipped = first - span.first;
        qint64 u = span.u + skipped * span.du;
        qint64 v = span.v + skipped * span.dv;
        To* const to = at<To>(first, y);
        for (int x = 0; x < count; ++x, u += span.du, v += span.dv) {
            mix(to + x, reinterpret_cast<const From*>(bits + (v >> 32) * stride)[u >> 32]);
        }
    }
}

template <class To, class From, class Mix>
void PictureRaster::put(const PlacedPicture& place, const QImage& picture, Mix mix)
{
    place.isUpright() ? putUpright<To, From>(place, picture, mix)
                      : putTurned<To, From>(place, picture, mix);
}

template <class Mix>
void PictureRaster::putColors(const PlacedPicture& place, const QImage& picture, Mix mix)
{
    if (picture.format() != QImage::Format_Indexed8) {
        put<QRgb, QRgb>(place, picture.convertToFormat(QImage::Format_ARGB32), mix);
        return;
    }
    QVector<QRgb> colors = picture.colorTable();
    for (int i = colors.size(); i < 256; ++i) {
        colors.append(qRgb(0, 0, 0));
    }
    const QRgb* const table = colors.constData();
    put<QRgb, uchar>(place, picture,
                     [table, mix](QRgb* to, uchar index) { mix(to, table[index]); });
}

void PictureRaster::draw(const PlacedPicture& place, const QImage& picture, Mixture mixture)
{
    if (!place.bounds().intersects(m_area) || picture.size() != place.pictureSize()) {
        return;
    }
    if (m_image->format() == QImage::Format_Indexed8) {
        if (picture.format() == QImage::Format_Indexed8) {
            put<uchar, uchar>(place, picture, [](uchar* to, uchar index) { *to = index; });
        }
        return;
    }
    switch (mixture) {
    case Mixture::Over:
        putColors(place, picture, [](QRgb* to, QRgb color) { blend(to, color); });
        break;
    case Mixture::Add:
        putColors(place, picture, [](QRgb* to, QRgb color) { mixChannels(to, color, added); });
        break;
    case Mixture::Subtract:
        putColors(place, picture, [](QRgb* to, QRgb color) { mixChannels(to, color, subtracted); });
        break;
    case Mixture::Multiply:
        putColors(place, picture, [](QRgb* to, QRgb color) { mixChannels(to, color, multiplied); });
        break;
    }
}

void PictureRaster::fill(const QRect& rect, QRgb color)
{
    const QRect seen = rect & m_area;
    for (int y = seen.top(); y <= seen.bottom(); ++y) {
        QRgb* const to = at<QRgb>(seen.left(), y);
        for (int x = 0; x < seen.width(); ++x) {
            blend(to + x, color);
        }
    }
}

}  // namespace Family
