#pragma once

#include <QStyledItemDelegate>

namespace Zorv {

/// Draws a row of the completion popup: the word, followed by its dimmed description.
class CompletionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /// Wide enough for text, gap and description, up to a limit.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace Zorv
