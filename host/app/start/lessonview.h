#pragma once

#include <QDialog>

class QTextBrowser;

namespace App {

/// A page of the documentation, to be read beside the window while one works in it.
class LessonView : public QDialog
{
    Q_OBJECT

public:
    explicit LessonView(QWidget* parent);

    /// Shows a file of Markdown, with the pictures that it names.
    void showPage(const QString& fileName);

private:
    QTextBrowser* m_text;
};

}  // namespace App
