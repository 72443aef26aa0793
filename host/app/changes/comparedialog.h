#pragma once

#include <QDialog>

namespace App {

/// Shows which lines differ between a file and what is open here.
class CompareDialog : public QDialog
{
    Q_OBJECT

public:
    CompareDialog(QWidget* parent, const QString& title, const QString& before,
                  const QString& after);
};

}  // namespace App
