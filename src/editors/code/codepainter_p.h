#pragma once

class QPaintEvent;

namespace Zorv {

class CodeEditorPrivate;

/// Paints the text of a `CodeEditor` with all that belongs to it. One object
/// paints one event.
class CodePainter
{
public:
    explicit CodePainter(CodeEditorPrivate* editor) : m_editor(editor) {}

    void paint(QPaintEvent* event);

private:
    CodeEditorPrivate* m_editor;
};

}  // namespace Zorv
