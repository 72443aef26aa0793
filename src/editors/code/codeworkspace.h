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

/// The middle of the window for code: one `CodeEditor`, a tab bar for the open
/// documents above it, and a tool bar with snippets and messages.
///
/// It owns the actions of code: snippets, go to line, previous and next message,
/// comment, folding, and publishes them through `Interface`, in the area "code".
/// Which documents are open is the host's business: it fills the tab bar and
/// answers its signals. Needs an installed host. Main thread only.
class ZORV_EXPORT CodeWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit CodeWorkspace(QObject* parent = nullptr);

    /// The widget goes too, if it has no parent by then.
    ~CodeWorkspace() override;

    /// "code".
    QString name() const override;
    QWidget* widget() const override;

    /// Takes the family's words and snippets from its data folder: "/completer.xml"
    /// and "/snippets". A broken file of words is told through `Dialogs`.
    void engineSwitched(bool isNew) override;

    void activate() override;
    void deactivate() override;

    /// Reads the settings "code_line_numbers", "code_highlight_line",
    /// "code_highlight_blocks", "code_folding_markers", "code_paren_matching", the
    /// colours "line", "block_range" and "paren_range", the text format "paren", and
    /// the font.
    void reconfig() override;
    void retranslate() override;

    /// Lets the person choose the encoding of the document, and read its file again.
    void statusClicked() override;

    /// The font of the settings "font_name" and "font_size"; 2 points more, 2 less.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

    /// Shows a document, null for none. One that is left keeps the place of the view
    /// in its object name, and comes back there with the cursor at the start.
    void setDocument(CodeDocument* document);

    /// The parts, which live as long as the workspace. The tabs are the host's to
    /// fill.
    CodeEditor* editor() const;
    QTabBar* tabBar() const;
    QToolBar* toolBar() const;

    bool isActive() const;

    /// @name What the actions do; for a host's own menus and for tests
    /// @{
    void goToLine();
    void nextError();
    void prevError();

    /// These stop at warnings as well, which is what lists call deprecations too.
    void nextDepr();
    void prevDepr();

    /// Makes comments of the selected lines, or of the cursor's; takes the mark off
    /// again if the first of them begins with it.
    void comment();
    void foldAll();
    void unfoldAll();

    /// Inserts the snippet of a row of `SnippetManager`, as the box of snippets does.
    void insertSnippet(int row);
    /// @}

signals:
    /// The document that is shown, if any, is about to make room for another one, or for none.
    void documentLeaves();

    /// Another document is shown, or none.
    void documentShown();

private:
    std::unique_ptr<CodeWorkspacePrivate> d;
};

}  // namespace Zorv
