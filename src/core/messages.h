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

/// The messages of one file, as a list model: one row a message.
///
/// A change notifies: the list of the project, if there is one, is brought up
/// to date, and `updated()` is emitted. Inside `beginChange()` and
/// `endChange()` this waits for the end of the outermost frame, so that a full
/// parse is told once. Main thread only.
class ZORV_EXPORT Messages : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Makes an empty list for `file`, which owns it.
    explicit Messages(ProjectFile* file);

    /// Leaves the project's list, if there is one.
    ~Messages() override;

    /// The owner.
    ProjectFile* file() const;

    /// The name under which the project shows the file: `Project::fileTitle()`
    /// for its lowest kind; empty for a file without a project.
    QString fileString() const;

    /// How many messages there are of a type, or with `Message::AllTypes` in all.
    int count(Message::Type type) const;

    /// A copy of a message; an empty one for an index outside of the list.
    Message at(int index) const;

    /// Appends a message.
    void add(Message::Type type, const QString& text, int line, int column);

    /// Inserts a message for a grammar that reports from top to bottom.
    ///
    /// Searches forward from where the last message went, and puts the new one
    /// behind the first message found that stands before it. In the middle of
    /// a list this can be earlier than its true place: a document uses
    /// `replaceLine()` for a line that is parsed again.
    void insert(Message::Type type, const QString& text, int line, int column);

    /// Removes the messages of a line, looking from the end of the list up to
    /// the first message of a smaller line; the next `insert()` searches from
    /// the top.
    void clearLine(int line);

    /// Removes all messages.
    void clear();

    /// Opens a frame of changes; frames nest.
    void beginChange();

    /// Closes a frame. The outermost notifies, whether anything changed or not.
    /// Does nothing if no frame is open.
    void endChange();

    /// Notifies in any case.
    void notifyUpdate();

    /// Puts `messages` in the place of those of `line`, in a list that is in
    /// order of line and column, and keeps that order. Each of `messages` must
    /// have that line and their columns ascend. Takes O(log n) for a line in
    /// which nothing changes in number.
    void replaceLine(int line, const QVector<Message>& messages);

    /// Follows an edit of the text, in a list that is in order: the messages of
    /// the lines `first` to `first + removed - 1` go, and those of all later
    /// lines move by `added - removed`. Repeated edits near one place cost
    /// nothing for the messages elsewhere.
    void moveLines(int first, int removed, int added);

    /// The index of the first message whose line is `line` or later, in a list
    /// that is in order; `count(Message::AllTypes)` if there is none.
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
