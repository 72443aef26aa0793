#include "editors/snipman/snippetxml_p.h"

#include <QRegularExpression>

namespace Zorv {

namespace {

/// An XML reader stops at these characters, and the rest of the file would be lost.
QString withoutForbidden(QString text)
{
    static const QRegularExpression forbidden(
        QStringLiteral("[\\x{0}-\\x{8}\\x{b}\\x{c}\\x{e}-\\x{1f}\\x{fffe}\\x{ffff}]"));
    return text.remove(forbidden);
}

}  // namespace

QString xmlText(const QString& text)
{
    QString result = withoutForbidden(text);
    result.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    result.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    return result.replace(QLatin1String("]]>"), QLatin1String("]]&gt;"));
}

QString xmlAttribute(const QString& text)
{
    QString result = xmlText(text);
    result.replace(QLatin1Char('"'), QLatin1String("&quot;"));
    result.replace(QLatin1Char('\t'), QLatin1String("&#9;"));
    result.replace(QLatin1Char('\n'), QLatin1String("&#10;"));
    return result.replace(QLatin1Char('\r'), QLatin1String("&#13;"));
}

}  // namespace Zorv
