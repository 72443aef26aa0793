#pragma once

#include "editors/framework/findflag.h"
#include "zorv_export.h"

#include <QRegularExpression>
#include <QString>
#include <QVector>

namespace Zorv {

class CodeDocument;
class CodeEditor;

/// A search pattern: literal text or a regular expression.
///
/// Expressions are `QRegularExpression`s that match against the whole text at once: ^ and $ are its
/// start and end, and a dot also matches line ends. A leading "(?m-s)" makes them work line by
/// line. Texts to search come from `searchableText()`. A value type; main thread only for functions
/// with a document.
class ZORV_EXPORT CodeFind
{
public:
    using Match = QRegularExpressionMatch;

    /// `flags` are bits of `FindFlag`.
    explicit CodeFind(const QString& pattern = {}, unsigned flags = 0);

    /// False for an empty pattern and for an expression that does not compile. Such a search finds
    /// nothing.
    bool isValid() const;

    /// The error in an expression for the user, and its offset from 0. Empty and -1 if there is no
    /// error.
    QString errorString() const;
    int errorOffset() const;

    /// The text of a document with line feeds as line ends; the length does not change. Invalid
    /// UTF-16 is replaced, because no search could get past it.
    static QString searchableText(const CodeDocument* document);

    /// The same for a plain text, as `FileText` reads it. Any thread.
    static QString searchableText(QString text);

    /// The first match that starts at or after `from`.
    Match next(const QString& text, int from) const;

    /// The last match that starts at or before `from`. It may overlap others.
    Match previous(const QString& text, int from) const;

    /// All matches from the start of the text, without overlaps. The iterator finds them lazily.
    QRegularExpressionMatchIterator matches(const QString& text) const;

    /// A match of exactly this part of the text.
    Match matchOf(const QString& text, int start, int length) const;

    /// The replacement for a match: `with`, where \1 to \99 stand for the captured groups of an
    /// expression.
    QString replacement(const Match& match, const QString& with) const;

    /// Selects a part of the text in an editor, unfolds it, and scrolls it to about the middle of
    /// the view: from above, or from below with `backward`.
    static void select(CodeEditor* editor, int start, int length, bool backward);

    /// Replaces the editor's selection, which must be `match`, and puts the cursor after the
    /// replacement.
    void replaceSelection(CodeEditor* editor, const Match& match, const QString& with) const;

    /// A part of a text and its replacement.
    struct Replacement
    {
        int start;
        int length;
        QString text;
    };

    /// Replaces parts of a document in one undo step with this title. The parts must be in order
    /// and must not overlap. Only they are edited; an empty list changes nothing.
    static void replaceParts(CodeDocument* document, const QVector<Replacement>& parts,
                             const QString& title);

    /// Replaces every match in the editor's document in one undo step, and returns their number.
    /// `text` must be the document's text. The result equals `QString::replace()`, but only the
    /// matches are edited, so cursor, folds, nodes and the first visible line stay. Without a match
    /// nothing changes.
    int replaceAll(CodeEditor* editor, const QString& text, const QString& with) const;

private:
    QRegularExpression m_expression;
};

}  // namespace Zorv
