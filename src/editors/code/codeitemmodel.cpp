#include "editors/code/codeitemmodel.h"

#include "code/codedoc/codedocument.h"

#include <QIcon>

namespace Zorv {

class CodeItemModelPrivate
{
public:
    const CodeDocument* root = nullptr;
    int rows = 0;
};

CodeItemModel::CodeItemModel(QObject* parent)
    : QAbstractItemModel(parent), d(std::make_unique<CodeItemModelPrivate>())
{
}

CodeItemModel::~CodeItemModel() = default;

void CodeItemModel::setDocument(const CodeDocument* document)
{
    d->root = document;
}

const CodeDocument* CodeItemModel::document() const
{
    return d->root;
}

void CodeItemModel::update() {}

int CodeItemModel::lineNo(const QModelIndex&) const
{
    return -1;
}

QModelIndex CodeItemModel::indexInLine(unsigned) const
{
    return {};
}

QModelIndex CodeItemModel::nodeIndex(const CodeNode*) const
{
    return {};
}

QModelIndex CodeItemModel::index(int, int, const QModelIndex&) const
{
    return {};
}

QModelIndex CodeItemModel::parent(const QModelIndex&) const
{
    return {};
}

int CodeItemModel::rowCount(const QModelIndex&) const
{
    return 0;
}

int CodeItemModel::columnCount(const QModelIndex&) const
{
    return 1;
}

QVariant CodeItemModel::data(const QModelIndex&, int) const
{
    return {};
}

QIcon CodeItemModel::nodeIcon(const CodeNode*) const
{
    return {};
}

}  // namespace Zorv
