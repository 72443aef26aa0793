#pragma once

#include <QWidget>

namespace Zorv {
class CodeEditor;
}

namespace App {

/// The line below a word of an editor that can be clicked. The mouse goes through it.
class LinkMark : public QWidget
{
    Q_OBJECT

public:
    explicit LinkMark(Zorv::CodeEditor* editor);

    /// Underlines columns of a line; nothing of a word that is not in the view.
    void showBelow(int line, int start, int end);

    /// Hides it, and brings back the mouse pointer of a text.
    void clear();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Zorv::CodeEditor* m_editor;
};

}  // namespace App
