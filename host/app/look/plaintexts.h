#pragma once

#include <QObject>

namespace App {

/// Shows tool tips and labels of the whole application as plain texts, whatever they look like:
/// names and lines of a game stand in them, and markup could make Qt open other files.
///
/// Tips that are shown by `QToolTip::showText()` itself are not concerned.
class PlainTexts : public QObject
{
    Q_OBJECT

public:
    /// Installs itself on the application.
    explicit PlainTexts(QObject* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace App
