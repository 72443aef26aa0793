#pragma once

#include "zorv_export.h"

#include <QStringList>

#include <memory>

namespace Zorv {

/// Describes one tool, as a value that is handed to the host; see `Interface::addControl()`.
class ZORV_EXPORT Control
{
public:
    virtual ~Control();

    /// A copy of the whole value, including what derived classes add.
    virtual std::unique_ptr<Control> clone() const = 0;

    /// Names of the areas in which the tool is enabled, as in `Interface::createAction()`: a
    /// null-terminated array, which is copied. Without areas the host decides, by the name of the
    /// tool. A button uses the areas of its action instead.
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
