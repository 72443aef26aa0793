#include "operations/media/spritesheet.h"

#include "family/assets/spritecollection.h"
#include "family/assets/spritejobs.h"
#include "operations/media/spriteexport.h"

#include <zorv/core/progress.h>

#include <QCoreApplication>
#include <QHash>

#include <cmath>
#include <cstring>

namespace Operations {

using Family::ImageJob;
using Family::PaletteColors;
using Family::SpriteCollection;

namespace {

const int MaxSide = 32767;
const qint64 MaxPixels = qint64(1) << 27;

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::SpriteSheet)
};

/// Arranges the places of a sheet in a grid; returns the total size.
QSize layOut(QVector<SpriteSheet::Place>* places, int columns)
{
    QVector<int> widths(columns, 0);
    QVector<int> heights((places->size() + columns - 1) / columns, 0);
    for (int i = 0; i < places->size(); ++i) {
        int& width = widths[i % columns];
        int& height = heights[i / columns];
        width = qMax(width, (*places)[i].rect.width());
        height = qMax(height, (*places)[i].rect.height());
    }
    qint64 x = 0;
    qint64 y = 0;
    for (int i = 0; i < places->size(); ++i) {
        (*places)[i].rect.moveTo(int(qMin<qint64>(x, MaxSide)), int(qMin<qint64>(y, MaxSide)));
        const bool isLast = i % columns == columns - 1;
        x = isLast ? 0 : x + widths[i % columns];
        y += isLast ? heights[i / columns] : 0;
    }
    qint64 width = 0;
    qint64 height = 0;
    for (int one : qAsConst(widths)) {
        width += one;
    }
    for (int one : qAsConst(heights)) {
        height += one;
    }
    return QSize(int(qMin<qint64>(width, MaxSide + 1)), int(qMin<qint64>(height, MaxSide + 1)));
}

/// The colours shared by all sprites; empty if they differ, or if a sprite has none.
QVector<QRgb> sharedColors(const SpriteCollection& sprites,
                           const QVector<SpriteSheet::Place>& places)
{
    QVector<QRgb> shared;
    for (const SpriteSheet::Place& place : places) {
        const QVector<QRgb> shown = sprites.sprite(place.row)->shownColors();
        if (shown.isEmpty() || (!shared.isEmpty() && shown != shared)) {
            return {};
        }
        shared = shown;
    }
    return shared;
}

bool areAllIndexed(const SpriteCollection& sprites, const QVector<SpriteSheet::Place>& places)
{
    return std::all_of(places.begin(), places.end(), [&](const SpriteSheet::Place& place) {
        return sprites.sprite(place.row)->bits() == 8;
    });
}

QImage emptySheet(const QSize& size, const QVector<QRgb>& table)
{
    QImage image(size, table.isEmpty() ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
    if (!image.isNull()) {
        image.setColorTable(table);
        image.fill(0);
    }
    return image;
}

/// Draws sprites on a sheet in several threads.
class SheetPainter
{
public:
    /// Without `colors`, each sprite is drawn in its own colours.
    SheetPainter(const SpriteCollection& sprites, SpriteSheet* sheet, const QVector<QRgb>& colors)
        : m_sprites(sprites), m_sheet(sheet), m_colors(colors), m_isDrawn(int(sprites.count()))
    {
        for (const SpriteSheet::Place& place : qAsConst(sheet->places)) {
            m_rects.insert(place.row, place.rect);
        }
    }

    void paint(const QVector<int>& rows)
    {
        if (m_sheet->image.isNull()) {
            m_sheet->error = Text::tr("The sheet is larger than the memory. Select fewer sprites.");
            return;
        }
        m_pixels = m_sheet->image.bits();
        uchar* const isDrawn = m_isDrawn.data();
        Zorv::Progress progress(Text::tr("Sprites"), rows.size());
        ImageJob job;
        job.rows = rows;
        job.work = [=](int row, const QImage& image) { isDrawn[row] = draw(row, image); };
        job.progress = [&](int done) { return progress.update(done); };
        m_sheet->isCanceled = !Family::forEachImage(m_sprites, job);
        for (int row : rows) {
            if (!isDrawn[row] && !m_sheet->isCanceled) {
                m_sheet->broken.append(Text::tr("Sprite %1 has no pixels, or they are broken.")
                                           .arg(m_sprites.sprite(row)->id().text()));
            }
        }
    }

private:
    // The rectangles do not overlap, so threads can share the picture without a lock.
    bool draw(int row, QImage image) const
    {
        const QRect rect = m_rects.value(row);
        if (image.isNull() || image.size() != rect.size()) {
            return false;
        }
        if (!m_colors.isEmpty() && image.format() == QImage::Format_Indexed8) {
            image.setColorTable(m_colors);
        }
        const int depth = m_sheet->image.depth() / 8;
        if (depth == 4) {
            image = image.convertToFormat(QImage::Format_ARGB32);
        }
        for (int y = 0; y < rect.height(); ++y) {
            memcpy(m_pixels + qint64(rect.y() + y) * m_sheet->image.bytesPerLine() +
                       rect.x() * depth,
                   image.constScanLine(y), size_t(rect.width()) * size_t(depth));
        }
        return true;
    }

    const SpriteCollection& m_sprites;
    SpriteSheet* m_sheet;
    QVector<QRgb> m_colors;
    QHash<int, QRect> m_rects;
    QVector<uchar> m_isDrawn;
    uchar* m_pixels = nullptr;
};

}  // namespace

SpriteSheet makeSpriteSheet(const SpriteCollection& sprites, const Selection& selection,
                            int columns, const PaletteColors* colors)
{
    SpriteSheet sheet;
    const QVector<int> rows = selectedRows(sprites, selection);
    for (int row : rows) {
        sheet.places.append({row, QRect(QPoint(), sprites.sprite(row)->size())});
    }
    const int square = int(std::ceil(std::sqrt(double(rows.size()))));
    const QSize size =
        rows.isEmpty() ? QSize() : layOut(&sheet.places, columns > 0 ? columns : square);
    if (rows.isEmpty()) {
        sheet.error = Text::tr("There is no such sprite.");
    } else if (qMax(size.width(), size.height()) > MaxSide ||
               qint64(size.width()) * size.height() > MaxPixels) {
        sheet.error = Text::tr("The sheet would be too large. Select fewer sprites.");
    } else {
        const QVector<QRgb> given = colors ? Family::tableOfColors(*colors) : QVector<QRgb>();
        const bool isIndexed = areAllIndexed(sprites, sheet.places);
        sheet.image =
            emptySheet(size.expandedTo({1, 1}), !isIndexed ? QVector<QRgb>()
                                                : colors   ? given
                                                           : sharedColors(sprites, sheet.places));
        SheetPainter(sprites, &sheet, given).paint(rows);
    }
    return sheet;
}

}  // namespace Operations
