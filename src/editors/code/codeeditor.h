#pragma once

#include "zorv_export.h"

#include <QColor>
#include <QPlainTextEdit>
#include <QTextCharFormat>

#include <functional>
#include <memory>
#include <optional>

class QCompleter;
class QStringListModel;

namespace Zorv {

class CodeDocument;
class CodeEditorPrivate;

/// The text widget in which code files are shown and edited.
///
/// It shows a `CodeDocument` and reads all that it knows of the structure of the
/// text from the `CodeBlockData` of its lines: levels and folds, brackets,
/// messages. It parses nothing; a line without data has level 0 and neither
/// brackets nor messages. A gutter at its side has marks, line numbers and
/// folding markers. Main thread only.
class ZORV_EXPORT CodeEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// How text and gutter look.
    struct SyntaxFormatting
    {
        bool lineNumbers = true;
        bool markArea = false;  ///< a column for marks of messages, at the gutter's left edge
        bool reserved = false;  ///< without effect
        bool foldingMarkers = true;
        bool highlightCurrentLine = true;
        bool highlightBlocks = false;  ///< find the ranges around the cursor
        bool paintBlockRanges = true;  ///< paint those that were found behind the text
        bool parenMatching = true;
        QColor currentLineColor = QColor(Qt::yellow).lighter(160);
        QColor blockRangeColor;               ///< of the innermost range
        QTextCharFormat parenFormat;          ///< of two brackets that match
        QTextCharFormat parenMismatchFormat;  ///< of two that do not
        QTextCharFormat parenRangeFormat;     ///< of the text between them
    };

    /// A place of cursor and view; all from 0.
    struct LinePos
    {
        int line = 0;
        int column = 0;
        int scroll = 0;  ///< value of the vertical scroll bar
    };

    /// Columns of a line, from `start` to in front of `end`.
    struct WordRange
    {
        int start = 0;
        int end = 0;
    };

    /// Tells where the word at a cursor stands in its line; nothing if it knows of none there.
    using WordFinder = std::function<std::optional<WordRange>(const QTextCursor& cursor)>;

    /// Where in the view a line is to land.
    enum LineType { NearestLine = 0, TopLine = 1, CenterLine = 2 };

    explicit CodeEditor(QWidget* parent = nullptr);
    ~CodeEditor() override;

    /// Shows a document, null for none. It is not owned; one that dies while it is
    /// shown is let go of. Folds are kept in the document.
    void setDocument(CodeDocument* document);

    /// The document that is shown, or null.
    CodeDocument* codeDocument() const;

    void setSyntaxFormatting(const SyntaxFormatting& formatting);
    const SyntaxFormatting& syntaxFormatting() const;

    /// Finds the ranges around the cursor again, or drops them if they are
    /// switched off.
    void updateBlockHighlight();

    /// Puts cursor and view at a place. A line or column that is not there is the
    /// nearest one that is.
    void setCurrentLine(const LinePos& place);

    /// Puts the cursor at the start of a line, from 0, and the line into the view,
    /// unfolded if need be.
    void setCurrentLine(unsigned line, LineType type);

    /// Where cursor and view are.
    LinePos currentPlace() const;

    /// The height of the view in lines.
    int displayedLineCount() const;

    /// Folds what stands below a head, or shows it again. Nothing changes for a
    /// line that is no head. Showing lines around a folded part shows everything
    /// down to the end of the document.
    void toggleBlockVisible(const QTextBlock& block);

    /// Unfolds what the cursor's line hides, or folds the innermost range that it stands in.
    void toggleFold();

    /// Folds every head that is visible, from the top, or shows every hidden line. Takes
    /// time in proportion to the lines, and tells the layout once.
    void foldAll();
    void unfoldAll();

    /// Shows a line that a fold hides, with no more than it takes.
    void reveal(const QTextBlock& block);

    /// Swaps the selected lines, or that of the cursor, with the one above or below, as they are
    /// seen: a folded head goes with what it hides. One step of undo. Nothing at the ends of the
    /// text, and in a text that is only to be read.
    void moveLinesUp();
    void moveLinesDown();

    /// Takes a cursor out of a fold, upwards; with `ensure` into the view too.
    void moveCursorVisible(bool ensure);

    /// The first line of every range around the cursor, the outermost first, and
    /// the last lines, the innermost first; empty while none were found.
    QList<int> rangeStarts() const;
    QList<int> rangeEnds() const;

    /// Reads the words to complete from a file; docs/formats.md tells the format.
    /// False if it cannot be opened; one that is not there leaves no words. One that
    /// is broken leaves the words as they were, gives true, and is told by
    /// `completerError()`.
    bool completerFromFile(const QString& fileName);

    /// What was wrong with the last file, with line and column, for the person;
    /// empty for nothing.
    QString completerError() const;

    /// The completer, whose popup follows what the person types. A word that is chosen
    /// adds what it has more than was typed, unless there is a word finder.
    QCompleter* completer() const;

    /// With a finder, a word that is chosen takes the place of the whole word at the
    /// cursor: its case is right, and nothing is left of what stood there. Where the
    /// finder knows of none, that of what was typed. A blank then ends any word, and
    /// Return one that stands there whole: both close the popup and go to the text. An
    /// empty finder brings the adding back. It is asked while the popup is open, and
    /// must not edit.
    void setWordFinder(const WordFinder& finder);

    /// Opens the popup on words for the cursor's place, whatever was typed before.
    /// The model is not owned and must live until another one takes its place.
    void showCompletions(QStringListModel* words);

signals:
    /// The cursor has moved: its line as x, its column as y, from 0.
    void cursorChanged(QPoint place);

    /// The cursor has come to another line, from 0.
    void currentLineChanged(int line);

    /// The person has pressed the mouse in the column of marks, on a line from 0.
    void markClicked(int line);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

    /// The text as it stands, non-breaking blanks included.
    QMimeData* createMimeDataFromSelection() const override;

private:
    friend class CodeEditorPrivate;
    std::unique_ptr<CodeEditorPrivate> d;
};

}  // namespace Zorv
