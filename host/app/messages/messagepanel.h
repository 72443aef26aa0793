#pragma once

#include "app/window/part.h"

#include <QListView>
#include <QPointer>

namespace Zorv {
class CodeDocument;
class MessageList;
class Messages;
}  // namespace Zorv

namespace App {

struct WindowServices;

/// The messages of one project. The row that the person is at stays current,
/// though every edit announces all rows anew.
class MessagePanel : public QListView, public Part
{
    Q_OBJECT

public:
    explicit MessagePanel(const WindowServices& services);

    /// Null for none; a list that dies is let go of.
    void setMessages(Zorv::MessageList* messages);
    Zorv::MessageList* messages() const;

    /// Makes the first message of a file the current row, if it has any.
    void showMessagesOf(const Zorv::CodeDocument* document);

    /// Makes the first message of a line of a file the current row, unless that is of this
    /// line already. False if the line has none, and nothing changes.
    bool goToMessage(const Zorv::CodeDocument* document, int line);

    /// Leads to the message of a line of the text in front.
    void showMessageOfLine(int line);

    /// Shows the panel and gives it the keyboard.
    void comeForward();

    /// "3 errors, 1 warning"; empty while there is no list.
    QString summary() const;

    void showProject(Family::FamilyProject* project) override;
    void followLine(int line) override;
    QVector<PanelPlace> places() const override;

    /// One line: all that an empty list needs.
    QSize minimumSizeHint() const override;

signals:
    /// The numbers of messages may have changed.
    void summaryChanged();

protected:
    /// A message that is too long for its row is read in its tool tip.
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    int firstRowOf(const Zorv::Messages* messages) const;
    void request(const QModelIndex& index);
    void beginUpdate();
    void endUpdate();

    const WindowServices& m_services;
    QPointer<Zorv::MessageList> m_list;
    Zorv::Messages* m_currentFile = nullptr;  ///< compared, not followed
    int m_currentLine = -1;
    int m_scroll = 0;
    bool m_isUpdating = false;
};

}  // namespace App
