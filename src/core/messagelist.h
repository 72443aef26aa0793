#pragma once

#include "core/fileid.h"
#include "core/message.h"
#include "zorv_export.h"

#include <QAbstractListModel>
#include <QList>
#include <QVector>

namespace Zorv {

class Messages;
class Project;

/// The messages of all files of a project as one list model, file after file.
///
/// It stores no copies: each row is looked up in the `Messages` that holds it.
/// `update()` resets all rows. Main thread only.
class ZORV_EXPORT MessageList : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit MessageList(Project* project);

    /// Files that are still registered are left without a list.
    ~MessageList() override;

    /// The project. Not owned.
    Project* project() const;

    /// The messages of each file, in order of registration. Not owned.
    QList<Messages*> lists() const;

    /// The number of errors and warnings at the last `update()`.
    int errorCount() const;
    int warningCount() const;

    /// Appends a file's messages and updates. Messages that are registered
    /// twice are shown twice. Messages that belong to another list are removed
    /// from it.
    void registerMessages(Messages* messages);

    /// Removes all entries of a file's messages and updates.
    void unregisterMessages(Messages* messages);

    /// Counts again, removes and re-inserts all rows for the views, and emits
    /// `updated()`. It does not check whether anything changed.
    void update();

    /// A copy of the message in a row; `id` receives the kinds of its file. For
    /// a row outside of the list the text is empty and `id` is left unchanged.
    Message messageAt(int row, FileID& id) const;

    /// The messages that a row belongs to; `index` receives the position among
    /// them. Null for a row outside of the list.
    Messages* messagesAt(int row, int* index = nullptr) const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// `Qt::DisplayRole` is "file (line) : text", with lines counted from 1.
    /// `Qt::DecorationRole` is an icon by type from ":/icons/icons/". The host
    /// supplies these icons, unlike those of `Messages`, which the library has.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// All rows have been reset.
    void updated();

private:
    friend class Messages;

    const QVector<int>& starts() const;

    Project* m_project;
    QList<Messages*> m_lists;
    mutable QVector<int> m_starts;  ///< first row of each list, then the total
    mutable bool m_startsStale = true;
    int m_errorCount = 0;
    int m_warningCount = 0;
    int m_total = 0;
};

}  // namespace Zorv
