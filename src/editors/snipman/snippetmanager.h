#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>
#include <QStringList>

namespace Zorv {

class Interface;

/// The snippets of an engine family: the XML files of one folder, one per row, sorted by displayed
/// name. docs/formats.md describes the format.
///
/// `Qt::DisplayRole` is the name in the user's language, if the translations have it in the context
/// "Snippets" with the comment "snippet". `Qt::EditRole` is the name itself. Main thread only.
class ZORV_EXPORT SnippetManager : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The only object in the process; empty until `update()`.
    static SnippetManager* instance();

    /// Lists the files of a folder again; a missing folder has none.
    void update(const QString& folder);

    /// Updates the names in views, and their order, to the current language.
    void retranslate();

    QString folder() const { return m_folder; }

    /// The path of a row's file; empty for an invalid row.
    QString fileName(unsigned row) const;

    /// The text of a row's snippet, after asking the user for the values of its fields. Empty for
    /// an invalid row, and if the user cancels. Also empty for an unreadable file, which the status
    /// bar reports, and for a broken file, which is reported with line and column.
    ///
    /// Fields are replaced in order: each "@" with the field's name becomes its value. So if one
    /// name begins with another, the longer one has to come first.
    QString snippet(const Interface& host, unsigned row) const;

    /// The same for a snippet given as text. `title` is the title of the dialog, which is only
    /// shown if there are fields.
    static QString snippet(const Interface& host, const QString& title, const QString& xml);

    /// Writes the titles of a snippet's fields and items to `fileName` as a Qt translation source.
    /// The context is "Snippets"; the comment of each text is the name of its field. Reports and
    /// returns false if the snippet is broken or the file cannot be written; an old file is intact
    /// then.
    static bool genTS(const Interface& host, const QString& fileName, const QString& xml);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    SnippetManager();

    QString m_folder;
    QStringList m_names;
};

}  // namespace Zorv
