#include "app/look/firstframe.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace App {

namespace {

class FirstFrame final : public QObject
{
public:
    FirstFrame(QWidget* window, std::function<void()> work)
        : QObject(window), m_work(std::move(work))
    {
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // The rest of the frame is still painted in this turn of the event loop.
            QTimer::singleShot(0, this, [this] {
                m_work();
                deleteLater();
            });
        }
        return false;
    }

private:
    std::function<void()> m_work;
};

}  // namespace

void afterFirstFrame(QWidget* window, std::function<void()> work)
{
    new FirstFrame(window, std::move(work));
}

}  // namespace App
