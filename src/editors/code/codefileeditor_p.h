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

/// The private part of a `CodeFileEditor`: it connects document, editor and tree.
class CodeFileEditorPrivate : public QObject
{
    Q_OBJECT

public:
    /// The workspace's editor if it shows the document now, else null.
    CodeEditor* editor() const;

    /// The editor that is active or about to become active, if it shows the same
    /// document in the same workspace; else null.
    CodeFileEditor* follower() const;

    /// Makes the tree's model show a document. `isJoined` decides whether the tree
    /// shows the model.
    void joinTree(CodeDocument* shown, bool isJoined);

    /// Searches from the selection on, and selects the match.
    bool findFrom(const CodeFind& what, bool backward);

    /// Replaces the selection if it is a match.
    void replaceSelection(const CodeFind& what, const QString& with);
    void replaceAll(const CodeFind& what, const QString& with);

    CodeFileEditor* q = nullptr;
    CodeFileEditor* treeOwner = nullptr;  ///< itself, or the editor whose tree it shares
    CodeWorkspace* workspace = nullptr;
    CodeItemModel* model = nullptr;
    QPointer<CodeDocument> document;
    QPointer<QTreeView> tree;
    QVector<QMetaObject::Connection> connections;
    CodeFindText text;
    bool isAsking = false;  ///< inside the request to the host to activate this editor
};

}  // namespace Zorv
