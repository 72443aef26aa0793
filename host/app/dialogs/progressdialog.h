#pragma once

#include <zorv/core/progressreporter.h>

#include <QPointer>

class QProgressDialog;
class QWidget;

namespace App {

/// A progress dialog with a cancel button. It appears if the work takes longer than a moment. From
/// then on the window is repainted and responds to the desktop, but nothing in it can be clicked.
class ProgressDialog final : public Zorv::ProgressReporter
{
public:
    ProgressDialog(QWidget* parent, const QString& title);

    void update(int value, int maximum) override;
    bool isCanceled() const override;
    void finish() override;

private:
    ~ProgressDialog() override;

    QPointer<QProgressDialog> m_dialog;  ///< destroyed with its window, if that goes first
};

}  // namespace App
