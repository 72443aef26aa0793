#pragma once

#include <QObject>
#include <QPointer>
#include <QTextCursor>
#include <QVector>

#include <functional>

class QMouseEvent;
class QPoint;

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class CodeEditor;
}

namespace App {

class LinkMark;
struct TextPosition;

/// What jumps need from the window.
struct JumpServices
{
    /// Brings a document to the front, with the cursor at a position counted from 0.
    std::function<void(Family::FamilyDocument* document, int line, int column)> show;

    /// Opens a file of the game and brings its text to the front; false on failure.
    std::function<bool(const QString& fileName)> open;

    /// Shows a sound of the current project in the middle of the window, by its row.
    std::function<void(int row)> showSound;

    /// Shows the user a temporary message.
    std::function<void(const QString& text)> tell;
};

/// Jumps from a name to its definition, and back: by a shortcut at the cursor, or by Ctrl+click.
/// With Ctrl held, words that can be clicked are underlined.
class DefinitionJumps : public QObject
{
    Q_OBJECT

public:
    DefinitionJumps(Zorv::CodeEditor* editor, const JumpServices& services);

    /// From the word at the cursor.
    void goToDefinition();

    /// Returns to where the last jump began; shows a message if there was none.
    void goBack();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The start of a jump. The cursor moves with edits as long as the text is open.
    struct Place
    {
        QPointer<Family::FamilyDocument> document;
        QTextCursor cursor;
        QString fileName;
        int line;
        int column;
    };

    bool filterMouse(QEvent* event);
    void mark(const QPoint& point);
    void jumpFrom(const TextPosition& place);
    bool openFile(const QString& fileName);
    void remember();
    bool returnTo(const Place& place);

    Zorv::CodeEditor* m_editor;
    JumpServices m_services;
    LinkMark* m_mark;
    QVector<Place> m_history;
};

}  // namespace App
