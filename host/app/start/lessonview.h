#pragma once

#include <QDialog>

class QTextBrowser;

namespace App {

/// A page of the documentation, to read beside the window while working in it.
class LessonView : public QDialog
{
    Q_OBJECT

public:
    explicit LessonView(QWidget* parent);

    /// Shows a Markdown file with its pictures.
    void showPage(const QString& fileName);

private:
    QTextBrowser* m_text;
};

}  // namespace App
