#pragma once

#include "app/window/texteditor.h"

#include <zorv/editors/code/codefileeditor.h>

class QTimer;

namespace App {

class NodeModel;

/// The library's editor "code". It works on the current text, and its node tree follows the cursor.
class CodeTextEditor : public Zorv::CodeFileEditor, public TextEditor
{
    Q_OBJECT

public:
    /// Publishes the tree "code_tree"; the workspace outlives the editor.
    explicit CodeTextEditor(Zorv::CodeWorkspace* workspace, QObject* parent = nullptr);

    CodeFileEditor* fileEditor() override { return this; }

    /// True: takes every text that no other editor wants.
    bool wants(const Family::FamilyDocument*) const override { return true; }
    void setText(Family::FamilyDocument* document) override;

    /// Selects `length` characters from a position, counted from 0, and scrolls there. A position
    /// past an end is moved to that end.
    void goTo(int line, int column = 0, int length = 0);

    /// Brings the text to the front; disabled without a text.
    QAction* action() const override { return m_action; }

    QString name() const override;

    /// 1: a new code file has no name.
    int canEditFileType() const override;
    QStringList areas() const override;
    void retranslate() override;

    /// The file kind of the current text, by its suffix.
    QString fileFilter() const override;

    /// Follows the cursor with a delay, because a held key moves it quickly.
    void currLineChanged(int line) override;

    NodeModel* nodes() const { return m_nodes; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpTree();
    bool isShown() const;
    void selectLine();

    NodeModel* m_nodes;
    QAction* m_action;
    QTimer* m_follow;
};

}  // namespace App
