#pragma once

#include <QDoubleSpinBox>

namespace Zorv {

/// Whole numbers and numbers of a snippet lie between this and its negative.
constexpr int MaxSnippetNumber = 99999999;

/// A number as code has it: with a point, without an exponent, and no more digits than
/// it takes.
QString snippetNumber(double value);

/// Shows a number without zeros at its end, however many digits there is room for.
class SnippetNumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SnippetNumberBox(QWidget* parent = nullptr);

    QString textFromValue(double value) const override;
};

}  // namespace Zorv
