#pragma once

#include "editors/framework/workspace.h"
#include "zorv_export.h"

#include <memory>

class QTabBar;
class QToolBar;

namespace Zorv {

class CodeDocument;
class CodeEditor;
class CodeWorkspacePrivate;

/// The central area of the window for code: one `CodeEditor`, a tab bar for the open documents
/// above it, and a tool bar with snippets and messages.
///
/// It owns the code actions (snippets, go to line, previous and next message, comment, folding) and
/// publishes them through `Interface` in the area "code". The host decides which documents are
/// open: it fills the tab bar and handles its signals. Needs an installed host. Main thread only.
class ZORV_EXPORT CodeWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit CodeWorkspace(QObject* parent = nullptr);

    /// Deletes the widget too, unless it has a parent by then.
    ~CodeWorkspace() override;

    /// "code".
    QString name() const override;
    QWidget* widget() const override;

    /// Loads the engine family's completion words and snippets from its data folder:
    /// "/completer.xml" and "/snippets". Reports a broken word file through `Dialogs`.
    void engineSwitched(bool isNew) override;

    void activate() override;
    void deactivate() override;

    /// Reads the settings "code_line_numbers", "code_highlight_line",
    /// "code_highlight_blocks", "code_folding_markers", "code_paren_matching", the
    /// colours "line", "block_range" and "paren_range", the text format "paren", and
    /// the font.
    void reconfig() override;
    void retranslate() override;

    /// Lets the user choose the document's encoding and reload its file.
    void statusClicked() override;

    /// The font of the settings "font_name" and "font_size"; 2 points larger; 2 points smaller.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

    /// Shows a document; null for none. A document that is left keeps its scroll position in its
    /// object name. When it is shown again, the view returns there, with the cursor at the start.
    void setDocument(CodeDocument* document);

    /// The parts; they live as long as the workspace. The host fills the tab bar.
    CodeEditor* editor() const;
    QTabBar* tabBar() const;
    QToolBar* toolBar() const;

    bool isActive() const;

    /// @name The actions as functions, for a host's own menus and for tests
    /// @{
    void goToLine();
    void nextError();
    void prevError();

    /// These stop at warnings too, because message lists treat warnings as deprecations.
    void nextDepr();
    void prevDepr();

    /// Comments out the selected lines, or the cursor's line. Removes the marks instead if the
    /// first line begins with one.
    void comment();
    void foldAll();
    void unfoldAll();

    /// Inserts the snippet of a row of `SnippetManager`, like the snippet box.
    void insertSnippet(int row);
    /// @}

signals:
    /// The shown document, if any, is about to be replaced or removed.
    void documentLeaves();

    /// Another document is shown, or none.
    void documentShown();

private:
    std::unique_ptr<CodeWorkspacePrivate> d;
};

}  // namespace Zorv
