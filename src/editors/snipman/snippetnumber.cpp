#include "editors/snipman/snippetnumber_p.h"

#include <QLocale>

namespace Zorv {

namespace {

constexpr int Decimals = 6;

}  // namespace

QString snippetNumber(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

SnippetNumberBox::SnippetNumberBox(QWidget* parent) : QDoubleSpinBox(parent)
{
    setDecimals(Decimals);
    setRange(-MaxSnippetNumber, MaxSnippetNumber);
}

QString SnippetNumberBox::textFromValue(double value) const
{
    QLocale language = locale();
    language.setNumberOptions(QLocale::OmitGroupSeparator);
    return language.toString(value, 'f', QLocale::FloatingPointShortest);
}

}  // namespace Zorv
