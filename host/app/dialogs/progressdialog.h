#pragma once

#include <zorv/core/progressreporter.h>

#include <QPointer>

class QProgressDialog;
class QWidget;

namespace App {

/// A piece of work as a dialog with a bar and a button that gives it up. It shows
/// itself when the work takes longer than a moment; from then on the window is
/// drawn and answers the desktop, and nothing in it can be clicked.
class ProgressDialog final : public Zorv::ProgressReporter
{
public:
    ProgressDialog(QWidget* parent, const QString& title);

    void update(int value, int maximum) override;
    bool isCanceled() const override;
    void finish() override;

private:
    ~ProgressDialog() override;

    QPointer<QProgressDialog> m_dialog;  ///< goes with its window, if that goes first
};

}  // namespace App
