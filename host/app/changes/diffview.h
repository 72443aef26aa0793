#pragma once

#include <QPlainTextEdit>

namespace App {

/// Shows the lines that differ between two texts. Read-only.
class DiffView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit DiffView(QWidget* parent = nullptr);

    /// The differences, for `setPlainText()`, with the names above them. Limited to a readable
    /// length.
    static QString comparison(const QString& before, const QString& after,
                              const QString& beforeName, const QString& afterName);
};

}  // namespace App
