#include "editors/code/completiondelegate_p.h"

#include "editors/code/completionmodel.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace Zorv {

namespace {

constexpr int Gap = 16;
constexpr int Margin = 4;
constexpr int WidestDescription = 480;

QString descriptionOf(const QModelIndex& index)
{
    return index.data(CompletionModel::DescriptionRole).toString();
}

/// A colour between text and background that is still easy to read.
QColor dimmed(const QColor& text, const QColor& ground)
{
    const auto mix = [](int a, int b) { return (a * 3 + b) / 4; };
    return {mix(text.red(), ground.red()), mix(text.green(), ground.green()),
            mix(text.blue(), ground.blue())};
}

}  // namespace

void CompletionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const
{
    QStyleOptionViewItem row = option;
    // The focus stays in the text, so draw the row as active without a focus frame.
    row.state &= ~QStyle::State_HasFocus;
    row.state |= QStyle::State_Active;
    QStyledItemDelegate::paint(painter, row, index);

    const QString description = descriptionOf(index);
    if (description.isEmpty()) {
        return;
    }
    const QFontMetrics metrics(option.font);
    const int word = metrics.horizontalAdvance(index.data().toString()) + Margin + Gap;
    const QRect place = row.rect.adjusted(word, 0, -Margin, 0);
    const bool isSelected = row.state & QStyle::State_Selected;
    const QPalette& colors = option.palette;
    painter->save();
    painter->setFont(option.font);
    painter->setPen(isSelected ? colors.color(QPalette::Active, QPalette::HighlightedText)
                               : dimmed(colors.color(QPalette::Active, QPalette::Text),
                                        colors.color(QPalette::Active, QPalette::Base)));
    painter->drawText(QStyle::visualRect(option.direction, row.rect, place),
                      int(Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine),
                      metrics.elidedText(description, Qt::ElideRight, place.width()));
    painter->restore();
}

QSize CompletionDelegate::sizeHint(const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    QSize size = QStyledItemDelegate::sizeHint(option, index);
    const QString description = descriptionOf(index);
    if (!description.isEmpty()) {
        const int width = QFontMetrics(option.font).horizontalAdvance(description);
        size.rwidth() += Gap + std::min(width, WidestDescription) + Margin;
    }
    return size;
}

}  // namespace Zorv
