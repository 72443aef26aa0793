#include "app/messages/messageroom.h"

#include "app/messages/messagepanel.h"

#include <zorv/core/interface.h>

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QVariant>
#include <algorithm>

namespace App {

namespace {

const QString HeightKey = QStringLiteral("messages_height");
constexpr int UsualHeight = 100;  // including the title

}  // namespace

MessageRoom::MessageRoom(QMainWindow* window, QDockWidget* dock, MessagePanel* panel)
    : QObject(dock), m_window(window), m_dock(dock), m_panel(panel)
{
    panel->installEventFilter(this);
    connect(panel, &MessagePanel::summaryChanged, this, [this] { update(); });
}

void MessageRoom::update()
{
    const bool isLine = !m_panel->model() || m_panel->model()->rowCount() == 0;
    if (isLine == m_isLine || !m_panel->isVisible() || m_dock->isFloating()) {
        return;
    }
    m_isLine = isLine;
    Zorv::Interface* host = Zorv::Interface::instance();
    const int line = m_panel->minimumSizeHint().height();
    if (isLine) {
        if (m_dock->height() > 2 * line) {
            host->setOption(HeightKey, m_dock->height());
        }
        m_dock->setTitleBarWidget(new QWidget(m_dock));
    } else {
        delete m_dock->titleBarWidget();
    }
    const int kept = host->option(HeightKey).toInt();
    m_window->resizeDocks({m_dock},
                          {isLine        ? line
                           : kept > line ? kept
                                         : UsualHeight},
                          Qt::Vertical);
}

bool MessageRoom::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        QMetaObject::invokeMethod(
            this, [this] { update(); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace App
