#pragma once

#include "operations/find/findpattern.h"

#include <QStyledItemDelegate>

namespace App {

/// Draws the lines that a `HitModel` has: the match stands out, and where something is to take its
/// place, that stands behind it, as it will be.
class HitDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void setPattern(const Operations::FindPattern& pattern) { m_pattern = pattern; }

    /// Null for nothing that takes the place of matches.
    void setReplacement(const QString& with) { m_with = with; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    QString replacementOf(const QString& line, int start, int length) const;

    Operations::FindPattern m_pattern;
    QString m_with;
};

}  // namespace App
