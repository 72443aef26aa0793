#include "app/messages/messagepanel.h"

#include "app/look/language.h"
#include "app/messages/problemmodel.h"
#include "app/messages/problemwatch.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/familydocument.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace App {

MessagePanel::MessagePanel(const WindowServices& services, ProblemWatch* problems)
    : m_services(services), m_problems(problems)
{
    setModel(problems->model());
    connect(problems, &ProblemWatch::summaryChanged, this, &MessagePanel::tellSummary);
    followLanguage(this, [this] {
        setAccessibleName(tr("Problems of the game"));
        tellSummary();
    });
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setUniformItemSizes(true);
    connect(this, &QListView::activated, this, &MessagePanel::request);
}

ProblemModel* MessagePanel::problems() const
{
    return m_problems->model();
}

void MessagePanel::showMessagesOf(const Family::FamilyDocument* document)
{
    const int row = problems()->firstRowOf(m_problems->nameOf(document));
    if (row >= 0) {
        setCurrentIndex(problems()->index(row));
        scrollTo(currentIndex(), QAbstractItemView::PositionAtTop);
    }
}

bool MessagePanel::goToMessage(const Family::FamilyDocument* document, int line)
{
    const QString file = document ? m_problems->nameOf(document) : QString();
    const int row = problems()->rowAt(file, line + 1);
    const Family::Problem* problem = problems()->problemAt(row);
    if (!problem || problem->line != line + 1) {
        return false;
    }
    const Family::Problem* current = problems()->problemAt(currentIndex().row());
    if (!current || current->file != file || current->line != line + 1) {
        setCurrentIndex(problems()->index(row));
    }
    scrollTo(currentIndex());
    return true;
}

void MessagePanel::followLine(int line)
{
    goToMessage(m_services.parts->document(), line);
}

void MessagePanel::showMessageOfLine(int line)
{
    m_problems->settle();
    if (goToMessage(m_services.parts->document(), line)) {
        comeForward();
    }
}

QVector<PanelPlace> MessagePanel::places()
{
    return {PanelPlace::of(
        this, {{Command::Copy,
                [this] { QApplication::clipboard()->setText(currentIndex().data().toString()); },
                [this] { return currentIndex().isValid(); }}})};
}

void MessagePanel::comeForward()
{
    bringForward(this);
    setFocus();
}

void MessagePanel::tellSummary()
{
    m_services.status->setProblems(m_problems->summary());
    viewport()->update();
    emit summaryChanged();
}

QSize MessagePanel::minimumSizeHint() const
{
    return {QListView::minimumSizeHint().width(), fontMetrics().height() + 2 * frameWidth() + 2};
}

void MessagePanel::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (problems()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
        painter.drawText(viewport()->rect().adjusted(2, 0, 0, 0), Qt::AlignVCenter,
                         m_problems->summary());
    }
}

bool MessagePanel::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) {
        return QListView::viewportEvent(event);
    }
    const auto* help = static_cast<QHelpEvent*>(event);
    const QString text = indexAt(help->pos()).data().toString().toHtmlEscaped();
    QToolTip::showText(help->globalPos(), text.isEmpty() ? text : QLatin1String("<qt>") + text,
                       viewport());
    return true;
}

/// Opens the file and its project if necessary.
void MessagePanel::request(const QModelIndex& index)
{
    const Family::Problem* problem = problems()->problemAt(index.row());
    if (!problem) {
        return;
    }
    // Copied, because the list can change while a file is opened.
    const Family::Problem place = *problem;
    if (!m_problems->documentOf(place.file) &&
        !m_services.jumps->openFile(m_problems->pathOf(place.file))) {
        return;
    }
    m_problems->updateState();
    if (Family::FamilyDocument* document = m_problems->documentOf(place.file)) {
        m_services.jumps->showPlace(document, place.line - 1, place.column - 1, 0);
    }
}

}  // namespace App
