#include "editors/snipman/snippetmanager.h"

namespace Zorv {

SnippetManager::SnippetManager() = default;

SnippetManager* SnippetManager::instance()
{
    static SnippetManager manager;
    return &manager;
}

void SnippetManager::update(const QString& folder)
{
    m_folder = folder;
}

QString SnippetManager::snippet(const Interface&, unsigned) const
{
    return {};
}

QString SnippetManager::snippet(const Interface&, const QString&, const QString&)
{
    return {};
}

bool SnippetManager::genTS(const Interface&, const QString&, const QString&)
{
    return false;
}

int SnippetManager::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_names.size();
}

QVariant SnippetManager::data(const QModelIndex& index, int role) const
{
    return role == Qt::DisplayRole ? QVariant(m_names.value(index.row())) : QVariant();
}

}  // namespace Zorv
