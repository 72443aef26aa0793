#include "app/code/wordpopup.h"

#include "app/code/textposition.h"
#include "app/session/gamesession.h"
#include "family/familydocument.h"
#include "family/meaning/completions.h"

#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/completionmodel.h>

#include <QTextBlock>

namespace App {

using Family::Completions;

namespace {

Completions completionsAt(const Zorv::CodeEditor* editor, const QTextCursor& cursor)
{
    const Family::FamilyDocument* document = documentIn(editor);
    return document ? Family::completionsAt(document, projectOf(document), cursor.blockNumber(),
                                            cursor.positionInBlock())
                    : Completions();
}

}  // namespace

WordPopup::WordPopup(Zorv::CodeEditor* editor)
    : QObject(editor), m_editor(editor), m_words(new Zorv::CompletionModel(this))
{
    editor->setWordFinder([editor](const QTextCursor& cursor) {
        const Completions found = completionsAt(editor, cursor);
        using Range = Zorv::CodeEditor::WordRange;
        return found.words.isEmpty() ? std::nullopt
                                     : std::make_optional(Range{found.start, found.end});
    });
}

bool WordPopup::open()
{
    const Completions found = completionsAt(m_editor, m_editor->textCursor());
    if (found.words.isEmpty() || m_editor->isReadOnly()) {
        return false;
    }
    QVector<Zorv::CompletionWord> words;
    for (const Family::WordOffer& offer : found.words) {
        words.append({offer.word, offer.description});
    }
    m_words->setWords(words);
    m_editor->showCompletions(m_words);
    return true;
}

}  // namespace App
