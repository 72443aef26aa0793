#pragma once

#include <QObject>

namespace App {

/// Shows all tool tips and labels of the application as plain text. They contain names and lines
/// from a game, and Qt would interpret markup in them, which could open other files.
///
/// Tips shown directly by `QToolTip::showText()` are not affected.
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
