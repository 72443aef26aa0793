#pragma once

#include <QStyledItemDelegate>

namespace Zorv {

/// Draws a row of the popup of words: the word, and dimmed behind it what it is.
class CompletionDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

    /// As wide as the text and the gap and its description, up to a limit.
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace Zorv
