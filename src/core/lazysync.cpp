#include "core/lazysync_p.h"

namespace Zorv {

namespace {

thread_local LazySync* s_current = nullptr;

}  // namespace

LazySync::LazySync(Use use) : m_use(use)
{
    if (!s_current) {
        s_current = this;
    }
}

LazySync::~LazySync()
{
    if (s_current == this) {
        s_current = nullptr;
    }
}

LazySync* LazySync::current()
{
    return s_current;
}

LazySync::Exception::Exception(bool isNeeded) : m_former(s_current)
{
    if (isNeeded && s_current && s_current->m_use == Kept) {
        s_current = nullptr;
    }
}

LazySync::Exception::~Exception()
{
    s_current = m_former;
}

}  // namespace Zorv
