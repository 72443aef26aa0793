#include "app/code/codehelp.h"

#include "app/code/wordhover.h"
#include "app/code/wordpopup.h"

#include <zorv/editors/code/codeeditor.h>

namespace App {

CodeHelp::CodeHelp(Zorv::CodeEditor* editor, const JumpServices& services)
    : QObject(editor), m_tell(services.tell), m_words(new WordPopup(editor)),
      m_jumps(new DefinitionJumps(editor, services))
{
    new WordHover(editor);
}

void CodeHelp::completeWord()
{
    if (!m_words->open()) {
        m_tell(tr("There are no words to choose from at this place."));
    }
}

void CodeHelp::goToDefinition()
{
    m_jumps->goToDefinition();
}

void CodeHelp::goBack()
{
    m_jumps->goBack();
}

}  // namespace App
