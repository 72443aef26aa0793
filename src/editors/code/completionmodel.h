#pragma once

#include "zorv_export.h"

#include <QStringListModel>
#include <QVector>

namespace Zorv {

/// A word that a completer offers.
struct CompletionWord
{
    QString text;         ///< what is put in
    QString description;  ///< one line beside it, or empty
};

/// Words to complete, each with a line that tells what it is.
///
/// The popup of a `CodeEditor` shows the description beside its word; it is the tool
/// tip and the accessible description of the row too. Main thread only.
class ZORV_EXPORT CompletionModel : public QStringListModel
{
    Q_OBJECT

public:
    /// The role of the description, a text.
    static constexpr int DescriptionRole = Qt::UserRole + 1;

    explicit CompletionModel(QObject* parent = nullptr);

    /// Takes words in any order. They are sorted without regard to case, as a
    /// completer wants them; of two with one text the first counts, and empty ones
    /// are left out.
    void setWords(QVector<CompletionWord> words);

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    QStringList m_descriptions;
};

}  // namespace Zorv
