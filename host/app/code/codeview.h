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

/// The texts in the middle of the window: the library's code workspace, its editors, the tabs of
/// the open texts, and the bars below. It notifies the parts of the window which text is in front
/// and where its cursor is.
class CodeView : public QObject, public Part
{
    Q_OBJECT

public:
    /// Publishes the code tools: the host must know the window by then. The texts are added at the
    /// end of `page`, the middle of the window.
    CodeView(const WindowServices& services, QSplitter* page);
    ~CodeView() override;

    Zorv::CodeWorkspace* workspace() const { return m_workspace; }
    CodeTextEditor* textEditor() const { return m_textEditor; }
    DocumentTabs* tabs() const { return m_tabs; }
    FindBar* findBar() const { return m_findBar; }
    CodeHelp* help() const { return m_help; }

    /// The one editor widget that shows all texts; exists even without a text.
    Zorv::CodeEditor* editor() const;

    /// Adds an editor, not owned, for the texts that it wants. Add it to the window too, with
    /// `commands()`.
    void addEditor(TextEditor* editor);

    /// Commands where the window does more than the library's editor.
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

    /// Brings the editor to the front that wants the current text now.
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
