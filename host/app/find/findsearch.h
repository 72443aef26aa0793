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

/// Looks for something in the text of an editor, and replaces it.
class FindSearch : public QObject
{
    Q_OBJECT

public:
    /// The editor outlives the search.
    explicit FindSearch(Zorv::CodeEditor* editor, QObject* parent = nullptr);

    /// The editor shows another document, or none any more.
    void follow();

    /// Matches are only counted while the search is active.
    void setActive(bool active);

    void setPattern(const FindPattern& pattern);
    const FindPattern& pattern() const { return m_pattern; }

    /// True if there is something to look for and a text to look into.
    bool canFind() const;

    /// True if the selection is a match that the search has gone to.
    bool isMatchSelected() const;

    /// Goes to the first match from where the person has put the cursor; if there is none, the
    /// cursor goes back there.
    void findWhileTyping();

    /// Goes to the next match or the one before, around the ends of the text. A match of no
    /// length where the cursor stands is left behind.
    void next();
    void previous();

    /// Replaces the match that is selected, and goes to the next one.
    void replaceOne(const QString& with);

    /// Replaces all as one step of undo; cursor and view stay.
    void replaceAll(const QString& with);

    /// What there is to tell: "3 of 17", and what the last step has met with.
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
    MatchCounter::Place m_shown{-1, 0};  ///< the match that the search has gone to last
    QTextCursor m_origin;                ///< where the person has put the cursor
    QString m_note;
    int m_moving = 0;
    bool m_isActive = false;
};

}  // namespace App
