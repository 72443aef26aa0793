#pragma once

#include <QDoubleSpinBox>

namespace Zorv {

/// Limit for integer and real snippet values: from minus this to this.
constexpr int MaxSnippetNumber = 99999999;

/// A number formatted for code: decimal point, no exponent, as few digits as possible.
QString snippetNumber(double value);

/// Shows a number without trailing zeros, however many decimals are allowed.
class SnippetNumberBox : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit SnippetNumberBox(QWidget* parent = nullptr);

    QString textFromValue(double value) const override;
};

}  // namespace Zorv
