#pragma once

#include "zorv_export.h"

#include <QStringListModel>
#include <QVector>

namespace Zorv {

/// A word that a completer offers.
struct CompletionWord
{
    QString text;         ///< the text to insert
    QString description;  ///< one line, or empty
};

/// Completion words, each with a one-line description.
///
/// The popup of a `CodeEditor` shows the description beside its word. It is also the
/// row's tool tip and accessible description. Main thread only.
class ZORV_EXPORT CompletionModel : public QStringListModel
{
    Q_OBJECT

public:
    /// The role of the description, a string.
    static constexpr int DescriptionRole = Qt::UserRole + 1;

    explicit CompletionModel(QObject* parent = nullptr);

    /// Sets the words, in any order. They are sorted case-insensitively, as a completer
    /// requires. The first of several words with equal text counts; empty words are
    /// left out.
    void setWords(QVector<CompletionWord> words);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QStringList m_descriptions;
};

}  // namespace Zorv
