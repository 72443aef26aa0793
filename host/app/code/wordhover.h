#pragma once

#include <QObject>

class QHelpEvent;

namespace Zorv {
class CodeEditor;
}

namespace App {

/// Tells in a tool tip what the word under the mouse means. Where the editor has a message
/// of its own, that one is shown.
class WordHover : public QObject
{
    Q_OBJECT

public:
    explicit WordHover(Zorv::CodeEditor* editor);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool show(const QHelpEvent* event);

    Zorv::CodeEditor* m_editor;
};

}  // namespace App
