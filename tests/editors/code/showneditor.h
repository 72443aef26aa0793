#pragma once

#include "support/testgrammar.h"

#include "code/codedoc/codeblockdata.h"
#include "editors/code/codeeditor.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QtTest>

/// A code editor on the screen, with one document of the test grammar.
class ShownEditor
{
public:
    explicit ShownEditor(const QString& text = {}) : document(text)
    {
        QApplication::setCursorFlashTime(0);
        QFont font(QStringLiteral("DejaVu Sans Mono"), 10);
        font.setStyleHint(QFont::Monospace);
        document.setDefaultFont(font);
        editor.setFont(font);
        editor.setLineWrapMode(QPlainTextEdit::NoWrap);
        editor.resize(500, 300);
        editor.setDocument(&document);
        editor.show();
        editor.activateWindow();
        editor.setFocus();
        (void)QTest::qWaitForWindowActive(&editor);
    }

    QTextBlock line(int number) const { return editor.document()->findBlockByNumber(number); }
    QStringList text() const { return document.text().split(QLatin1Char('\n')); }

    /// A character a line: "." visible, "h" hidden.
    QString visibility() const
    {
        QString marks;
        for (QTextBlock b = editor.document()->begin(); b.isValid(); b = b.next()) {
            marks += QLatin1Char(b.isVisible() ? '.' : 'h');
        }
        return marks;
    }

    void toggle(std::initializer_list<int> lines)
    {
        for (const int number : lines) {
            editor.toggleBlockVisible(line(number));
        }
    }

    /// A negative column counts from the end: -1 is behind the last character.
    void putCursor(int number, int column)
    {
        QTextCursor cursor(line(number));
        const int last = line(number).length() - 1;
        cursor.setPosition(line(number).position() + (column < 0 ? last + 1 + column : column));
        editor.setTextCursor(cursor);
    }

    QWidget* viewport() const { return editor.viewport(); }
    QWidget* gutter() const
    {
        for (QWidget* child : editor.findChildren<QWidget*>()) {
            if (QByteArray(child->metaObject()->className()) == "Zorv::CodeEditorExtraArea") {
                return child;
            }
        }
        return nullptr;
    }

    /// The middle of a line's strip in the gutter, at `x`, from the right if negative.
    QPoint inGutter(int number, int x) const
    {
        const QRect cursor = editor.cursorRect(QTextCursor(line(number)));
        return {x < 0 ? gutter()->width() + x : x, cursor.center().y()};
    }

    /// The middle of the box behind a folded line.
    QPoint box(int number) const
    {
        QTextCursor end(line(number));
        end.movePosition(QTextCursor::EndOfBlock);
        const QRect cursor = editor.cursorRect(end);
        const int width = editor.fontMetrics().horizontalAdvance(QStringLiteral(" ... "));
        return {cursor.left() + 12 + width / 2, cursor.center().y()};
    }

    GrammarDocument document;
    Zorv::CodeEditor editor;
};

/// What is wrong with the folds of a text, for a person; empty for nothing. Whatever is hidden
/// stands right below a visible line that can show it again.
inline QString faultOfFolds(const QTextDocument* document)
{
    const auto levelOf = [](const QTextBlock& block) {
        const Zorv::CodeBlockData* data = Zorv::CodeBlockData::testBlockData(block);
        return data ? data->foldingIndent() : 0;
    };
    QTextBlock head;
    for (QTextBlock b = document->begin(); b.isValid(); b = b.next()) {
        const QString line = QStringLiteral("line %1 ").arg(b.blockNumber());
        if (b.isVisible() != (b.lineCount() > 0)) {
            return line + QStringLiteral("takes room though hidden, or none though visible");
        }
        if (b.isVisible()) {
            head = b;
        } else if (!head.isValid() || levelOf(b) <= levelOf(head)) {
            return line + QStringLiteral("is hidden below no head");
        }
    }
    return document->lastBlock().isVisible() ? QString() : QStringLiteral("the end is hidden");
}
