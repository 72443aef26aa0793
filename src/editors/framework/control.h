#pragma once

#include "zorv_export.h"

#include <memory>

namespace Zorv {

/// One tool as a value on its way to the host; see `Interface::addControl()`.
class ZORV_EXPORT Control
{
public:
    virtual ~Control();

    /// A copy of the whole value, whatever its class.
    virtual std::unique_ptr<Control> clone() const = 0;

protected:
    Control() = default;
    Control(const Control&) = default;
    Control& operator=(const Control&) = default;
};

}  // namespace Zorv
