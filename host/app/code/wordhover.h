#pragma once

#include <QObject>

class QHelpEvent;

namespace Zorv {
class CodeEditor;
}

namespace App {

/// Explains the word under the mouse in a tool tip. If the editor has a message of its own there,
/// it is shown instead.
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
