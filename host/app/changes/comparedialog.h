#pragma once

#include <QDialog>

namespace App {

/// Shows the lines that differ between a file and its open version.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    CompareDialog(QWidget* parent, const QString& title, const QString& before,
                  const QString& after);
};

}  // namespace App
