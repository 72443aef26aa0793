#pragma once

#include <QToolTip>

namespace Zorv {

/// Tool tips whose text is no markup, whatever it looks like: messages quote lines of files.
namespace PlainToolTip {

/// Shows a text, or with an empty one nothing.
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
