#include "family/stage/framecomposer.h"

#include "family/assets/spritecollection.h"
#include "family/nodes/framenode.h"
#include "family/stage/pictureraster.h"
#include "family/stage/placedpicture.h"

#include <zorv/code/codedoc/animationcode.h>
#include <zorv/code/codedoc/contactboxescode.h>

#include <algorithm>
#include <array>
#include <cmath>

// Draws without GL what the stage draws with it: sprite, boxes, axis, in this order.
// `PlacedPicture` and `boxArea()` round as the stage does, so that the results match pixel by
// pixel.

namespace Family {

namespace {

const int CacheKiB = 256 * 1024;

// Positions are clamped here; a picture farther away could not contain anything else.
const int Farthest = 1 << 28;

const char CrossFile[] = ":/zorvl_icons/icons/sff.png";

/// The line width of a box or cross in pixels.
int lineWidth(float zoom)
{
    return qRound(std::max(zoom, 1.0F));
}

QImage enlarged(const QImage& image, int times)
{
    QImage result(image.size() * times, QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* const line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            line[x] = image.pixel(x / times, y / times);
        }
    }
    return result;
}

/// An index for the background around a picture: a transparent one, or an unused one, which is made
/// transparent. -1 if there is neither.
int groundIndex(const QImage& picture, QVector<QRgb>* colors)
{
    const auto clear =
        std::find_if(colors->begin(), colors->end(), [](QRgb color) { return qAlpha(color) == 0; });
    if (clear != colors->end()) {
        return int(clear - colors->begin());
    }
    std::array<bool, 256> isUsed{};
    for (int y = 0; y < picture.height(); ++y) {
        const uchar* const line = picture.constScanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            isUsed[line[x]] = true;
        }
    }
    const int index = int(std::find(isUsed.begin(), isUsed.end(), false) - isUsed.begin());
    if (index == int(isUsed.size())) {
        return -1;
    }
    colors->resize(std::max(colors->size(), index + 1));
    (*colors)[index] = 0;
    return index;
}

/// The four sides of a box as rectangles of this width. They do not overlap. In a box smaller than
/// the lines they extend beyond it to the right and down.
std::array<QRect, 4> edgesOf(const QRect& box, int width)
{
    const int left = box.left() + width;
    const int top = box.top() + width;
    const int right = std::max(box.right() - width, left - 1);
    const int bottom = std::max(box.bottom() - width, top - 1);
    return {QRect(QPoint(box.left(), box.top()), QPoint(left - 1, box.bottom())),
            QRect(QPoint(left, box.top()), QPoint(right, top - 1)),
            QRect(QPoint(right + 1, box.top()), box.bottomRight()),
            QRect(QPoint(left, bottom + 1), QPoint(right, box.bottom()))};
}

/// Calls the function for each box of a frame, bottom ones first.
template <class Function>
void forEachBox(const FrameNode& frame, Function function)
{
    using Zorv::ContactBoxCode;
    for (const auto type : {ContactBoxCode::Collision, ContactBoxCode::Attack}) {
        const Zorv::ContactBoxesCode* boxes = frame.contactBoxes(type);
        for (int i = 0; boxes && i < boxes->count(); ++i) {
            function(boxes->at(i)->rect(), type == ContactBoxCode::Attack);
        }
    }
}

}  // namespace

FrameComposer::FrameComposer(const SpriteCollection* sprites, const FrameStyle& style,
                             const PaletteColors* colors)
    : m_sprites(sprites), m_style(style), m_pictures(CacheKiB)
{
    const bool isZoom = style.zoom > 0 && style.zoom <= FrameStyle::MaxZoom;
    m_style.zoom = isZoom ? style.zoom : std::numeric_limits<float>::quiet_NaN();
    m_colors = colors ? tableOfColors(*colors) : QVector<QRgb>();
    if (style.parts & FrameStyle::Axis && isZoom) {
        m_axis = enlarged(QImage(QLatin1String(CrossFile)), lineWidth(style.zoom));
    }
}

FrameComposer::~FrameComposer() = default;

const FamilySprite* FrameComposer::spriteOf(const FrameNode& frame, QString* error) const
{
    const AssetId id{quint16(frame.data().group), quint16(frame.data().number)};
    const FamilySprite* sprite = m_sprites ? m_sprites->byId(id) : nullptr;
    if (!sprite) {
        *error = tr("There is no sprite %1.").arg(id.text());
    }
    return sprite;
}

QImage FrameComposer::pictureOf(const FrameNode& frame, QString* error)
{
    const FamilySprite* sprite = spriteOf(frame, error);
    if (!sprite) {
        return {};
    }
    if (const QImage* known = m_pictures.object(sprite)) {
        return *known;
    }
    QImage image = sprite->image();
    if (image.isNull()) {
        *error = tr("Sprite %1 has no pixels, or they are broken.").arg(sprite->id().text());
        return {};
    }
    if (image.format() == QImage::Format_Indexed8 && !m_colors.isEmpty()) {
        image.setColorTable(m_colors);
    }
    m_pictures.insert(sprite, new QImage(image), int(image.sizeInBytes() / 1024) + 1);
    return image;
}

FramePose FrameComposer::pose(const FrameNode& frame, QString* error) const
{
    const FamilySprite* sprite = spriteOf(frame, error);
    return sprite ? poseOf(frame.data(), sprite->size(), sprite->axis()) : FramePose();
}

QRect FrameComposer::areaOf(const QRect& rect) const
{
    const QPoint end = QPoint(rect.left() + rect.width(), rect.top() + rect.height());
    const QPoint first = stagePoint(rect.topLeft(), m_style.zoom);
    return {first, stagePoint(end, m_style.zoom) - QPoint(1, 1)};
}

// The left and top edges and the length of each side are rounded separately.
QRect FrameComposer::boxArea(const QRect& box) const
{
    const double zoom = double(m_style.zoom);
    const auto rounded = [zoom](double length) {
        const double bounded = std::clamp(length * zoom, double(-Farthest), double(Farthest));
        return std::isnan(bounded) ? 0 : qRound(bounded);
    };
    // A box may be given by its right or lower end first.
    return QRect(rounded(box.left()), rounded(box.top()),
                 rounded(double(box.right()) + 1 - box.left()),
                 rounded(double(box.bottom()) + 1 - box.top()))
        .normalized();
}

QRect FrameComposer::axisArea() const
{
    return {QPoint(-(m_axis.width() / 2), -(m_axis.height() / 2)), m_axis.size()};
}

QRect FrameComposer::bounds(const FrameNode& frame, QString* error) const
{
    QRect area;
    if (m_style.parts & FrameStyle::Sprite) {
        area = PlacedPicture(pose(frame, error), m_style.zoom).bounds();
    }
    if (m_style.parts & FrameStyle::Boxes) {
        const int width = lineWidth(m_style.zoom);
        forEachBox(frame, [&](const QRect& box, bool) {
            for (const QRect& edge : edgesOf(boxArea(box), width)) {
                area |= edge;
            }
        });
    }
    return area | axisArea();
}

QRect FrameComposer::bounds(const Zorv::AnimationCode& animation, QString* error) const
{
    QRect area;
    const QList<Zorv::FrameCode*> frames = animation.frames();
    for (const Zorv::FrameCode* frame : frames) {
        area |= bounds(*static_cast<const FrameNode*>(frame), error);
    }
    return area;
}

bool FrameComposer::isDrawable(const FrameNode& frame, const QRect& area, QString* error) const
{
    const bool isNear = qMax(qAbs(qint64(area.left())), qAbs(qint64(area.top()))) <= Farthest;
    if (std::isnan(m_style.zoom)) {
        *error = tr("A zoom is above 0, and %1 at most.").arg(double(FrameStyle::MaxZoom));
    } else if (area.isEmpty()) {
        const bool isThere = !(m_style.parts & FrameStyle::Sprite) || spriteOf(frame, error);
        *error =
            isThere ? tr("There is nothing to be seen: the frame is scaled to nothing.") : *error;
    } else if (!isNear || qint64(area.width()) * area.height() > MaxPixels) {
        *error = tr("The picture would be %1 by %2 pixels, which is too large. Choose a smaller "
                    "zoom, or look at scales and offsets of the frames.")
                     .arg(QString::number(area.width()), QString::number(area.height()));
    } else {
        return true;
    }
    return false;
}

QImage FrameComposer::compose(const FrameNode& frame, const QRect& area, QString* error)
{
    if (!isDrawable(frame, area, error)) {
        return {};
    }
    QImage image(area.size(), QImage::Format_ARGB32);
    if (image.isNull()) {
        *error = tr("There is not enough memory for a picture of %1 by %2 pixels.")
                     .arg(QString::number(area.width()), QString::number(area.height()));
        return {};
    }
    image.fill(0);
    draw(frame, &image, area.topLeft(), error);
    return image;
}

QImage FrameComposer::composeIndexed(const FrameNode& frame, const QRect& area, QString* error)
{
    if (m_style.parts != FrameStyle::Sprite || !isDrawable(frame, area, error)) {
        return compose(frame, area, error);
    }
    const QImage picture = pictureOf(frame, error);
    const PlacedPicture place(pose(frame, error), m_style.zoom);
    const bool isFilled = place.isUpright() && place.bounds().contains(area);
    QVector<QRgb> colors = picture.colorTable();
    const int ground = picture.format() != QImage::Format_Indexed8 ? -1
                       : isFilled                                  ? 0
                                                                   : groundIndex(picture, &colors);
    QImage image(area.size(), QImage::Format_Indexed8);
    if (ground < 0 || image.isNull()) {
        return compose(frame, area, error);
    }
    image.setColorTable(colors);
    image.fill(uint(ground));
    PictureRaster(&image, area.topLeft()).draw(place, picture);
    return image;
}

void FrameComposer::draw(const FrameNode& frame, QImage* image, QPoint topLeft, QString* error)
{
    PictureRaster raster(image, topLeft);
    if (m_style.parts & FrameStyle::Sprite) {
        const QImage picture = pictureOf(frame, error);
        raster.draw(PlacedPicture(pose(frame, error), m_style.zoom), picture);
    }
    if (m_style.parts & FrameStyle::Boxes) {
        const int width = lineWidth(m_style.zoom);
        const double opacity = qBound(0.0, m_style.boxOpacity, 1.0) * 0.5;
        forEachBox(frame, [&](const QRect& box, bool isAttack) {
            const QRect area = boxArea(box);
            const QColor border = isAttack ? m_style.attack : m_style.body;
            QColor inside = border;
            inside.setAlpha(int(border.alpha() * opacity));
            raster.fill(area.adjusted(width, width, 0, 0), inside.rgba());
            for (const QRect& edge : edgesOf(area, width)) {
                raster.fill(edge, border.rgba());
            }
        });
    }
    if (!m_axis.isNull()) {
        FramePose cross;
        cross.position = axisArea().topLeft();
        cross.size = m_axis.size();
        raster.draw(PlacedPicture(cross, 1), m_axis);
    }
}

QPoint FrameComposer::pixelAt(const FramePose& pose, float zoom, QPoint stage)
{
    return PlacedPicture(pose, zoom).pixelAt(stage);
}

int FrameComposer::colorAt(const QImage& picture, const FramePose& pose, float zoom, QPoint stage)
{
    const QPoint place = pixelAt(pose, zoom, stage);
    const bool isIndexed = picture.format() == QImage::Format_Indexed8;
    if (!isIndexed || !picture.valid(place)) {
        return -1;
    }
    const int index = picture.constScanLine(place.y())[place.x()];
    const QVector<QRgb> colors = picture.colorTable();
    return index < colors.size() && qAlpha(colors[index]) == 0 ? -1 : index;
}

}  // namespace Family
