#pragma once

#include "app/code/definitionjumps.h"

namespace App {

class WordPopup;

/// What helps a person to write: words to complete, what a word means, jumps to what it
/// names. Lives as long as the editor that it works on.
class CodeHelp : public QObject
{
    Q_OBJECT

public:
    CodeHelp(Zorv::CodeEditor* editor, const JumpServices& services);

    /// @name The actions, at the cursor
    /// @{
    void completeWord();
    void goToDefinition();
    void goBack();
    /// @}

private:
    std::function<void(const QString&)> m_tell;
    WordPopup* m_words;
    DefinitionJumps* m_jumps;
};

}  // namespace App
