#include "code/codedoc/contactboxescode.h"

#include "code/codedoc/framecode.h"

namespace Zorv {

ContactBoxCode::~ContactBoxCode() = default;

ContactBoxesCode::~ContactBoxesCode() = default;

int ContactBoxesCode::count() const
{
    return 0;
}

ContactBoxCode* ContactBoxesCode::at(int) const
{
    return nullptr;
}

ContactBoxCode* ContactBoxesCode::add(const QRect&)
{
    return nullptr;
}

void ContactBoxesCode::remove(int) {}

ContactBoxCode::BoxType ContactBoxesCode::type() const
{
    return ContactBoxCode::Collision;
}

FrameCode* ContactBoxesCode::frame() const
{
    return nullptr;
}

CodeDocument* ContactBoxesCode::document() const
{
    return frame() ? frame()->document() : nullptr;
}

}  // namespace Zorv
