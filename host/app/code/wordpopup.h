#pragma once

#include <QObject>

namespace Zorv {
class CodeEditor;
class CompletionModel;
}  // namespace Zorv

namespace App {

/// Opens the editor's completion popup at any position, with what grammar and project offer there,
/// and sets which word the chosen one replaces.
class WordPopup : public QObject
{
    Q_OBJECT

public:
    explicit WordPopup(Zorv::CodeEditor* editor);

    /// False if there is nothing to offer at the cursor.
    bool open();

private:
    Zorv::CodeEditor* m_editor;
    Zorv::CompletionModel* m_words;
};

}  // namespace App
