#pragma once

#include "app/window/texteditor.h"

#include <zorv/editors/code/codefileeditor.h>

class QTimer;

namespace App {

class NodeModel;

/// The library's editor "code": it works on the text in front, and its tree of nodes follows
/// the cursor.
class CodeTextEditor : public Zorv::CodeFileEditor, public TextEditor
{
    Q_OBJECT

public:
    /// Publishes the tree "code_tree"; the workspace outlives the editor.
    explicit CodeTextEditor(Zorv::CodeWorkspace* workspace, QObject* parent = nullptr);

    CodeFileEditor* fileEditor() override { return this; }

    /// True: a text that no other editor wants is for this one.
    bool wants(const Family::FamilyDocument*) const override { return true; }
    void setText(Family::FamilyDocument* document) override;

    /// Selects `length` characters from a place on, counted from 0, and brings them into the
    /// view. A place behind an end is that end.
    void goTo(int line, int column = 0, int length = 0);

    /// Brings the text to the front; disabled without one.
    QAction* action() const override { return m_action; }

    QString name() const override;

    /// 1: a new code file has no name.
    int canEditFileType() const override;
    QStringList areas() const override;
    void retranslate() override;

    /// The kind of the text in front, by its suffix.
    QString fileFilter() const override;

    /// A cursor that runs with a key held down is followed now and then.
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
