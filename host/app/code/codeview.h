#pragma once

#include <QObject>

class QVBoxLayout;
class QWidget;

namespace Family {
class FamilyDocument;
}

namespace Zorv {
class CodeEditor;
class CodeWorkspace;
}  // namespace Zorv

namespace App {

class CodeTextEditor;
class DocumentTabs;
class FindBar;

/// The texts in the middle of the window: the library's code workspace, the editor that
/// works in it, the tabs of the open texts, and the bars below.
class CodeView : public QObject
{
    Q_OBJECT

public:
    /// Publishes the tools of code: the host must know the window by then. The widget is
    /// the window's to place.
    explicit CodeView(QObject* parent = nullptr);
    ~CodeView() override;

    /// What stands in the middle of the window.
    QWidget* widget() const { return m_widget; }

    /// Puts a bar below the text.
    void addBar(QWidget* bar);

    Zorv::CodeWorkspace* workspace() const { return m_workspace; }
    CodeTextEditor* textEditor() const { return m_textEditor; }
    DocumentTabs* tabs() const { return m_tabs; }
    FindBar* findBar() const { return m_findBar; }

    /// The one in which all texts are shown, whether there is a text or not.
    Zorv::CodeEditor* editor() const;

    /// Completes what the workspace has taken from the settings.
    void reconfig();

signals:
    /// The cursor of the text in front has moved.
    void cursorMoved();

    /// The cursor has come to another line, or another text to the front.
    void lineChanged(int line);

    /// What can be done with the text in front has changed.
    void stateChanged();

private:
    void setUpEditor();
    void showFront(const Family::FamilyDocument* document);

    QWidget* m_widget;
    QVBoxLayout* m_layout;
    Zorv::CodeWorkspace* m_workspace;
    CodeTextEditor* m_textEditor;
    DocumentTabs* m_tabs;
    FindBar* m_findBar;
};

}  // namespace App
