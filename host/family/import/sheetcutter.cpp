#include "family/import/sheetcutter.h"

#include "family/import/sheet.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <functional>

// A grid is computed from margin, gap and either cell size or counts; without a given count, empty
// cells at its end are dropped. Cutting by gaps projects twice: runs of non-empty rows are bands,
// and within each band runs of non-empty columns are pictures. A picture keeps the height of its
// band. Diagonal gaps are not found.

namespace Family {

namespace {

constexpr int SmallestCell = 8;  // in a file name; smaller numbers are a count

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family::SheetCutter)
};

/// Knows which pixels of a picture are background.
class Ground
{
public:
    explicit Ground(const QImage& picture) : m_picture(rowsOf(picture))
    {
        m_isIndexed = m_picture.format() == QImage::Format_Indexed8;
        const QVector<QRgb> colors = m_picture.colorTable();
        for (int i = 0; m_isIndexed && i < 256; ++i) {
            m_isEmptyIndex[i] = i == 0 || (i < colors.size() && qAlpha(colors.at(i)) == 0);
        }
        m_hasAlpha = !m_isIndexed && picture.hasAlphaChannel() && isAnySeenThrough();
        m_corner = !m_isIndexed ? m_picture.pixel(0, 0) : 0;
    }

    bool isEmpty(const QRect& rect) const
    {
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            if (!isRunEmpty(y, rect.left(), rect.right())) {
                return false;
            }
        }
        return true;
    }

private:
    static QImage rowsOf(const QImage& picture)
    {
        return picture.format() == QImage::Format_Indexed8 ||
                       picture.format() == QImage::Format_ARGB32
                   ? picture
                   : picture.convertToFormat(QImage::Format_ARGB32);
    }

    bool isAnySeenThrough() const
    {
        for (int y = 0; y < m_picture.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(m_picture.constScanLine(y));
            if (std::any_of(row, row + m_picture.width(),
                            [](QRgb color) { return qAlpha(color) == 0; })) {
                return true;
            }
        }
        return false;
    }

    bool isRunEmpty(int y, int left, int right) const
    {
        const uchar* const line = m_picture.constScanLine(y);
        if (m_isIndexed) {
            return std::all_of(line + left, line + right + 1,
                               [this](uchar index) { return m_isEmptyIndex[index]; });
        }
        const auto* row = reinterpret_cast<const QRgb*>(line);
        return std::all_of(row + left, row + right + 1, [this](QRgb color) {
            return m_hasAlpha ? qAlpha(color) == 0 : color == m_corner;
        });
    }

    QImage m_picture;
    bool m_isIndexed = false;
    bool m_hasAlpha = false;
    bool m_isEmptyIndex[256] = {};
    QRgb m_corner = 0;
};

/// A part of a side: first pixel and number of pixels.
struct Run
{
    int first;
    int count;
};

/// The non-empty parts of a side.
QVector<Run> runsOf(int length, const std::function<bool(int)>& isEmpty)
{
    QVector<Run> runs;
    bool isInside = false;
    for (int i = 0; i < length; ++i) {
        if (isEmpty(i)) {
            isInside = false;
            continue;
        }
        if (!isInside) {
            runs.append({i, 0});
        }
        isInside = true;
        ++runs.last().count;
    }
    return runs;
}

class Cutter
{
public:
    Cutter(const QImage& picture, const SheetCut& cut, Sheet* sheet)
        : m_size(picture.size()), m_cut(cut), m_ground(picture), m_sheet(sheet)
    {
    }

    bool run(QString* error);

private:
    bool cutGrid(QString* error);
    bool cutGaps(QString* error);
    bool findCells(QSize* cell, QSize* counts, QString* error) const;
    void tellRest(QSize cell, QSize counts);
    void dropEmptyEnd();
    bool add(const QRect& rect, QString* error);

    QSize m_size;
    SheetCut m_cut;
    Ground m_ground;
    Sheet* m_sheet;
};

bool Cutter::run(QString* error)
{
    m_sheet->pages = QStringList{QString()};
    const bool isCut = m_cut.how == SheetCut::ByGaps ? cutGaps(error) : cutGrid(error);
    if (isCut && m_sheet->frames.isEmpty()) {
        *error = Text::tr("There is nothing on the sheet.");
        return false;
    }
    return isCut;
}

bool Cutter::add(const QRect& rect, QString* error)
{
    if (m_sheet->frames.size() == Sheet::MaxFrames) {
        *error = Text::tr("These are more than %1 frames. Cut larger ones.")
                     .arg(QString::number(Sheet::MaxFrames));
        return false;
    }
    SheetFrame frame;
    frame.rect = rect;
    frame.original = rect.size();
    m_sheet->frames.append(frame);
    return true;
}

/// Computes the size of a cell and the number of columns and rows.
bool Cutter::findCells(QSize* cell, QSize* counts, QString* error) const
{
    const QSize room = m_size - QSize(2 * m_cut.edge, 2 * m_cut.edge);
    const auto cellOf = [this](int length, int count) {
        return (length - (count - 1) * m_cut.gap) / qMax(count, 1);
    };
    const auto countOf = [this](int length, int side) {
        return side > 0 ? (length + m_cut.gap) / (side + m_cut.gap) : 0;
    };
    if (m_cut.how == SheetCut::BySize) {
        *cell = m_cut.cell;
        *counts = {countOf(room.width(), cell->width()), countOf(room.height(), cell->height())};
    } else {
        *counts = {m_cut.columns, m_cut.rows};
        *cell = {cellOf(room.width(), m_cut.columns), cellOf(room.height(), m_cut.rows)};
    }
    if (!cell->isEmpty() && !counts->isEmpty() && !room.isEmpty()) {
        return true;
    }
    *error = Text::tr("The picture of %1 by %2 has no room for such a cell. Choose a smaller one, "
                      "or fewer of them.")
                 .arg(QString::number(m_size.width()), QString::number(m_size.height()));
    return false;
}

bool Cutter::cutGrid(QString* error)
{
    QSize cell;
    QSize counts;
    if (!findCells(&cell, &counts, error)) {
        return false;
    }
    const qint64 all = qint64(counts.width()) * counts.height();
    const qint64 count = m_cut.count > 0 ? qMin<qint64>(m_cut.count, all) : all;
    for (qint64 i = 0; i < count; ++i) {
        const int across = int(m_cut.isColumnsFirst ? i / counts.height() : i % counts.width());
        const int down = int(m_cut.isColumnsFirst ? i % counts.height() : i / counts.width());
        const QPoint corner(m_cut.edge + across * (cell.width() + m_cut.gap),
                            m_cut.edge + down * (cell.height() + m_cut.gap));
        if (!add({corner, cell}, error)) {
            return false;
        }
    }
    if (m_cut.count <= 0) {
        dropEmptyEnd();
    }
    tellRest(cell, counts);
    return true;
}

void Cutter::dropEmptyEnd()
{
    QVector<SheetFrame>& frames = m_sheet->frames;
    const int before = frames.size();
    while (!frames.isEmpty() && m_ground.isEmpty(frames.last().rect)) {
        frames.removeLast();
    }
    const int dropped = before - frames.size();
    if (dropped > 0) {
        m_sheet->warnings.append(
            Text::tr("%n empty cell(s) at the end are left out.", nullptr, dropped));
    }
}

void Cutter::tellRest(QSize cell, QSize counts)
{
    const auto used = [this](int side, int count) {
        return 2 * m_cut.edge + count * side + (count - 1) * m_cut.gap;
    };
    const QSize rest =
        m_size - QSize(used(cell.width(), counts.width()), used(cell.height(), counts.height()));
    if (rest.width() > 0 || rest.height() > 0) {
        m_sheet->warnings.append(
            Text::tr("Some pixels are in no cell: %1 columns at the right, %2 rows at the bottom.")
                .arg(QString::number(rest.width()), QString::number(rest.height())));
    }
}

bool Cutter::cutGaps(QString* error)
{
    const QVector<Run> bands = runsOf(m_size.height(), [this](int y) {
        return m_ground.isEmpty({0, y, m_size.width(), 1});
    });
    for (const Run& band : bands) {
        const QVector<Run> pictures = runsOf(m_size.width(), [&](int x) {
            return m_ground.isEmpty({x, band.first, 1, band.count});
        });
        for (const Run& picture : pictures) {
            if (!add({picture.first, band.first, picture.count, band.count}, error)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

bool cutSheet(const QImage& picture, const SheetCut& cut, Sheet* sheet, QString* error)
{
    if (picture.isNull() || qMax(picture.width(), picture.height()) > Sheet::MaxSide) {
        *error = Text::tr("A sheet has up to %1 pixels across and down.")
                     .arg(QString::number(Sheet::MaxSide));
        return false;
    }
    return Cutter(picture, cut, sheet).run(error);
}

bool readCut(const QString& name, QSize picture, SheetCut* cut)
{
    static const QRegularExpression strip(QStringLiteral("_strip([0-9]{1,4})$"));
    static const QRegularExpression grid(QStringLiteral("[-_]([0-9]{1,4})x([0-9]{1,4})$"));
    const QString base = QFileInfo(name).completeBaseName();
    const int count = strip.match(base).captured(1).toInt();
    const QRegularExpressionMatch match = grid.match(base);
    const QSize told =
        count > 0 ? QSize(count, 1) : QSize(match.captured(1).toInt(), match.captured(2).toInt());
    if (told.isEmpty()) {
        return false;
    }
    const bool isSize = count == 0 && qMin(told.width(), told.height()) >= SmallestCell &&
                        picture.width() % told.width() == 0 &&
                        picture.height() % told.height() == 0;
    cut->how = isSize ? SheetCut::BySize : SheetCut::ByCount;
    cut->cell = isSize ? told : cut->cell;
    cut->columns = isSize ? cut->columns : told.width();
    cut->rows = isSize ? cut->rows : told.height();
    return true;
}

}  // namespace Family
