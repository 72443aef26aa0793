#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>
#include <QStringList>

namespace Zorv {

class Interface;

/// The snippets of an engine family: the XML files of one folder, a row each, by
/// name. docs/formats.md tells their format. Main thread only.
class ZORV_EXPORT SnippetManager : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The one object of the process; empty until `update()`.
    static SnippetManager* instance();

    /// Lists the files of a folder anew; a missing one has none.
    void update(const QString& folder);

    QString folder() const { return m_folder; }

    /// The text of a row's snippet, with the values of its fields asked of the person.
    /// Empty for a row or file that is not there, a person that gives up, and a file that
    /// is broken, which is told with line and column.
    QString snippet(const Interface& host, unsigned row) const;

    /// The same for a snippet at hand. `title` is that of the dialog.
    static QString snippet(const Interface& host, const QString& title, const QString& xml);

    /// Writes the titles of a snippet's fields and items as a Qt translation source to
    /// `fileName`. False if the file cannot be written, or the snippet is broken, which
    /// is told.
    static bool genTS(const Interface& host, const QString& fileName, const QString& xml);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    SnippetManager();

    QString m_folder;
    QStringList m_names;
};

}  // namespace Zorv
