#pragma once

#include <zorv/editors/code/codetreemodel.h>

namespace App {

/// The nodes of a document: groups with their values and sub-groups, animations with their frames,
/// frames with their contact boxes.
class NodeModel : public Zorv::CodeTreeModel
{
    Q_OBJECT

public:
    using CodeTreeModel::CodeTreeModel;

protected:
    QString nodeLabel(const Zorv::CodeNode* node) const override;

    /// Values have no icon, because there are so many.
    QIcon nodeIcon(const Zorv::CodeNode* node) const override;

    /// Contact boxes precede their frame in the text, but are children of it in the tree.
    int shownCount(const Zorv::CodeNode* node) const override;
    QVector<const Zorv::CodeNode*> shownChildren(const Zorv::CodeNode* node) const override;
    const Zorv::CodeNode* shownParent(const Zorv::CodeNode* node) const override;
    int shownPlace(const Zorv::CodeNode* node) const override;
};

}  // namespace App
