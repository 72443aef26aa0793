// Tiled drawing of an image, in one of two ways.
//
// Without gaps, the tiles are one large quad over which the texture repeats. Where GL cannot repeat
// textures that are not powers of two, this needs even image sides. Otherwise every tile is its own
// pair of triangles.
//
// Above MaxTiles the visible tiles are found first: the widget, in clip space from -1 to 1, is
// mapped back by the inverse matrix, and columns and rows outside of it are dropped. If too many
// pairs of triangles remain even then, the last ones are cut off.

#include "graphics/renderer.h"

#include "graphics/renderwidget.h"
#include "graphics/renderwidget_p.h"
#include "graphics/texture.h"

#include <QVector4D>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Zorv {

namespace {

constexpr qint64 MaxTiles = 1 << 16;

/// The range of visible tiles in one direction. Tile n starts at n times `step` and is 1 wide.
struct TileRange
{
    int first = 0;
    int count = 0;
    double step = 0;

    /// Drops tiles outside of `from` to `to`.
    void clip(double from, double to)
    {
        if (!std::isfinite(from) || !std::isfinite(to) || step == 0) {
            return;
        }
        double low = (from - 1) / step;
        double high = to / step;
        if (step < 0) {
            low = to / step;
            high = (from - 1) / step;
        }
        low = std::clamp(std::floor(low), 0.0, double(count));
        high = std::clamp(std::ceil(high), -1.0, double(count - 1));
        first = int(low);
        count = std::max(int(high) - first + 1, 0);
    }
};

/// Drops tiles outside of the widget. False if nothing is visible.
bool clipToWidget(TileRange& columns, TileRange& rows, const QMatrix4x4& matrix)
{
    bool isInvertible = false;
    const QMatrix4x4 inverse = matrix.inverted(&isInvertible);
    if (isInvertible && matrix.row(3) == QVector4D(0, 0, 0, 1)) {
        const QRectF shown = inverse.mapRect(QRectF(-1, -1, 2, 2));
        columns.clip(shown.left(), shown.right());
        rows.clip(shown.top(), shown.bottom());
    }
    return isInvertible && columns.count > 0 && rows.count > 0;
}

/// Limits the number of tiles. So many visible tiles lie on top of each other, and the bounded
/// number covers the widget as well.
bool bound(TileRange& columns, TileRange& rows, const QMatrix4x4& matrix)
{
    if (qint64(columns.count) * rows.count <= MaxTiles) {
        return true;
    }
    if (!clipToWidget(columns, rows, matrix)) {
        return false;
    }
    constexpr qint64 Side = 1 << 8;
    static_assert(Side * Side <= MaxTiles, "as many one way as the other");
    columns.count = int(std::min<qint64>(columns.count, std::max(Side, MaxTiles / rows.count)));
    rows.count = int(std::min<qint64>(rows.count, MaxTiles / columns.count));
    return true;
}

/// Writes two triangles per tile, followed by as many degenerate ones: the draw call takes one
/// vertex per float of the filled half.
void fillTiles(std::vector<float>& out, const TileRange& columns, const TileRange& rows)
{
    out.clear();
    out.reserve(size_t(columns.count) * size_t(rows.count) * 24);
    for (int row = rows.first; row < rows.first + rows.count; ++row) {
        const auto top = float(row * rows.step);
        const auto bottom = float(row * rows.step + 1);
        for (int column = columns.first; column < columns.first + columns.count; ++column) {
            const auto left = float(column * columns.step);
            const auto right = float(column * columns.step + 1);
            out.insert(out.end(), {left, bottom, left, top, right, top, right, top, right, bottom,
                                   left, bottom});
        }
    }
    out.resize(out.size() * 2, 0.0F);
}

/// Computes how many tiles fill the widget, and how far before the origin they start, in image
/// sizes.
void fillWidget(int& tiles, double& offset, int widgetSide, int imageSide, double origin)
{
    if (tiles < 2) {
        tiles = qCeil(double(widgetSide) / imageSide);
        offset = -double(imageSide) * std::ceil(origin / imageSide);
    }
}

}  // namespace

void Renderer::glDrawImageTiled(QPoint tiles, QPoint spacing, const QMatrix4x4& matrix,
                                Texture* image, Texture* palette, unsigned char flip, float opacity,
                                bool mask)
{
    TextureDrawing* const state = drawing();
    if (!state || !image || image->id == 0 || image->isStale() || image->size.isEmpty()) {
        return;
    }
    static const bool supportNPOT = hasOpenGLFeature(NPOTTextures);
    const bool isEven = image->size.width() % 2 == 0 && image->size.height() % 2 == 0;
    const QPointF origin = (state->projection * matrix).map(QPointF(0, 0));
    double offsetX = 0;
    double offsetY = 0;
    fillWidget(tiles.rx(), offsetX, m_widget->width(), image->size.width(), origin.x());
    fillWidget(tiles.ry(), offsetY, m_widget->height(), image->size.height(), origin.y());

    if (!state->bind(*this, palette ? state->indexed : state->rgba, Plain, *image, palette)) {
        return;
    }
    QMatrix4x4 moved = matrix;
    if (offsetX != 0 || offsetY != 0) {
        moved.translate(float(offsetX), float(offsetY));
    }
    moved = state->projection * moved;
    state->setMatrix(*this, moved);
    state->setMaskAndOpacity(*this, mask, opacity);
    if (!letOthersSetUniforms()) {
        return;
    }
    if (spacing.isNull() && (supportNPOT || isEven)) {
        drawRepeated(tiles, *image, flip, moved);
    } else {
        drawTiles(tiles, spacing, moved);
    }
}

// One quad over which the texture repeats. Whole repetitions outside the widget can be dropped.
void Renderer::drawRepeated(QPoint tiles, const Texture& image, unsigned char flip,
                            const QMatrix4x4& matrix)
{
    TextureDrawing& state = m_widget->d->drawing;
    TileRange columns{0, std::max(tiles.x(), 0), 1};
    TileRange rows{0, std::max(tiles.y(), 0), 1};
    const bool isMany = qint64(columns.count) * rows.count > MaxTiles;
    if (isMany && image.uMax == 1 && image.vMax == 1 && !clipToWidget(columns, rows, matrix)) {
        return;
    }
    const auto left = float(columns.first);
    const auto top = float(rows.first);
    const auto right = left + float(columns.count);
    const auto bottom = top + float(rows.count);
    state.tiles.assign(
        {left, bottom, left, top, right, top, right, top, right, bottom, left, bottom});
    const float* const texCoords = state.unitTexCoords(float(columns.count) * float(image.uMax),
                                                       float(rows.count) * float(image.vMax), flip);
    state.draw(*this, state.tiles.data(), texCoords, 6);
}

// The corner positions are also the texture coordinates. The gap is measured after projection.
void Renderer::drawTiles(QPoint tiles, QPoint spacing, const QMatrix4x4& matrix)
{
    TextureDrawing& state = m_widget->d->drawing;
    const QPointF gap = state.projection.map(QPointF(spacing));
    TileRange columns{0, std::max(tiles.x(), 0), gap.x() + 1.0};
    TileRange rows{0, std::max(tiles.y(), 0), gap.y() + 1.0};
    if (bound(columns, rows, matrix)) {
        fillTiles(state.tiles, columns, rows);
        state.draw(*this, state.tiles.data(), state.tiles.data(), int(state.tiles.size() / 2));
    }
}

}  // namespace Zorv
