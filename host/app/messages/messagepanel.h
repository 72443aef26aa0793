#pragma once

#include "app/window/part.h"

#include <QListView>

namespace App {

class ProblemModel;
class ProblemWatch;
struct WindowServices;

/// The problems of the game. The current row stays at its problem when a check changes the list.
class MessagePanel : public QListView, public Part
{
    Q_OBJECT

public:
    /// `problems` outlives the panel.
    MessagePanel(const WindowServices& services, ProblemWatch* problems);

    ProblemModel* problems() const;

    /// Selects the first problem of a file, if any.
    void showMessagesOf(const Family::FamilyDocument* document);

    /// Selects the first problem of a line, unless a problem of this line is already selected.
    /// False, and no change, if the line has none.
    bool goToMessage(const Family::FamilyDocument* document, int line);

    /// Goes to the problem of a line in the current text.
    void showMessageOfLine(int line);

    /// Shows the panel and focuses it.
    void comeForward();

    void followLine(int line) override;
    QVector<PanelPlace> places() override;

    /// One line: enough for an empty list.
    QSize minimumSizeHint() const override;

signals:
    /// The problems changed.
    void summaryChanged();

protected:
    /// An empty list explains why it is empty.
    void paintEvent(QPaintEvent* event) override;

    /// A problem too long for its row is shown in the tool tip.
    bool viewportEvent(QEvent* event) override;

private:
    void request(const QModelIndex& index);
    void tellSummary();

    const WindowServices& m_services;
    ProblemWatch* m_problems;
};

}  // namespace App
