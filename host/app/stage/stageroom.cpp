#include "app/stage/stageroom.h"

#include "app/stage/stageview.h"

#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>

#include <QEvent>
#include <QScrollBar>
#include <QSplitter>
#include <QVariant>
#include <algorithm>

// `m_share` is the stage's share of the splitter's height. It is read from the widgets just before
// the stage is hidden or emptied, and applied when the stage comes back. Applying waits until the
// splitter is visible and the text's own widgets are in place: before that, sizes are meaningless.
// Without a stored share, the text keeps a number of lines, and the stage gets the rest up to a
// limit.

namespace App {

namespace {

const QString ShareKey = QStringLiteral("stage_share");
constexpr int LinesOfText = 18;       // lines of text that stay visible at first, if possible
constexpr double LargestShare = 0.6;  // limit for the stage at first

}  // namespace

StageRoom::StageRoom(QSplitter* splitter, StageView* view, Zorv::CodeEditor* editor,
                     QObject* parent)
    : QObject(parent), m_splitter(splitter), m_view(view), m_editor(editor),
      m_share(qBound(0.0, Zorv::Interface::instance()->option(ShareKey).toDouble(), 1.0))
{
    m_splitter->installEventFilter(this);
}

void StageRoom::update()
{
    const bool isFull = !m_view->isHidden() && !m_view->isEmpty();
    if (isFull == m_isFull) {
        return;
    }
    note();
    m_isFull = isFull;
    m_isNeeded = isFull;
    m_view->setMaximumHeight(isFull ? QWIDGETSIZE_MAX : m_view->minimumSizeHint().height());
    // Deferred, because the text must get its own widgets first.
    QMetaObject::invokeMethod(
        this, [this] { apply(); }, Qt::QueuedConnection);
}

void StageRoom::keep()
{
    note();
    Zorv::Interface::instance()->setOption(ShareKey, m_share > 0 ? QVariant(m_share) : QVariant());
}

/// Remembers the height that the user gave the stage.
void StageRoom::note()
{
    if (m_isFull && !m_isNeeded && m_splitter->height() > 0) {
        m_share = m_view->height() / double(m_splitter->height());
    }
}

void StageRoom::apply()
{
    if (!m_isNeeded || !m_splitter->isVisible()) {
        return;
    }
    m_isNeeded = false;
    const int whole = m_splitter->height();
    const int height = m_share > 0 ? qRound(m_share * whole) : usualHeight();
    m_splitter->setSizes({height, whole - m_splitter->handleWidth() - height});
    m_editor->ensureCursorVisible();
    emit applied();
}

int StageRoom::usualHeight() const
{
    // A long line shows the horizontal scroll bar.
    const int around = m_splitter->widget(1)->height() - m_editor->height() +
                       m_editor->horizontalScrollBar()->sizeHint().height();
    const int lines = LinesOfText * m_editor->fontMetrics().height() +
                      2 * int(m_editor->document()->documentMargin());
    const int whole = m_splitter->height();
    return std::min(int(whole * LargestShare), whole - m_splitter->handleWidth() - around - lines);
}

bool StageRoom::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show || event->type() == QEvent::Resize) {
        QMetaObject::invokeMethod(
            this, [this] { apply(); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace App
