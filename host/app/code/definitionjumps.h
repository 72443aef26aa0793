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

/// What the window does for jumps.
struct JumpServices
{
    /// Brings a document to the front, with the cursor at a place from 0.
    std::function<void(Family::FamilyDocument* document, int line, int column)> show;

    /// Opens a file of the game and brings its text to the front; false if it cannot.
    std::function<bool(const QString& fileName)> open;

    /// Brings a sound of the project in front into the middle of the window, by its row.
    std::function<void(int row)> showSound;

    /// Tells the person something in passing.
    std::function<void(const QString& text)> tell;
};

/// Jumps from a name to what it names, and back: by a key at the cursor, or by a click
/// with Ctrl held, which underlines what can be clicked.
class DefinitionJumps : public QObject
{
    Q_OBJECT

public:
    DefinitionJumps(Zorv::CodeEditor* editor, const JumpServices& services);

    /// From the word at the cursor.
    void goToDefinition();

    /// To where the last jump began; tells if there was none.
    void goBack();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Where a jump began. The cursor moves with edits, as long as the text is open.
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
