#include "core/progress.h"

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

bool Progress::update(int value, int maximum)
{
    m_value = value;
    if (m_reporter) {
        m_reporter->update(value, maximum);
        m_isCanceled = m_isCanceled || m_reporter->isCanceled();
    }
    return !m_isCanceled;
}

}  // namespace Zorv
