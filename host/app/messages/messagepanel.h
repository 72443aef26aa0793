#pragma once

#include "app/window/part.h"

#include <QListView>

namespace App {

class ProblemModel;
class ProblemWatch;
struct WindowServices;

/// The problems of the game. The row that the person is at stays current, whatever the check finds.
class MessagePanel : public QListView, public Part
{
    Q_OBJECT

public:
    /// The watch outlives it.
    MessagePanel(const WindowServices& services, ProblemWatch* problems);

    ProblemModel* problems() const;

    /// Makes the first problem of a file the current row, if it has any.
    void showMessagesOf(const Family::FamilyDocument* document);

    /// Makes the first problem of a line of a file the current row, unless that is of this
    /// line already. False if the line has none, and nothing changes.
    bool goToMessage(const Family::FamilyDocument* document, int line);

    /// Leads to the problem of a line of the text in front.
    void showMessageOfLine(int line);

    /// Shows the panel and gives it the keyboard.
    void comeForward();

    void followLine(int line) override;
    QVector<PanelPlace> places() override;

    /// One line: all that an empty list needs.
    QSize minimumSizeHint() const override;

signals:
    /// There are other problems, or more or fewer of them.
    void summaryChanged();

protected:
    /// A list without problems says why.
    void paintEvent(QPaintEvent* event) override;

    /// A problem that is too long for its row is read in its tool tip.
    bool viewportEvent(QEvent* event) override;

private:
    void request(const QModelIndex& index);
    void tellSummary();

    const WindowServices& m_services;
    ProblemWatch* m_problems;
};

}  // namespace App
