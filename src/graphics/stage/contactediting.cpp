// Moving and resizing of selected boxes, on the stage first and then in the text.
//
// A drag changes only the stage's copies (ContactItem); `updateSelectedBoxes()` writes them to the
// text afterwards, in one undo step. A resize is always computed from the rectangles at the press,
// never from the previous mouse move, so rounding errors cannot add up. All selected boxes stretch
// together: the drag changes the rectangle around the selection, and every box is scaled by the
// same factor and shifted by the same amount.

#include "code/codedoc/contactboxescode.h"
#include "graphics/stage/boxedits_p.h"
#include "graphics/stage/graphicsrenderer.h"
#include "graphics/stage/graphicsrenderer_p.h"
#include "graphics/stage/positionmode.h"
#include "graphics/stage/rounding_p.h"

#include <algorithm>

namespace Zorv {

namespace {

bool movesLeft(GraphicsRenderer::RenderElement sizer)
{
    return sizer <= GraphicsRenderer::LeftSizer || sizer == GraphicsRenderer::BottomLeftSizer;
}

bool movesTop(GraphicsRenderer::RenderElement sizer)
{
    return sizer <= GraphicsRenderer::TopRightSizer;
}

/// One axis of a resize: the factor for lengths and the mapping of places.
struct Stretch
{
    Stretch(int oldLow, int oldHigh, int newLow, int newHigh)
    {
        const double oldLength = oldHigh + 1.0 - oldLow;
        factor = oldLength == 0 ? 1 : (newHigh + 1.0 - newLow) / oldLength;
        shift = oldLow * factor - newLow;
    }

    double place(double source) const { return source * factor - shift; }

    double factor;
    double shift;
};

}  // namespace

void GraphicsRendererPrivate::sizeMoveContact(bool size, RenderElement sizer, QPoint delta)
{
    if (size) {
        resizeContact(sizer, delta);
    } else {
        moveContact(delta);
    }
}

void GraphicsRendererPrivate::moveContact(QPoint delta)
{
    const int dx = isMovableX(contactMode) ? delta.x() : 0;
    const int dy = isMovableY(contactMode) ? delta.y() : 0;
    if (!isMovable(contactMode)) {
        return;
    }
    for (ContactBoxes& boxes : contactBoxes) {
        for (ContactItem& item : boxes.items) {
            if (item.selected) {
                item.x += dx;
                item.y += dy;
            }
        }
    }
    selectionRect = QRect(stageSum(selectionRect.topLeft(), {dx, dy}),
                          stageSum(selectionRect.bottomRight(), {dx, dy}));
}

// Starts a resize from the rectangles in the text: boxes may have moved since they were set.
void GraphicsRendererPrivate::beginResize()
{
    selectionStart = selectionRect;
    for (ContactBoxes& boxes : contactBoxes) {
        for (int i = 0; i < boxes.items.size(); ++i) {
            ContactItem& item = boxes.items[i];
            if (const ContactBoxCode* box = boxes.code.box(i, item.selected ? item.box : nullptr)) {
                item.source = box->rect();
            }
        }
    }
}

void GraphicsRendererPrivate::resizeContact(RenderElement sizer, QPoint delta)
{
    // The selection at the press may be gone by now.
    if (!hasSelection && clickMode != GraphicsRenderer::DrawContactBoxMode) {
        return;
    }
    QPoint topLeft = selectionStart.topLeft();
    QPoint bottomRight = selectionStart.bottomRight();
    const bool left = movesLeft(sizer);
    const bool top = movesTop(sizer);
    topLeft = stageSum(topLeft, {left ? delta.x() : 0, top ? delta.y() : 0});
    bottomRight = stageSum(bottomRight, {left ? 0 : delta.x(), top ? 0 : delta.y()});
    const Stretch x(selectionStart.left(), selectionStart.right(), topLeft.x(), bottomRight.x());
    const Stretch y(selectionStart.top(), selectionStart.bottom(), topLeft.y(), bottomRight.y());
    for (ContactBoxes& boxes : contactBoxes) {
        for (ContactItem& item : boxes.items) {
            if (!item.selected) {
                continue;
            }
            const QRect& source = item.box ? item.source : selectionStart;
            item.x = x.place(source.left());
            item.y = y.place(source.top());
            item.width = (source.right() + 1.0 - source.left()) * x.factor;
            item.height = (source.bottom() + 1.0 - source.top()) * y.factor;
        }
    }
    selectionRect = QRect(topLeft, bottomRight);
}

void GraphicsRendererPrivate::resetSelectionRect()
{
    selectionRect.setCoords(4444, 4444, -4445, -4445);
}

void GraphicsRendererPrivate::updateBoxSelection(const QRect& rect)
{
    selectionRect.setCoords(std::min(selectionRect.left(), rect.left()),
                            std::min(selectionRect.top(), rect.top()),
                            std::max(selectionRect.right(), rect.right()),
                            std::max(selectionRect.bottom(), rect.bottom()));
}

void GraphicsRendererPrivate::unselectBoxes()
{
    for (ContactBoxes& boxes : contactBoxes) {
        for (ContactItem& item : boxes.items) {
            item.selected = false;
        }
    }
}

CodeDocument* GraphicsRendererPrivate::boxDocument() const
{
    for (const ContactBoxes& boxes : contactBoxes) {
        const ContactBoxesCode* code = boxes.code.get();
        if (code && !boxes.items.isEmpty()) {
            return code->document();
        }
    }
    return nullptr;
}

void GraphicsRendererPrivate::deselectBoxes()
{
    hasSelection = false;
    resetSelectionRect();
    unselectBoxes();
}

void GraphicsRendererPrivate::tellSelection()
{
    QVector<GraphicsRenderer::SelectedBox> selection = q->selectedBoxes();
    if (selection != toldSelection) {
        toldSelection.swap(selection);
        emit q->boxSelectionChanged();
    }
}

/// Reports a moved box, but only if it is the only one selected. For many, no one needs the
/// position, and comparing them all costs more than the move.
void GraphicsRendererPrivate::tellMovedBox()
{
    if (toldSelection.size() == 1) {
        tellSelection();
    }
}

void GraphicsRenderer::deselectContactBoxes()
{
    d->deselectBoxes();
    d->tellSelection();
}

void GraphicsRenderer::setContactBoxesLocked(ContactBoxCode::BoxType type, bool isLocked)
{
    if (!isBoxType(type)) {
        return;
    }
    d->leaveMode();
    d->contactBoxes[size_t(type - 1)].locked = isLocked;
    if (isLocked) {
        d->deselectBoxes();
        d->tellSelection();
    }
    update();
}

bool GraphicsRenderer::contactBoxesLocked(ContactBoxCode::BoxType type) const
{
    return isBoxType(type) && d->contactBoxes[size_t(type - 1)].locked;
}

QVector<GraphicsRenderer::SelectedBox> GraphicsRenderer::selectedBoxes() const
{
    QVector<SelectedBox> selected;
    for (size_t list = 0; list < d->contactBoxes.size(); ++list) {
        const QVector<ContactItem>& items = d->contactBoxes[list].items;
        for (int i = 0; i < items.size(); ++i) {
            const ContactItem& item = items.at(i);
            if (item.selected && item.box) {
                selected.append({ContactBoxCode::BoxType(list + 1), i, item.normalRect()});
            }
        }
    }
    return selected;
}

void GraphicsRenderer::setSelectedBoxRect(const QRect& rect)
{
    const QVector<SelectedBox> selected = selectedBoxes();
    if (selected.size() != 1 || rect.isEmpty()) {
        return;
    }
    d->finishPress();
    const SelectedBox& box = selected.first();
    d->contactBoxes[size_t(box.type - 1)].items[box.index].setRect(rect);
    d->hasSelection = true;
    d->selectionRect = rect;
    d->tellSelection();
    update();
}

void GraphicsRenderer::moveSelectedContactBoxes(QPoint delta)
{
    if (!d->hasSelection) {
        return;
    }
    const bool isAbsolute = positionMode(d->contactMode) == AbsoluteAnchor;
    d->sizeMoveContact(false, ContactBoxElement, isAbsolute ? d->scaled(delta) : delta);
    d->tellMovedBox();
    update();
}

void GraphicsRenderer::updateSelectedBoxes()
{
    int selected = 0;
    BoxEdits edits;
    for (std::size_t list = 0; list < edits.size(); ++list) {
        ContactBoxes& boxes = d->contactBoxes[list];
        for (int i = 0; i < boxes.items.size(); ++i) {
            ContactItem& item = boxes.items[i];
            const ContactBoxCode* box = item.selected ? boxes.code.box(i, item.box) : nullptr;
            if (!box) {
                continue;
            }
            ++selected;
            if (item.rect() != box->rect()) {
                // A box that was flipped by a handle is normalized here, as in the text. Otherwise
                // it would no longer match and lose its selection.
                item.setRect(item.normalRect());
                edits[list].append({i, item.rect()});
            }
        }
    }
    CodeDocument* document = selected > 1 ? d->boxDocument() : nullptr;
    applyBoxEdits(edits, d->contactBoxes, document, tr("Change contact box rectangle"));
}

void GraphicsRenderer::removeSelectedContactBoxes()
{
    if (!d->hasSelection) {
        return;
    }
    CodeDocument* document = d->boxDocument();
    BoxEdits edits;
    for (std::size_t list = 0; list < edits.size(); ++list) {
        ContactBoxes& boxes = d->contactBoxes[list];
        // Backwards, so that the indices of the remaining boxes stay valid.
        for (int i = boxes.items.size() - 1; i >= 0; --i) {
            const ContactItem& item = boxes.items.at(i);
            if (item.selected && boxes.code.box(i, item.box)) {
                edits[list].append({i, std::nullopt});
            }
        }
        const auto isSelected = [](const ContactItem& item) { return item.selected; };
        boxes.items.erase(std::remove_if(boxes.items.begin(), boxes.items.end(), isSelected),
                          boxes.items.end());
    }
    d->resetSelectionRect();
    d->hasSelection = false;
    applyBoxEdits(edits, d->contactBoxes, document, tr("Remove selected contact boxes"));
    d->tellSelection();
    update();
}

QList<ContactBoxCode*> GraphicsRenderer::selectedContactBoxes()
{
    QList<ContactBoxCode*> selected;
    for (const ContactBoxes& boxes : qAsConst(d->contactBoxes)) {
        for (int i = 0; i < boxes.items.size(); ++i) {
            const ContactItem& item = boxes.items.at(i);
            ContactBoxCode* box = item.selected ? boxes.code.box(i, item.box) : nullptr;
            if (box) {
                selected.append(box);
            }
        }
    }
    return selected;
}

}  // namespace Zorv
