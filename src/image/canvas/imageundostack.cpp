#include "image/canvas/imageundostack.h"

#include "image/canvas/imageundocommand.h"
#include "image/canvas/undosteps_p.h"

#include <QString>

#include <algorithm>
#include <deque>
#include <limits>
#include <utility>
#include <vector>

// Steps are in a deque, the oldest first; `index` is how many of them are done. Each step knows its
// bytes. Memory is limited in three stages:
// - When the unpacked steps exceed a quarter of the budget, each new step packs (compresses) some
//   of the oldest ones. `firstLoose` is how far this has come.
// - Over the budget, the steps farthest from the present are packed completely.
// - If that is not enough for a new step, the oldest steps are dropped.
//
// Undo and redo exchange data with the canvas, so the step that moved is measured again.
//
// A pending stroke is not a step yet. Operations call `finishPending()` first, which pushes it.
// Change signals are sent only by `tell()`, which compares with what was sent last.

namespace Zorv {

namespace {

using Step = UndoStep;
using Command = UndoStep::Command;

// Packing costs time, and so does undoing a packed step. So packing starts with the oldest steps,
// when the unpacked ones exceed this share of the budget. Each new step packs as many bytes as it
// adds, but at least `PackedAtOnce`.
const int LooseShare = 4;
const qint64 PackedAtOnce = qint64(256) << 10;

}  // namespace

class ImageUndoStackPrivate : public UndoSteps
{
public:
    /// The state that was signalled last.
    struct Shown
    {
        int index = 0;
        bool canUndo = false;
        bool canRedo = false;
        bool clean = true;
        QString undoText;
        QString redoText;
    };

    explicit ImageUndoStackPrivate(ImageUndoStack* stack) : q(stack) {}

    void finishPending();
    void dropRedo();
    void add(Step step);
    bool merge(ImageUndoCommand* command);
    void removeLast();
    void measure(Step& step);
    void moveTo(std::size_t place, void (Step::*act)());
    void loosenFrom(std::size_t place);
    void packOld();
    void packFarFrom(std::size_t place);
    void keepToBudget();
    void tell();

    ImageUndoStack* const q;
    qint64 budget = ImageUndoStack::DefaultBudget;
    Step macro;
    std::vector<std::size_t> macroBegins;  ///< for each open macro, its first command
    std::function<void()> pending;
    QString pendingText;
    bool moving = false;
    Shown shown;
};

void ImageUndoStackPrivate::finishPending()
{
    if (pending) {
        const std::function<void()> finish = std::exchange(pending, nullptr);
        finish();
    }
}

void ImageUndoStackPrivate::dropRedo()
{
    loosenFrom(index);
    while (steps.size() > index) {
        bytes -= steps.back().bytes;
        steps.pop_back();
    }
    if (cleanIndex > int(index)) {
        cleanIndex = -1;
    }
}

void ImageUndoStackPrivate::add(Step step)
{
    steps.push_back(std::move(step));
    ++index;
    measure(steps.back());
    packOld();
    keepToBudget();
}

// Never merges into a clean step: its state could not be reached again.
bool ImageUndoStackPrivate::merge(ImageUndoCommand* command)
{
    if (index == 0 || cleanIndex == int(index) || steps.back().sealed ||
        steps.back().commands.size() != 1) {
        return false;
    }
    ImageUndoCommand* const last = steps.back().commands.front().get();
    if (command->id() == -1 || last->id() != command->id() || !last->mergeWith(command)) {
        return false;
    }
    if (last->isObsolete()) {
        removeLast();
    } else {
        loosenFrom(index - 1);
        steps.back().packed = false;
        measure(steps.back());
        keepToBudget();
    }
    return true;
}

void ImageUndoStackPrivate::removeLast()
{
    --index;
    dropRedo();
}

void ImageUndoStackPrivate::measure(Step& step)
{
    bytes -= step.bytes;
    step.measure();
    bytes += step.bytes;
}

void ImageUndoStackPrivate::loosenFrom(std::size_t place)
{
    while (firstLoose > place) {
        packedBytes -= steps[--firstLoose].bytes;
    }
}

// After moving, a step holds new data that is not packed.
void ImageUndoStackPrivate::moveTo(std::size_t place, void (Step::*act)())
{
    moving = true;
    emit q->aboutToMove();
    loosenFrom(place);
    Step& step = steps[place];
    (step.*act)();
    measure(step);
    step.sealed = true;
    step.packed = false;
    packFarFrom(place);
    moving = false;
}

void ImageUndoStackPrivate::packOld()
{
    qint64 limit = std::max(PackedAtOnce, steps.back().bytes);
    while (firstLoose + 1 < index && limit > 0 && bytes - packedBytes > budget / LooseShare) {
        Step& step = steps[firstLoose];
        limit = step.packed ? limit : step.pack(limit);
        measure(step);
        if (step.packed) {
            packedBytes += step.bytes;
            ++firstLoose;
        }
    }
}

// Over the budget, packs steps, the farthest from `place` first.
void ImageUndoStackPrivate::packFarFrom(std::size_t place)
{
    std::size_t first = firstLoose;
    std::size_t end = steps.size();
    while (bytes > budget && first < end) {
        const bool isFirst = first + end - 1 < 2 * place;
        Step& step = steps[isFirst ? first++ : --end];
        if (!step.packed) {
            step.pack(std::numeric_limits<qint64>::max());
            measure(step);
        }
    }
}

void ImageUndoStackPrivate::keepToBudget()
{
    packFarFrom(index);
    while (index > 1 && bytes > budget) {
        bytes -= steps.front().bytes;
        if (firstLoose > 0) {
            packedBytes -= steps.front().bytes;
            --firstLoose;
        }
        steps.pop_front();
        --index;
        // The clean state is lost with the step that follows it.
        cleanIndex = std::max(cleanIndex - 1, -1);
    }
}

void ImageUndoStackPrivate::tell()
{
    const Shown now = {int(index),   q->canUndo(),  q->canRedo(),
                       q->isClean(), q->undoText(), q->redoText()};
    const Shown before = std::exchange(shown, now);
    if (now.index != before.index) {
        emit q->indexChanged(now.index);
    }
    if (now.canUndo != before.canUndo) {
        emit q->canUndoChanged(now.canUndo);
    }
    if (now.canRedo != before.canRedo) {
        emit q->canRedoChanged(now.canRedo);
    }
    if (now.clean != before.clean) {
        emit q->cleanChanged(now.clean);
    }
    if (now.undoText != before.undoText) {
        emit q->undoTextChanged(now.undoText);
    }
    if (now.redoText != before.redoText) {
        emit q->redoTextChanged(now.redoText);
    }
}

ImageUndoStack::ImageUndoStack(QObject* parent)
    : QObject(parent), d(std::make_unique<ImageUndoStackPrivate>(this))
{
}

// Deletes later commands first: they may hold the last references to layers.
ImageUndoStack::~ImageUndoStack()
{
    d->macro.shrink(0);
}

void ImageUndoStack::push(ImageUndoCommand* command)
{
    Command owned(command);
    d->finishPending();
    owned->redo();
    if (owned->isObsolete()) {
        d->tell();
        return;
    }
    if (!d->macroBegins.empty()) {
        d->macro.commands.push_back(std::move(owned));
        return;
    }
    d->dropRedo();
    if (!d->merge(command)) {
        Step step;
        step.text = command->text();
        step.commands.push_back(std::move(owned));
        d->add(std::move(step));
    }
    d->tell();
}

void ImageUndoStack::beginMacro(const QString& text)
{
    d->finishPending();
    if (d->macroBegins.empty()) {
        d->macro = Step();
        d->macro.text = text;
    }
    d->macroBegins.push_back(d->macro.commands.size());
}

void ImageUndoStack::endMacro()
{
    d->finishPending();
    if (d->macroBegins.empty()) {
        return;
    }
    d->macroBegins.pop_back();
    if (!d->macroBegins.empty()) {
        return;
    }
    Step step = std::exchange(d->macro, Step());
    if (!step.commands.empty()) {
        step.sealed = true;
        d->dropRedo();
        d->add(std::move(step));
    }
    d->tell();
}

void ImageUndoStack::cancelMacro()
{
    d->finishPending();
    if (d->macroBegins.empty()) {
        return;
    }
    const std::size_t begin = d->macroBegins.back();
    for (std::size_t i = d->macro.commands.size(); i > begin; --i) {
        d->macro.commands[i - 1]->undo();
    }
    d->macro.shrink(begin);
    endMacro();
}

void ImageUndoStack::seal()
{
    d->finishPending();
    if (d->index > 0) {
        d->steps[d->index - 1].sealed = true;
    }
}

void ImageUndoStack::undo()
{
    d->finishPending();
    if (d->moving || !canUndo()) {
        d->tell();
        return;
    }
    d->moveTo(d->index - 1, &Step::undo);
    --d->index;
    seal();
    emit moved();
    d->tell();
}

void ImageUndoStack::redo()
{
    d->finishPending();
    if (d->moving || !canRedo()) {
        d->tell();
        return;
    }
    d->moveTo(d->index, &Step::redo);
    ++d->index;
    emit moved();
    d->tell();
}

void ImageUndoStack::clear()
{
    d->finishPending();
    d->macroBegins.clear();
    d->macro.shrink(0);
    d->index = 0;
    d->dropRedo();
    d->cleanIndex = 0;
    d->tell();
}

std::unique_ptr<UndoSteps> ImageUndoStack::takeSteps()
{
    d->finishPending();
    auto taken = std::make_unique<UndoSteps>(std::move(static_cast<UndoSteps&>(*d)));
    static_cast<UndoSteps&>(*d) = UndoSteps();
    d->tell();
    return taken;
}

void ImageUndoStack::putSteps(std::unique_ptr<UndoSteps> steps)
{
    clear();
    static_cast<UndoSteps&>(*d) = std::move(*steps);
    d->keepToBudget();
    d->tell();
}

bool ImageUndoStack::canUndo() const
{
    return d->macroBegins.empty() && (d->index > 0 || d->pending);
}

bool ImageUndoStack::canRedo() const
{
    return d->macroBegins.empty() && d->index < d->steps.size() && !d->pending;
}

QString ImageUndoStack::undoText() const
{
    if (d->pending) {
        return d->pendingText;
    }
    return d->index > 0 ? d->steps[d->index - 1].text : QString();
}

QString ImageUndoStack::redoText() const
{
    return d->index < d->steps.size() ? d->steps[d->index].text : QString();
}

bool ImageUndoStack::isClean() const
{
    return d->cleanIndex == int(d->index) && !d->pending && d->macro.commands.empty();
}

void ImageUndoStack::setClean()
{
    d->finishPending();
    d->cleanIndex = int(d->index);
    d->tell();
}

void ImageUndoStack::resetClean()
{
    d->cleanIndex = -1;
    d->tell();
}

int ImageUndoStack::count() const
{
    return int(d->steps.size());
}

int ImageUndoStack::index() const
{
    return int(d->index);
}

qint64 ImageUndoStack::byteSize() const
{
    return d->bytes;
}

qint64 ImageUndoStack::budget() const
{
    return d->budget;
}

void ImageUndoStack::setBudget(qint64 bytes)
{
    d->budget = bytes;
    d->keepToBudget();
    d->tell();
}

void ImageUndoStack::setPending(const std::function<void()>& finish, const QString& text)
{
    d->pending = finish;
    d->pendingText = text;
    d->tell();
}

}  // namespace Zorv
