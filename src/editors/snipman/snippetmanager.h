#pragma once

#include "zorv_export.h"

#include <QAbstractListModel>
#include <QStringList>

namespace Zorv {

class Interface;

/// The snippets of an engine family: the XML files of one folder, a row each, in the
/// order of the names as they are shown. docs/formats.md tells their format.
///
/// `Qt::DisplayRole` is the name in the person's language, if the context "Snippets" of
/// the translations has it with the comment "snippet"; `Qt::EditRole` is the name
/// itself. Main thread only.
class ZORV_EXPORT SnippetManager : public QAbstractListModel
{
    Q_OBJECT

public:
    /// The one object of the process; empty until `update()`.
    static SnippetManager* instance();

    /// Lists the files of a folder anew; a missing one has none.
    void update(const QString& folder);

    /// Has views show the names in the language that is installed now, in its order.
    void retranslate();

    QString folder() const { return m_folder; }

    /// The path of a row's file; empty for a row that is not there.
    QString fileName(unsigned row) const;

    /// The text of a row's snippet, with the values of its fields asked of the person.
    /// Empty for a row that is not there, a file that cannot be read, which the status
    /// bar tells, a person that gives up, and a file that is broken, which is told with
    /// line and column.
    ///
    /// In the order of the fields each "@" with the field's name is replaced by its value;
    /// so of two names of which one begins with the other the longer one comes first.
    QString snippet(const Interface& host, unsigned row) const;

    /// The same for a snippet at hand. `title` is that of the dialog, which is not shown
    /// for a snippet without fields.
    static QString snippet(const Interface& host, const QString& title, const QString& xml);

    /// Writes the titles of a snippet's fields and items as a Qt translation source to
    /// `fileName`: the context is "Snippets", the comment of each text the name of its
    /// field. False if the snippet is broken or the file cannot be written, which is told;
    /// an old file is whole then.
    static bool genTS(const Interface& host, const QString& fileName, const QString& xml);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

private:
    SnippetManager();

    QString m_folder;
    QStringList m_names;
};

}  // namespace Zorv
