#pragma once

#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>

namespace Zorv {

/// Keeps the scroll position during a mouse event. Qt scrolls the cursor's line fully into view on
/// a click; the second press of a double click would then hit another line.
class HeldView
{
public:
    /// Null does nothing.
    explicit HeldView(QAbstractScrollArea* area) : m_area(area)
    {
        if (area) {
            m_x = area->horizontalScrollBar()->value();
            m_y = area->verticalScrollBar()->value();
        }
    }

    ~HeldView()
    {
        if (m_area) {
            m_area->horizontalScrollBar()->setValue(m_x);
            m_area->verticalScrollBar()->setValue(m_y);
        }
    }

private:
    Q_DISABLE_COPY(HeldView)
    QPointer<QAbstractScrollArea> m_area;
    int m_x = 0;
    int m_y = 0;
};

}  // namespace Zorv
