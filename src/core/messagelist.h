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

/// The messages of all files of a project, file behind file, as a list model.
///
/// It keeps no copies: each row is looked up in the `Messages` that holds it.
/// `update()` announces all rows anew. Main thread only.
class ZORV_EXPORT MessageList : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit MessageList(Project* project);

    /// The files that are still registered stay without a list.
    ~MessageList() override;

    /// The project, not owned.
    Project* project() const;

    /// The messages of each file in order of registration, not owned.
    QList<Messages*> lists() const;

    /// How many errors and warnings there were at the last `update()`.
    int errorCount() const;
    int warningCount() const;

    /// Takes a file's messages in, at the end, and updates. The same messages
    /// registered twice are shown twice. Messages of another list leave that one.
    void registerMessages(Messages* messages);

    /// Takes every entry of a file's messages out, and updates.
    void unregisterMessages(Messages* messages);

    /// Counts again, announces all rows as gone and then as new, and emits
    /// `updated()`. Nothing is compared.
    void update();

    /// A copy of the message of a row, with the kinds of its file in `id`. A
    /// row outside of the list leaves `id` alone and gives an empty text.
    Message messageAt(int row, FileID& id) const;

    /// The messages that hold a row, and in `index` the message's place among
    /// them; null for a row outside of the list.
    Messages* messagesAt(int row, int* index = nullptr) const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// `Qt::DisplayRole` is "file (line) : text" with the line counted from 1.
    /// `Qt::DecorationRole` is an icon by type below ":/icons/icons/": these
    /// pictures are the host's, those of `Messages` the library's.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// The rows have been announced anew.
    void updated();

private:
    friend class Messages;

    const QVector<int>& starts() const;

    Project* m_project;
    QList<Messages*> m_lists;
    mutable QVector<int> m_starts;  ///< the first row of each list, and the end
    mutable bool m_startsStale = true;
    int m_errorCount = 0;
    int m_warningCount = 0;
    int m_total = 0;
};

}  // namespace Zorv
