#pragma once

#include "animation/edits/alignment.h"
#include "animation/edits/boxedits.h"
#include "code/codedoc/contactboxescode.h"

#include <memory>
#include <vector>

namespace Zorv {

/// Boxes that exist on the stage only, not in the text.
class PreviewBoxes : public ContactBoxesCode
{
public:
    PreviewBoxes(ContactBoxCode::BoxType type, const QVector<QRect>& rects);
    ~PreviewBoxes() override;

    int count() const override;
    ContactBoxCode* at(int index) const override;
    ContactBoxCode::BoxType type() const override { return m_type; }

private:
    ContactBoxCode::BoxType m_type;
    std::vector<std::unique_ptr<ContactBoxCode>> m_boxes;
};

/// What an alignment would do to the shown frame.
class AlignPreview
{
public:
    AlignPreview(const Alignment& alignment, const BoxRects& boxes, const QPoint& offset);

    PreviewBoxes* boxes(ContactBoxCode::BoxType type);

    /// How far the sprite would move.
    QPoint shift() const { return m_shift; }

private:
    PreviewBoxes m_attack;
    PreviewBoxes m_collision;
    QPoint m_shift;
};

}  // namespace Zorv
