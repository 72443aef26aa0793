#pragma once

#include "app/find/matchcounter.h"
#include "operations/find/findpattern.h"

#include <zorv/editors/code/codefindtext.h>

#include <QObject>
#include <QTextCursor>

class QTimer;

namespace Zorv {
class CodeEditor;
}

namespace App {

using Operations::FindPattern;

/// Searches and replaces in the text of an editor.
class FindSearch : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives the search.
    explicit FindSearch(Zorv::CodeEditor* editor, QObject* parent = nullptr);

    /// Call when the editor shows another document, or none.
    void follow();

    /// Matches are only counted while the search is active.
    void setActive(bool active);

    void setPattern(const FindPattern& pattern);
    const FindPattern& pattern() const { return m_pattern; }

    /// True if there is a pattern, and a text to search.
    bool canFind() const;

    /// True if the selection is a match found by this search.
    bool isMatchSelected() const;

    /// Goes to the first match from where the user put the cursor, else from the start of the text.
    /// Without a match, the cursor returns there.
    void findWhileTyping();

    /// Goes to the next or previous match, wrapping around. Skips an empty match at the cursor.
    void next();
    void previous();

    /// Replaces the selected match and goes to the next one.
    void replaceOne(const QString& with);

    /// Replaces all matches as one undo step; cursor and view do not move.
    void replaceAll(const QString& with);

    /// Status text: "3 of 17", and the result of the last step.
    QString state() const;

signals:
    void stateChanged();

private:
    void textChanged();
    void cursorMoved();
    void countAgain();
    MatchCounter::Place placeBefore(int start);
    bool goTo(const MatchCounter::Place& place, bool backward);
    bool isAtEmptyMatch() const;
    QString countText() const;

    Zorv::CodeEditor* m_editor;
    QTimer* m_recount;
    Zorv::CodeFindText m_text;
    FindPattern m_pattern;
    MatchCounter m_counter;
    MatchCounter::Place m_shown{-1, 0};  ///< the match found last
    QTextCursor m_origin;                ///< where the user put the cursor
    QString m_note;
    int m_moving = 0;
    bool m_isActive = false;
};

}  // namespace App
