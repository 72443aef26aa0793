#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"

#include <QPainter>
#include <QPen>

#include <algorithm>

namespace Zorv {

namespace {

/// Draws many rectangles of two colours in order, in a single call, as fragments of one pixmap.
/// Drawn one by one, each would cost the GL paint engine more than a sprite.
class RectBatch
{
public:
    enum Color { Inside, Border };

    RectBatch(QPainter& painter, const QRect& visible, const QColor& inside, const QColor& border)
        : m_painter(painter), m_visible(visible)
    {
        // Three by three pixels per colour, of which only the middle one is used, so that filtering
        // never mixes in the neighbour.
        QImage image(6, 3, QImage::Format_ARGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixelColor(x, y, x < image.width() / 2 ? inside : border);
            }
        }
        m_colors = QPixmap::fromImage(image);
    }

    void add(const QRect& rect, Color color, double opacity)
    {
        const QRect part = rect & m_visible;
        if (!part.isEmpty()) {
            m_rects.append(QPainter::PixmapFragment::create(
                QRectF(part).center(), QRectF(color == Inside ? 1 : 4, 1, 1, 1), part.width(),
                part.height(), 0, opacity));
        }
    }

    void draw()
    {
        m_painter.drawPixmapFragments(m_rects.constData(), m_rects.size(), m_colors);
        m_rects.clear();
    }

private:
    QPainter& m_painter;
    QRect m_visible;
    QPixmap m_colors;
    QVector<QPainter::PixmapFragment> m_rects;
};

/// The four sides of a box, `thickness` wide, inside it. They do not overlap, so a translucent
/// border has the same opacity everywhere. The left side is kept even if the box is narrower than a
/// pixel.
std::array<QRect, 4> edges(const QRect& box, int thickness)
{
    const int left = box.left() + thickness;
    const int top = box.top() + thickness;
    const int right = std::max(box.right() - thickness, left - 1);
    const int bottom = std::max(box.bottom() - thickness, top - 1);
    return {QRect(QPoint(box.left(), box.top()), QPoint(left - 1, box.bottom())),
            QRect(QPoint(left, box.top()), QPoint(right, top - 1)),
            QRect(QPoint(right + 1, box.top()), box.bottomRight()),
            QRect(QPoint(left, bottom + 1), QPoint(right, box.bottom()))};
}

}  // namespace

void GraphicsRendererPrivate::renderContactBoxes(QPainter& painter, ContactBoxCode::BoxType type,
                                                 QColor interior, QColor border)
{
    const ContactBoxes& boxes = contactBoxes[static_cast<size_t>(type - 1)];
    if (!boxes.visible || boxes.items.isEmpty()) {
        return;
    }
    const QColor& color = ContactBoxes::color[type == ContactBoxCode::Collision ? 1 : 0];
    interior = interior.isValid() ? interior : color;
    border = border.isValid() ? border : color;
    const QBrush marks(interior,
                       type == ContactBoxCode::Collision ? Qt::FDiagPattern : Qt::BDiagPattern);
    const double opacity = static_cast<double>(ContactBoxes::opacity) * 0.5;
    const int thickness = lineThickness();
    const QPoint anchor = anchorOf(contactMode, contactParent);
    RectBatch batch(painter, visibleRect(), interior, border);
    for (const ContactItem& item : boxes.items) {
        // A box being drawn may extend to the left or up.
        const QRect box = contactRect(item, anchor).normalized();
        if (item.selected) {
            batch.draw();
            painter.fillRect(box & visibleRect(), marks);
        }
        batch.add(box.adjusted(thickness, thickness, 0, 0), RectBatch::Inside, opacity);
        for (const QRect& edge : edges(box, thickness)) {
            batch.add(edge, RectBatch::Border, 1);
        }
    }
    batch.draw();
}

void GraphicsRendererPrivate::renderContactBoxSizers(QPainter& painter)
{
    if (clickMode == GraphicsRenderer::DrawContactBoxMode || !hasSelection) {
        return;
    }
    painter.setPen(QPen(Qt::gray, 1, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setBrush(Qt::white);
    for (int sizer = GraphicsRenderer::TopLeftSizer; sizer <= GraphicsRenderer::RightSizer;
         ++sizer) {
        // The outline adds a pixel, which makes the handle eight by eight.
        const QPoint corner = sizerFromSelection(static_cast<RenderElement>(sizer)) - QPoint(4, 4);
        if (QRect(corner, QSize(8, 8)).intersects(visibleRect())) {
            painter.drawRect(QRect(corner, QSize(7, 7)));
        }
    }
}

}  // namespace Zorv
