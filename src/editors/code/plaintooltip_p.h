#pragma once

#include <QToolTip>

namespace Zorv {

/// Tool tips in plain text, even if the text looks like markup: messages quote lines of files.
namespace PlainToolTip {

/// Shows a text; an empty one hides the tool tip.
inline void show(const QPoint& globalPlace, const QString& text, QWidget* widget)
{
    const bool looksRich = Qt::mightBeRichText(text);
    QString html = text.toHtmlEscaped();
    html.replace(QLatin1Char('\n'), QLatin1String("<br>"));
    QToolTip::showText(globalPlace,
                       looksRich ? QLatin1String("<qt>") + html + QLatin1String("</qt>") : text,
                       widget);
}

}  // namespace PlainToolTip

}  // namespace Zorv
