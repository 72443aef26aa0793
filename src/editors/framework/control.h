#pragma once

#include "zorv_export.h"

#include <QStringList>

#include <memory>

namespace Zorv {

/// One tool as a value on its way to the host; see `Interface::addControl()`.
class ZORV_EXPORT Control
{
public:
    virtual ~Control();

    /// A copy of the whole value, whatever its class.
    virtual std::unique_ptr<Control> clone() const = 0;

    /// The names of the areas in which the tool is enabled, as those of
    /// `Interface::createAction()`: a null-ended array, which is copied. Without any it is
    /// for the host to say, which knows the name. A button goes by the areas of its action.
    void setAreas(const char* const* areas);
    QStringList areas() const { return m_areas; }

protected:
    Control() = default;
    Control(const Control&) = default;
    Control& operator=(const Control&) = default;

private:
    QStringList m_areas;
};

}  // namespace Zorv
