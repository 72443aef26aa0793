#include "app/search/hitdelegate.h"

#include "app/look/theme.h"
#include "app/search/hitmodel.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace App {

namespace {

QTextLayout::FormatRange rangeOf(int start, int length, const QTextCharFormat& format)
{
    QTextLayout::FormatRange range;
    range.start = start;
    range.length = length;
    range.format = format;
    return range;
}

QTextCharFormat formatOf(const QStyleOptionViewItem& option, Theme::Colour colour)
{
    QTextCharFormat format;
    if (!(option.state & QStyle::State_Selected)) {
        format.setForeground(Theme::colour(colour));
    }
    return format;
}

void drawLine(QPainter* painter, const QStyleOptionViewItem& option, const QRect& place,
              const QString& text, const QVector<QTextLayout::FormatRange>& formats)
{
    QTextLayout layout(text, option.font);
    QTextOption oneLine(Qt::AlignLeft);
    oneLine.setWrapMode(QTextOption::NoWrap);
    oneLine.setTextDirection(Qt::LeftToRight);
    layout.setTextOption(oneLine);
    layout.setFormats(formats);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const auto role =
        option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text;
    painter->save();
    painter->setClipRect(place);
    painter->setPen(option.palette.color(role));
    layout.draw(
        painter,
        QPointF(place.left(), place.top() + (place.height() - layout.boundingRect().height()) / 2));
    painter->restore();
}

}  // namespace

QString HitDelegate::replacementOf(const QString& line, int start, int length) const
{
    const QString with = m_pattern.replacement(m_with);
    const Zorv::CodeFind::Match match = m_pattern.find().matchOf(line, start, length);
    QString text = match.hasMatch() ? m_pattern.find().replacement(match, with) : with;
    return text.replace(QLatin1Char('\n'), QChar(0x21b5));
}

void HitDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                        const QModelIndex& index) const
{
    const auto* model = static_cast<const HitModel*>(index.model());
    const Operations::FindHit* hit = model->hitAt(index);
    if (!hit) {
        QStyledItemDelegate::paint(painter, given, index);
        return;
    }
    QStyleOptionViewItem option = given;
    initStyleOption(&option, index);
    option.text.clear();
    const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
    option.text = QStringLiteral(" ");
    option.features |= QStyleOptionViewItem::HasDisplay;
    const QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget);

    const QString number = QStringLiteral("%1: ").arg(hit->line + 1);
    int blanks = 0;
    while (blanks < std::min(hit->shownStart, hit->shown.size()) &&
           hit->shown.at(blanks).isSpace()) {
        ++blanks;
    }
    QString text = number + hit->shown.mid(blanks);
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    const int start = number.size() + hit->shownStart - blanks;
    const int length = std::min(hit->length, text.size() - start);
    QTextCharFormat found = formatOf(option, Theme::PlaceText);
    found.setFontWeight(QFont::Bold);
    const bool isReplaced =
        !m_with.isNull() && index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
    if (isReplaced) {
        found = formatOf(option, Theme::RemovedText);
        found.setFontStrikeOut(true);
    }
    QVector<QTextLayout::FormatRange> formats{rangeOf(start, length, found)};
    if (isReplaced) {
        const QString with = replacementOf(hit->shown, hit->shownStart, hit->length);
        text.insert(start + length, with);
        QTextCharFormat comes = formatOf(option, Theme::AddedText);
        comes.setFontWeight(QFont::Bold);
        formats.append(rangeOf(start + length, with.size(), comes));
    }
    drawLine(painter, option, place.adjusted(2, 0, 0, 0), text, formats);
}

}  // namespace App
