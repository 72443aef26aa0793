#pragma once

#include "editors/code/codefindtext.h"

#include <QObject>
#include <QPointer>
#include <QTreeView>
#include <QVector>

namespace Zorv {

class CodeDocument;
class CodeEditor;
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

    /// Gives the tree a model, null for none.
    void showModel(CodeItemModel* shown);

    /// Looks from the selection on, and selects what it finds.
    bool findFrom(const CodeFind& what, bool backward);

    /// Replaces the selection if it is a match.
    void replaceSelection(const CodeFind& what, const QString& with);
    void replaceAll(const CodeFind& what, const QString& with);

    CodeWorkspace* workspace = nullptr;
    CodeItemModel* model = nullptr;
    QPointer<CodeDocument> document;
    QPointer<QTreeView> tree;
    QVector<QMetaObject::Connection> connections;
    CodeFindText text;
    bool isAsking = false;  ///< the host, to bring the editor forward
};

}  // namespace Zorv
