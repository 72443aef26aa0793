#include "family/stage/placedpicture.h"

#include "family/stage/framepose.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

// Two ways lead from a stage pixel to a texel. An upright picture keeps rows and columns apart:
// `texelUnder()` scales with integers, exactly. A rotated one is mapped back line by line: along a
// stage line both texture coordinates u and v are linear in x, so `spanAt()` solves for the range
// of x in which both are inside the picture. The caller then steps through it in 32.32 fixed point
// by adding `du` and `dv`. Rounding these steps can push the ends of the range outside again, so
// `cutSteps()` trims it once more, in integers. This guarantees that no step reads outside of the
// picture.

namespace Family {

namespace {

const int Farthest = 1 << 28;
const double One = 4294967296.0;  // fixed point: 1.0 of a position in a picture

// The point inside a stage pixel where the picture is sampled.
const double SeenX = 0.5 - double(PlacedPicture::HairX) / PlacedPicture::HairParts;
const double SeenY = 0.5 - double(PlacedPicture::HairY) / PlacedPicture::HairParts;

template <class Real>
bool isNear(Real value)
{
    return value > Real(-Farthest) && value < Real(Farthest);
}

template <class Real>
int farthest(Real value)
{
    return std::isnan(value) ? 0 : value < 0 ? -Farthest : Farthest;
}

int truncated(double value)
{
    return isNear(value) ? int(value) : farthest(value);
}

/// The texel under a pixel, for `texels` drawn over `pixels`. Samples `hair` parts of a pixel after
/// its centre.
int texelUnder(qint64 pixel, qint64 pixels, qint64 texels, int hair)
{
    constexpr qint64 parts = PlacedPicture::HairParts;
    return int((parts * pixel + parts / 2 + hair) * texels / (parts * pixels));
}

/// A position in a picture along a line of the stage: `slope` * x + `start`.
struct Line
{
    double slope;
    double start;

    /// Narrows a range of x to where the position is at least 0 and below `end`.
    void cut(double end, double* first, double* last) const
    {
        if (slope == 0) {
            *last = start >= 0 && start < end ? *last : *first - 1;
            return;
        }
        const double zero = -start / slope;
        const double other = (end - start) / slope;
        *first = std::max(*first, slope > 0 ? std::ceil(zero) : std::floor(other) + 1);
        *last = std::min(*last, slope > 0 ? std::ceil(other) - 1 : std::floor(zero));
    }
};

/// Narrows a range of whole numbers n to where `start` + n * `step` is at least 0 and below `end`.
void cutSteps(qint64 start, qint64 step, qint64 end, qint64* first, qint64* last)
{
    if (step < 0) {
        // Mirror the range, so that the step is positive.
        start = end - 1 - start;
        step = -step;
    }
    if (start < 0) {
        *first = step == 0 ? *last + 1 : std::max(*first, (-start + step - 1) / step);
    }
    const qint64 left = end - 1 - start;
    if (left < 0) {
        *last = *first - 1;
    } else if (step > 0) {
        *last = std::min(*last, left / step);
    }
}

qint64 fixed(double place, double end)
{
    return qint64(std::floor(std::clamp(place, -1.0, end + 1) * One));
}

}  // namespace

int stageLength(int length, float zoom)
{
    const float product = float(length) * zoom;
    return isNear(product) ? qRound(product) : farthest(product);
}

QPoint stagePoint(QPoint point, float zoom)
{
    return {stageLength(point.x(), zoom), stageLength(point.y(), zoom)};
}

PlacedPicture::PlacedPicture(const FramePose& pose, float zoom)
    : m_base(stagePoint(pose.axis, zoom)), m_texels(pose.size), m_mirrored(pose.flip & 1),
      m_upsideDown(pose.flip & 2), m_isUpright(pose.rotation == 0)
{
    m_corner = stagePoint({truncated(pose.position.x() * pose.scale.x()),
                           truncated(pose.position.y() * pose.scale.y())},
                          zoom);
    m_size = QSize(stageLength(truncated(pose.size.width() * pose.scale.x()), zoom),
                   stageLength(truncated(pose.size.height() * pose.scale.y()), zoom));
    if (pose.size.isEmpty() || m_size.width() == 0 || m_size.height() == 0 ||
        !std::isfinite(pose.rotation) || !std::isfinite(zoom)) {
        return;
    }
    if (m_isUpright) {
        const QPoint from = m_base + m_corner;
        const QPoint to(from.x() + m_size.width(), from.y() + m_size.height());
        m_bounds = QRect(QPoint(std::min(from.x(), to.x()), std::min(from.y(), to.y())),
                         QSize(std::abs(m_size.width()), std::abs(m_size.height())));
        return;
    }
    // Quarter turns are exact, like in the stage's rotation matrix.
    const float angle = pose.rotation;
    if (angle == 90.0F || angle == -270.0F || angle == -90.0F || angle == 270.0F) {
        m_cos = 0;
        m_sin = angle == 90.0F || angle == -270.0F ? 1 : -1;
    } else if (angle == 180.0F || angle == -180.0F) {
        m_cos = -1;
    } else {
        const float radians = qDegreesToRadians(angle);
        m_cos = double(std::cos(radians));
        m_sin = double(std::sin(radians));
    }
    m_bounds = coveredByTurned();
}

QRect PlacedPicture::coveredByTurned() const
{
    double left = 0;
    double right = 0;
    double top = 0;
    double bottom = 0;
    for (int i = 0; i < 4; ++i) {
        const double x = double(m_corner.x()) + (i & 1) * double(m_size.width());
        const double y = double(m_corner.y()) + (i >> 1) * double(m_size.height());
        const double turnedX = m_base.x() + x * m_cos - y * m_sin;
        const double turnedY = m_base.y() + x * m_sin + y * m_cos;
        left = i == 0 ? turnedX : std::min(left, turnedX);
        right = i == 0 ? turnedX : std::max(right, turnedX);
        top = i == 0 ? turnedY : std::min(top, turnedY);
        bottom = i == 0 ? turnedY : std::max(bottom, turnedY);
    }
    const QPoint first(truncated(std::ceil(left - SeenX)), truncated(std::ceil(top - SeenY)));
    const QPoint last(truncated(std::ceil(right - SeenX) - 1),
                      truncated(std::ceil(bottom - SeenY) - 1));
    return first.x() <= last.x() && first.y() <= last.y() ? QRect(first, last) : QRect();
}

int PlacedPicture::texelOf(int distance, int pixels, int texels, bool isReversed, int hair)
{
    const bool isBackward = pixels < 0;
    const int length = std::abs(pixels);
    const int pixel = isBackward ? -1 - distance : distance;
    return texelUnder(isReversed ? length - 1 - pixel : pixel, length, texels,
                      isBackward == isReversed ? -hair : hair);
}

int PlacedPicture::columnAt(int x) const
{
    return texelOf(x - m_base.x() - m_corner.x(), m_size.width(), m_texels.width(), m_mirrored,
                   HairX);
}

int PlacedPicture::rowAt(int y) const
{
    return texelOf(y - m_base.y() - m_corner.y(), m_size.height(), m_texels.height(), m_upsideDown,
                   HairY);
}

PlacedPicture::Span PlacedPicture::spanAt(int y) const
{
    if (m_bounds.isEmpty() || y < m_bounds.top() || y > m_bounds.bottom()) {
        return {};
    }
    const double width = m_texels.width();
    const double height = m_texels.height();
    const double down = y + SeenY - m_base.y();
    const double right = SeenX - m_base.x();
    Line u{m_cos * width / m_size.width(),
           (right * m_cos + down * m_sin - m_corner.x()) * width / m_size.width()};
    Line v{-m_sin * height / m_size.height(),
           (down * m_cos - right * m_sin - m_corner.y()) * height / m_size.height()};
    u = m_mirrored ? Line{-u.slope, width - u.start} : u;
    v = m_upsideDown ? Line{-v.slope, height - v.start} : v;
    double first = m_bounds.left();
    double last = m_bounds.right();
    u.cut(width, &first, &last);
    v.cut(height, &first, &last);
    if (first > last) {
        return {};
    }
    Span span;
    span.u = fixed(u.slope * first + u.start, width);
    span.v = fixed(v.slope * first + v.start, height);
    span.du = std::llround(u.slope * One);
    span.dv = std::llround(v.slope * One);
    // Rounding may have moved an end slightly outside.
    qint64 skipped = 0;
    qint64 until = qint64(last) - qint64(first);
    cutSteps(span.u, span.du, qint64(m_texels.width()) << 32, &skipped, &until);
    cutSteps(span.v, span.dv, qint64(m_texels.height()) << 32, &skipped, &until);
    if (skipped > until) {
        return {};
    }
    span.first = int(first) + int(skipped);
    span.count = int(until - skipped) + 1;
    span.u += skipped * span.du;
    span.v += skipped * span.dv;
    return span;
}

QPoint PlacedPicture::pixelAt(QPoint stage) const
{
    if (!m_bounds.contains(stage)) {
        return {-1, -1};
    }
    if (m_isUpright) {
        return {columnAt(stage.x()), rowAt(stage.y())};
    }
    const Span span = spanAt(stage.y());
    const int n = stage.x() - span.first;
    if (n < 0 || n >= span.count) {
        return {-1, -1};
    }
    return {int((span.u + n * span.du) >> 32), int((span.v + n * span.dv) >> 32)};
}

}  // namespace Family
