#pragma once

#include <QWidget>

namespace Zorv {
class CodeEditor;
}

namespace App {

/// The underline of a clickable word in an editor. Transparent to the mouse.
class LinkMark : public QWidget
{
    Q_OBJECT

public:
    explicit LinkMark(Zorv::CodeEditor* editor);

    /// Underlines columns of a line; does nothing if the word is not visible.
    void showBelow(int line, int start, int end);

    /// Hides it and restores the text cursor shape of the mouse.
    void clear();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Zorv::CodeEditor* m_editor;
};

}  // namespace App
