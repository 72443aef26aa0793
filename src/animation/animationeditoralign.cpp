#include "animation/animationeditor_p.h"
#include "animation/dialogs/animalign.h"
#include "code/codedoc/animations.h"
#include "code/codedoc/framecode.h"
#include "core/interface.h"

namespace Zorv {

namespace {

class PreviewBox : public ContactBoxCode
{
public:
    PreviewBox(const QRect& rect, ContactBoxesCode* boxes) : m_rect(rect), m_boxes(boxes) {}

    QRect rect() const override { return m_rect; }
    void setRect(const QRect&) override {}
    ContactBoxesCode* boxes() const override { return m_boxes; }
    int line() const override { return -1; }

private:
    QRect m_rect;
    ContactBoxesCode* m_boxes;
};

QVector<QRect> alignedBoxes(QVector<QRect> rects, const Alignment& alignment)
{
    for (QRect& rect : rects) {
        rect = aligned(rect, alignment);
    }
    return rects;
}

}  // namespace

PreviewBoxes::PreviewBoxes(ContactBoxCode::BoxType type, const QVector<QRect>& rects) : m_type(type)
{
    for (const QRect& rect : rects) {
        m_boxes.push_back(std::make_unique<PreviewBox>(rect, this));
    }
}

PreviewBoxes::~PreviewBoxes() = default;

int PreviewBoxes::count() const
{
    return int(m_boxes.size());
}

ContactBoxCode* PreviewBoxes::at(int index) const
{
    return index >= 0 && index < count() ? m_boxes[std::size_t(index)].get() : nullptr;
}

AlignPreview::AlignPreview(const Alignment& alignment, const BoxRects& boxes, const QPoint& offset)
    : m_attack(ContactBoxCode::Attack, alignedBoxes(boxes.attack, alignment)),
      m_collision(ContactBoxCode::Collision, alignedBoxes(boxes.collision, alignment)),
      m_shift(aligned(offset, alignment) - offset)
{
}

PreviewBoxes* AlignPreview::boxes(ContactBoxCode::BoxType type)
{
    return type == ContactBoxCode::Attack ? &m_attack : &m_collision;
}

/// The dialog blocks the window, but the text can still change behind it.
void AnimationEditorPrivate::frameAlign()
{
    const FramePlace shown = beginAct();
    if (shown == FramePlace() || alignDialog) {
        return;
    }
    alignDialog = new AnimAlign(animations, shown.animation, host->mainWindow());
    alignDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(alignDialog, &AnimAlign::changed, this,
            [this] { editor->animationCodeChanged(false, false); });
    connect(alignDialog, &QDialog::finished, this, [this] {
        alignDialog = nullptr;
        editor->animationCodeChanged(false, false);
    });
    alignDialog->open();
}

/// Must run before anything shows the frame.
void AnimationEditorPrivate::preparePreview()
{
    preview.reset();
    const FrameCode* frame = currentFrame();
    if (frame && alignDialog && alignDialog->hasPreview() &&
        alignDialog->selected().contains(animationIndex())) {
        preview = std::make_unique<AlignPreview>(alignDialog->alignment(), boxesOf(frame),
                                                 frame->offset());
    }
}

/// Shows them instead of the boxes in the text.
void AnimationEditorPrivate::showPreviewBoxes()
{
    for (const auto type : {ContactBoxCode::Attack, ContactBoxCode::Collision}) {
        if (preview) {
            renderer->setContactBoxes(type, preview->boxes(type));
        }
    }
}

}  // namespace Zorv
