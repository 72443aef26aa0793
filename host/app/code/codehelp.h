#pragma once

#include "app/code/definitionjumps.h"

namespace App {

class WordPopup;

/// Help for writing code: word completion, explanations of words, jumps to definitions. Lives as
/// long as its editor.
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
