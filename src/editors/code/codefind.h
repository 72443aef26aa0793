#pragma once

#include "editors/framework/findflag.h"
#include "zorv_export.h"

#include <QRegularExpression>
#include <QString>
#include <QVector>

namespace Zorv {

class CodeDocument;
class CodeEditor;

/// What a person looks for: a text as it stands, or a regular expression.
///
/// Expressions are those of `QRegularExpression`, with the whole text as one:
/// ^ and $ are its start and its end, and a dot takes line ends too; "(?m-s)" in
/// front makes them go by lines. A text to search is one of
/// `searchableText()`. A value; main thread only where a document takes part.
class ZORV_EXPORT CodeFind
{
public:
    using Match = QRegularExpressionMatch;

    /// `flags` are bits of `FindFlag`.
    explicit CodeFind(const QString& pattern = {}, unsigned flags = 0);

    /// False for an empty text and for an expression that does not compile; nothing
    /// is found then.
    bool isValid() const;

    /// What is wrong with an expression, for the person, and where in it, from 0.
    /// Empty and -1 for nothing.
    QString errorString() const;
    int errorOffset() const;

    /// A document's text with a line feed at each line end, and as long as it is.
    /// What is no valid UTF-16 is replaced, which no search could pass.
    static QString searchableText(const CodeDocument* document);

    /// The same of a text that no document has, as `FileText` reads it. For any thread.
    static QString searchableText(QString text);

    /// The first match that starts at `from` or behind it.
    Match next(const QString& text, int from) const;

    /// The last one that starts at `from` or before it. It may overlap others.
    Match previous(const QString& text, int from) const;

    /// All matches from the start on, none over another, in steps as large as the
    /// caller makes them.
    QRegularExpressionMatchIterator matches(const QString& text) const;

    /// A match of exactly that part of the text.
    Match matchOf(const QString& text, int start, int length) const;

    /// What takes the place of a match: `with`, where \1 to \99 stand for what the
    /// groups of an expression have captured.
    QString replacement(const Match& match, const QString& with) const;

    /// Selects a part of the text in an editor, unfolded and about in the middle of
    /// the view, which comes from above or with `backward` from below.
    static void select(CodeEditor* editor, int start, int length, bool backward);

    /// Replaces the editor's selection, which `match` must be of, and puts the cursor
    /// behind what took its place.
    void replaceSelection(CodeEditor* editor, const Match& match, const QString& with) const;

    /// A part of a text, and what takes its place.
    struct Replacement
    {
        int start;
        int length;
        QString text;
    };

    /// Replaces parts of a document as one step of undo, which has the title. They stand in
    /// order and none over another. Only they are edited; with none nothing changes.
    static void replaceParts(CodeDocument* document, const QVector<Replacement>& parts,
                             const QString& title);

    /// Replaces every match in the editor's document, whose text `text` must be, as
    /// one step of undo, and gives their number. The result is that of
    /// `QString::replace()`, but only the matches are edited: cursor, folds, nodes
    /// and the first line of the view stay. Without a match nothing changes.
    int replaceAll(CodeEditor* editor, const QString& text, const QString& with) const;

private:
    QRegularExpression m_expression;
};

}  // namespace Zorv
