#pragma once

#include "editors/code/codefindtext.h"

#include <QObject>
#include <QPointer>
#include <QTreeView>
#include <QVector>

namespace Zorv {

class CodeDocument;
class CodeEditor;
class CodeFileEditor;
class CodeFind;
class CodeItemModel;
class CodeWorkspace;

/// What a `CodeFileEditor` joins.
class CodeFileEditorPrivate : public QObject
{
    Q_OBJECT

public:
    /// The editor of the workspace while it shows the document, else null.
    CodeEditor* editor() const;

    /// The editor that has come, or comes, forward, if it shows the same document in the
    /// same workspace; null for none.
    CodeFileEditor* follower() const;

    /// Has the model of the tree show a document, and the tree its model, or none.
    void joinTree(CodeDocument* shown, bool isJoined);

    /// Looks from the selection on, and selects what it finds.
    bool findFrom(const CodeFind& what, bool backward);

    /// Replaces the selection if it is a match.
    void replaceSelection(const CodeFind& what, const QString& with);
    void replaceAll(const CodeFind& what, const QString& with);

    CodeFileEditor* q = nullptr;
    CodeFileEditor* treeOwner = nullptr;  ///< itself, or whose tree it shares
    CodeWorkspace* workspace = nullptr;
    CodeItemModel* model = nullptr;
    QPointer<CodeDocument> document;
    QPointer<QTreeView> tree;
    QVector<QMetaObject::Connection> connections;
    CodeFindText text;
    bool isAsking = false;  ///< the host, to bring the editor forward
};

}  // namespace Zorv
