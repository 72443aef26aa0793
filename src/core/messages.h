#pragma once

#include "core/message.h"
#include "zorv_export.h"

#include <QAbstractListModel>
#include <QVector>

#include <memory>

namespace Zorv {

class MessageList;
class MessagesPrivate;
class ProjectFile;

/// The messages of one file as a list model, one message per row.
///
/// Every change updates the project's list, if there is one, and emits
/// `updated()`. Between `beginChange()` and `endChange()` this is postponed
/// until the outermost `endChange()`, so that a full parse notifies once. Main
/// thread only.
class ZORV_EXPORT Messages : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Creates an empty list for `file`, which owns it.
    explicit Messages(ProjectFile* file);

    /// Unregisters from the project's list, if there is one.
    ~Messages() override;

    /// The file that owns the list.
    ProjectFile* file() const;

    /// The name under which the project shows the file: `Project::fileTitle()`
    /// for its lowest kind. Empty for a file without a project.
    QString fileString() const;

    /// The number of messages of a type; with `Message::AllTypes` of all types.
    int count(Message::Type type) const;

    /// A copy of a message; empty if `index` is out of range.
    Message at(int index) const;

    /// Appends a message.
    void add(Message::Type type, const QString& text, int line, int column);

    /// Inserts a message. For parsers that report from top to bottom.
    ///
    /// The search starts where the last message was inserted and goes forward.
    /// The new message is placed after the first message found whose position
    /// is smaller. In the middle of a list that can be too early. So a document
    /// uses `replaceLine()` when it parses a line again.
    void insert(Message::Type type, const QString& text, int line, int column);

    /// Removes the messages of a line. The search goes from the end of the list
    /// back to the first message of a smaller line. The next `insert()` starts
    /// at the top again.
    void clearLine(int line);

    /// Removes all messages.
    void clear();

    /// Starts a group of changes. Groups can be nested.
    void beginChange();

    /// Ends a group of changes. The outermost one notifies, even if nothing
    /// changed. Does nothing without an open group.
    void endChange();

    /// Notifies, whether anything changed or not.
    void notifyUpdate();

    /// Replaces the messages of `line` with `messages`. The list must be sorted
    /// by line and column and stays so. All of `messages` must have this line
    /// and be sorted by column. Takes O(log n) if the number of messages of the
    /// line stays the same.
    void replaceLine(int line, const QVector<Message>& messages);

    /// Adapts a sorted list to an edit of the text. The messages of lines
    /// `first` to `first + removed - 1` are removed. Those of all later lines
    /// move by `added - removed`. Repeated edits near the same place do not
    /// touch the other messages.
    void moveLines(int first, int removed, int added);

    /// The index of the first message whose line is `line` or later, in a
    /// sorted list; `count(Message::AllTypes)` if there is none.
    int indexOfLine(int line) const;

    int rowCount(const QModelIndex& parent = {}) const override;

    /// `Qt::DisplayRole` is the text, `Qt::DecorationRole` an icon by type.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

signals:
    /// The list may have changed.
    void updated();

private:
    friend class MessageList;

    bool hasRow(const QModelIndex& index) const;
    void insertMessages(int at, const QVector<Message>& messages);
    void removeMessages(int first, int count);
    void setMessage(int at, const Message& message);
    void changed();

    std::unique_ptr<MessagesPrivate> m;
};

}  // namespace Zorv
