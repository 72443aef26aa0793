#pragma once

#include <QPlainTextEdit>

namespace App {

/// Shows which lines differ between two texts. Nothing can be edited.
class DiffView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit DiffView(QWidget* parent = nullptr);

    /// The differences as `setPlainText()` takes them, not longer than somebody reads; the names
    /// stand above them.
    static QString comparison(const QString& before, const QString& after,
                              const QString& beforeName, const QString& afterName);
};

}  // namespace App
