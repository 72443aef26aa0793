#include "editors/code/completionmodel.h"

#include <algorithm>

namespace Zorv {

namespace {

/// Words that differ only in case are kept as separate entries.
bool standsBefore(const CompletionWord& a, const CompletionWord& b)
{
    const int order = a.text.compare(b.text, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.text < b.text;
}

}  // namespace

CompletionModel::CompletionModel(QObject* parent) : QStringListModel(parent) {}

void CompletionModel::setWords(QVector<CompletionWord> words)
{
    std::stable_sort(words.begin(), words.end(), standsBefore);
    QStringList texts;
    m_descriptions.clear();
    for (const CompletionWord& word : qAsConst(words)) {
        if (!word.text.isEmpty() && (texts.isEmpty() || texts.last() != word.text)) {
            texts.append(word.text);
            m_descriptions.append(word.description);
        }
    }
    setStringList(texts);
}

QVariant CompletionModel::data(const QModelIndex& index, int role) const
{
    const bool isDescription =
        role == DescriptionRole || role == Qt::ToolTipRole || role == Qt::AccessibleDescriptionRole;
    return isDescription && index.isValid() ? m_descriptions.value(index.row())
                                            : QStringListModel::data(index, role);
}

}  // namespace Zorv
