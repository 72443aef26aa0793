#pragma once

#include <QObject>
#include <QPointer>
#include <QTreeView>

namespace Zorv {

class CodeDocument;
class CodeItemModel;
class CodeWorkspace;

/// What a `CodeFileEditor` joins.
class CodeFileEditorPrivate : public QObject
{
    Q_OBJECT

public:
    CodeWorkspace* workspace = nullptr;
    CodeItemModel* model = nullptr;
    QPointer<CodeDocument> document;
    QPointer<QTreeView> tree;
};

}  // namespace Zorv
