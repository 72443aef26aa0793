#include "operations/media/diffpicture.h"

#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"

#include <QCoreApplication>
#include <QPainter>

namespace Operations {

using Family::FrameComposer;
using Family::FrameNode;

namespace {

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::DiffPicture)
};

constexpr int Gap = 8;  // pixels around each frame
const QColor LineColor(128, 128, 128);

/// A frame of either side, and its composer.
struct Cell
{
    const FrameNode* frame = nullptr;
    FrameComposer* composer = nullptr;
    int row = 0;
    int column = 0;
};

QVector<Cell> cellsOf(const QVector<FrameDiff>& diffs, const DiffSide& before,
                      const DiffSide& after, int* rows)
{
    QVector<Cell> cells;
    const QList<Zorv::FrameCode*> oldFrames = before.animation->frames();
    const QList<Zorv::FrameCode*> newFrames = after.animation->frames();
    const auto add = [&](const Zorv::FrameCode* frame, FrameComposer* composer, int column) {
        if (frame) {
            cells.append({static_cast<const FrameNode*>(frame), composer, *rows, column});
        }
    };
    for (const FrameDiff& diff : diffs) {
        if (diff.kind != DiffKind::Same) {
            add(oldFrames.value(diff.oldFrame), before.composer, 0);
            add(newFrames.value(diff.newFrame), after.composer, 1);
            ++*rows;
        }
    }
    return cells;
}

QImage ruledPicture(const QSize& cell, int rows)
{
    QImage picture(2 * cell.width() + 1, rows * (cell.height() + 1) - 1, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.fillRect(cell.width(), 0, 1, picture.height(), LineColor);
    for (int row = 1; row < rows; ++row) {
        painter.fillRect(0, row * (cell.height() + 1) - 1, picture.width(), 1, LineColor);
    }
    return picture;
}

}  // namespace

QImage diffPicture(const QVector<FrameDiff>& diffs, const DiffSide& before, const DiffSide& after,
                   QStringList* notes, QString* error)
{
    int rows = 0;
    const QVector<Cell> cells = cellsOf(diffs, before, after, &rows);
    QRect area;
    QString note;
    for (const Cell& cell : cells) {
        area |= cell.composer->bounds(*cell.frame, &note);
    }
    if (area.isEmpty()) {
        *error = Text::tr("Nothing can be drawn of the frames that differ.");
        return {};
    }
    const QSize size(area.width() + 2 * Gap, area.height() + 2 * Gap);
    if ((2 * qint64(size.width()) + 1) * (qint64(size.height()) + 1) * rows >
        FrameComposer::MaxPixels) {
        *error = Text::tr("The picture of the frames that differ would be too large.");
        return {};
    }
    QImage picture = ruledPicture(size, rows);
    for (const Cell& cell : cells) {
        note.clear();
        const QImage image = cell.composer->compose(*cell.frame, area, &note);
        if (!note.isEmpty() && !notes->contains(note)) {
            notes->append(note);
        }
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(cell.column * (size.width() + 1) + Gap,
                          cell.row * (size.height() + 1) + Gap, image);
    }
    return picture;
}

}  // namespace Operations
