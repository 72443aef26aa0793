#pragma once

#include "core/progressreporter.h"

#include <QProgressDialog>

namespace App {

/// A piece of work as a dialog with a bar. It shows itself when the work takes
/// long, and cannot be given up.
class ProgressDialog final : public Zorv::ProgressReporter
{
public:
    ProgressDialog(QWidget* parent, const QString& title);

    void update(int value, int maximum) override;
    void finish() override;

private:
    ~ProgressDialog() override = default;

    QProgressDialog m_dialog;
};

}  // namespace App
