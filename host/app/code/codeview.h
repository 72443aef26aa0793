#pragma once

#include "app/window/part.h"

#include <QObject>

class QSplitter;
class QVBoxLayout;
class QWidget;

namespace Zorv {
class CodeEditor;
class CodeWorkspace;
}  // namespace Zorv

namespace App {

class CodeHelp;
class CodeTextEditor;
class DocumentTabs;
class FindBar;
class TextEditor;
struct WindowServices;

/// The texts in the middle of the window: the library's code workspace, the editors that work in
/// it, the tabs of the open texts, and the bars below. It tells the parts of the window which text
/// is in front and where its cursor is.
class CodeView : public QObject, public Part
{
    Q_OBJECT

public:
    /// Publishes the tools of code: the host must know the window by then. The texts go to the
    /// end of `page`, which is what stands in the middle of the window with them.
    CodeView(const WindowServices& services, QSplitter* page);
    ~CodeView() override;

    Zorv::CodeWorkspace* workspace() const { return m_workspace; }
    CodeTextEditor* textEditor() const { return m_textEditor; }
    DocumentTabs* tabs() const { return m_tabs; }
    FindBar* findBar() const { return m_findBar; }
    CodeHelp* help() const { return m_help; }

    /// The one in which all texts are shown, whether there is a text or not.
    Zorv::CodeEditor* editor() const;

    /// Takes another editor in, not owned, for the texts that it wants; to be added to the window,
    /// with `commands()`, as well.
    void addEditor(TextEditor* editor);

    /// Where the window does more than the library's editor.
    CommandRows commands();

    /// See `showDocument()` and the others of `Jumps`.
    void openText(Family::FamilyDocument* document);
    void showPlace(Family::FamilyDocument* document, int line, int column, int length);
    void moveCursor(int line);

    QVector<ActionRow> actions() override;
    void actionsMade() override;
    void forgetProject(Family::FamilyProject* project) override;
    void gameChanged() override;
    QVector<PanelPlace> places() override;

    /// Brings the editor forward that wants the text in front now, in place of another one.
    void updateState() override;
    void reconfig() override;

private:
    void setUpEditor();
    void showFront(Family::FamilyDocument* document);
    void cursorMoved();
    void cursorRests();

    bool hasText() const;
    bool hasTexts() const;
    bool hasSelection() const;
    TextEditor* editorInFront() const;
    TextEditor* editorFor(const Family::FamilyDocument* document) const;
    void bringForward(Family::FamilyDocument* document);
    void save();
    void closeText();
    void close(Family::FamilyDocument* document);
    void changeEncoding();
    void showNext();
    void showPrevious();

    const WindowServices& m_services;
    QWidget* m_widget;
    Zorv::CodeWorkspace* m_workspace;
    CodeTextEditor* m_textEditor;
    QVector<TextEditor*> m_editors;
    DocumentTabs* m_tabs;
    FindBar* m_findBar;
    CodeHelp* m_help;
    bool m_isRestPending = false;
};

}  // namespace App
