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
/// It shows a `CodeDocument`. Everything about the structure of the text (folding levels, folds,
/// brackets, messages) comes from the `CodeBlockData` of the lines. The widget parses nothing: a
/// line without data has level 0, no brackets and no messages. A gutter at the side shows marks,
/// line numbers and folding markers. Main thread only.
class ZORV_EXPORT CodeEditor : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// How text and gutter look.
    struct SyntaxFormatting
    {
        bool lineNumbers = true;
        bool markArea = false;  ///< column for message marks, left edge of the gutter
        bool reserved = false;  ///< has no effect
        bool foldingMarkers = true;
        bool highlightCurrentLine = true;
        bool highlightBlocks = false;  ///< compute the block ranges around the cursor
        bool paintBlockRanges = true;  ///< paint the computed ranges behind the text
        bool parenMatching = true;
        QColor currentLineColor = QColor(Qt::yellow).lighter(160);
        QColor blockRangeColor;               ///< innermost range
        QTextCharFormat parenFormat;          ///< matching brackets
        QTextCharFormat parenMismatchFormat;  ///< mismatched brackets
        QTextCharFormat parenRangeFormat;     ///< text between the brackets
    };

    /// Position of cursor and view; all numbers start at 0.
    struct LinePos
    {
        int line = 0;
        int column = 0;
        int scroll = 0;  ///< value of the vertical scroll bar
    };

    /// A range of columns in a line: `start` inclusive, `end` exclusive.
    struct WordRange
    {
        int start = 0;
        int end = 0;
    };

    /// Returns the range of the word at a cursor within its line, or nothing if there is no known
    /// word.
    using WordFinder = std::function<std::optional<WordRange>(const QTextCursor& cursor)>;

    /// Where in the view a line should appear.
    enum LineType { NearestLine = 0, TopLine = 1, CenterLine = 2 };

    explicit CodeEditor(QWidget* parent = nullptr);
    ~CodeEditor() override;

    /// Shows a document; null for none. The document is not owned. If it dies while it is shown,
    /// the editor drops it. The folds are stored in the document.
    void setDocument(CodeDocument* document);

    /// The document that is shown, or null.
    CodeDocument* codeDocument() const;

    void setSyntaxFormatting(const SyntaxFormatting& formatting);
    const SyntaxFormatting& syntaxFormatting() const;

    /// Recomputes the block ranges around the cursor, or clears them if they are switched off.
    void updateBlockHighlight();

    /// Moves cursor and view to a position. A missing line or column is replaced by the nearest
    /// existing one.
    void setCurrentLine(const LinePos& place);

    /// Moves the cursor to the start of a line, from 0, and scrolls the line into view. Unfolds if
    /// necessary.
    void setCurrentLine(unsigned line, LineType type);

    /// The current position of cursor and view.
    LinePos currentPlace() const;

    /// The height of the view in lines.
    int displayedLineCount() const;

    /// Folds or unfolds the lines below a head. Does nothing for a line that is not a head.
    /// Unfolding lines that contain a folded part shows everything down to the end of the document.
    void toggleBlockVisible(const QTextBlock& block);

    /// Unfolds the cursor's line if it hides lines, else folds the innermost range around it.
    void toggleFold();

    /// Folds every visible head, from the top; or shows every hidden line. Takes time linear in the
    /// number of lines, and updates the layout only once.
    void foldAll();
    void unfoldAll();

    /// Shows a line that a fold hides, and opens no more folds than necessary.
    void reveal(const QTextBlock& block);

    /// Swaps the selected lines, or the cursor's line, with the line above or below as seen on the
    /// screen: a folded head moves together with the lines that it hides. One undo step. Does
    /// nothing at the ends of the text, or if the text is read-only.
    void moveLinesUp();
    void moveLinesDown();

    /// Moves a cursor that is inside a fold up to a visible line; `ensure` also scrolls it into
    /// view.
    void moveCursorVisible(bool ensure);

    /// The first lines of the ranges around the cursor, outermost first; and their last lines,
    /// innermost first. Empty until the ranges are computed.
    QList<int> rangeStarts() const;
    QList<int> rangeEnds() const;

    /// Reads the completion words from a file; docs/formats.md describes the format. False if the
    /// file cannot be opened; a missing file leaves no words. A broken file leaves the old words
    /// unchanged and returns true; `completerError()` has the error.
    bool completerFromFile(const QString& fileName);

    /// The error in the last file for the user, with line and column; empty if there was none.
    QString completerError() const;

    /// The completer. Its popup follows the typing. Accepting a word appends the part that was not
    /// typed yet, unless there is a word finder.
    QCompleter* completer() const;

    /// With a finder, an accepted word replaces the whole word at the cursor: it gets the right
    /// case, and nothing of the old word remains. Where the finder knows no word, the typed part is
    /// replaced. With a finder, a blank also ends any word, and Return ends a word that is already
    /// complete: both close the popup and go to the text. An empty finder restores appending. The
    /// finder is called while the popup is open, and must not edit.
    void setWordFinder(const WordFinder& finder);

    /// Opens the popup with words for the cursor's position, whatever was typed before. The model
    /// is not owned and must live until another one replaces it.
    void showCompletions(QStringListModel* words);

signals:
    /// The cursor has moved; x is its line, y its column, from 0.
    void cursorChanged(QPoint place);

    /// The cursor has moved to another line, from 0.
    void currentLineChanged(int line);

    /// The user pressed the mouse in the mark column, on a line from 0.
    void markClicked(int line);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool viewportEvent(QEvent* event) override;

    /// The text unchanged, including non-breaking spaces.
    QMimeData* createMimeDataFromSelection() const override;

private:
    friend class CodeEditorPrivate;
    std::unique_ptr<CodeEditorPrivate> d;
};

}  // namespace Zorv
