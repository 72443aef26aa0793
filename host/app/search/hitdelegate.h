#pragma once

#include "operations/find/findpattern.h"

#include <QStyledItemDelegate>

namespace App {

/// Draws the lines of a `HitModel`: the match is highlighted, followed by its replacement if there
/// is one.
class HitDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setPattern(const Operations::FindPattern& pattern) { m_pattern = pattern; }

    /// Null: no replacement.
    void setReplacement(const QString& with) { m_with = with; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    QString replacementOf(const QString& line, int start, int length) const;

    Operations::FindPattern m_pattern;
    QString m_with;
};

}  // namespace App
