#include "core/progress_p.h"

#include "core/interface.h"
#include "core/progressreporter.h"

namespace Zorv {

Progress::Progress(const QString& title, int maximum)
    : m_reporter(Interface::instance() ? Interface::instance()->progress(title, 0) : nullptr)
{
    if (m_reporter) {
        m_reporter->update(0, maximum);
    }
}

Progress::~Progress()
{
    if (m_reporter) {
        m_reporter->finish();
    }
}

bool Progress::step()
{
    ++m_value;
    if (m_reporter) {
        m_reporter->update(m_value, 0);
        m_isCanceled = m_isCanceled || m_reporter->isCanceled();
    }
    return !m_isCanceled;
}

}  // namespace Zorv
