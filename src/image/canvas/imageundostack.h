#pragma once

#include "zorv_export.h"

#include <QObject>

#include <functional>
#include <memory>

namespace Zorv {

class ImageUndoCommand;
class ImageUndoStackPrivate;
struct UndoSteps;

/// The history of a canvas: like a `QUndoStack`, but with a memory limit, its budget.
///
/// Over the budget, the steps farthest from the present are packed (compressed). If that is not
/// enough when a step is added, the oldest steps are dropped, whole macros at a time. The last step
/// is always kept. If the clean state was before a dropped step, no state is clean until
/// `setClean()`. Undo and redo never move over a step that does nothing.
///
/// Main thread only.
class ZORV_EXPORT ImageUndoStack : public QObject
{
    Q_OBJECT

public:
    /// The budget of a new stack: 256 MB.
    static constexpr qint64 DefaultBudget = qint64(256) << 20;

    explicit ImageUndoStack(QObject* parent = nullptr);
    ~ImageUndoStack() override;

    /// Takes over a command whose action is done. It joins the open macro; otherwise it drops the
    /// redo steps and merges into the last step (`QUndoCommand::mergeWith()`) or becomes a new one.
    /// An obsolete command is deleted; so is a step that has become obsolete.
    void push(ImageUndoCommand* command);

    /// What is pushed until `endMacro()` becomes one step, which drops the redo steps. An inner
    /// macro is part of the outer one. A macro in which nothing was pushed makes no step.
    void beginMacro(const QString& text);
    void endMacro();

    /// Undoes the commands of the open macro since the innermost `beginMacro()`, and ends that
    /// macro.
    void cancelMacro();

    /// Prevents a merge: what is pushed next becomes a new step.
    void seal();

    /// One step back or forward. Ignored if there is none or a macro is open. An open stroke is
    /// ended first.
    void undo();
    void redo();

    /// Drops all steps. The present state is then clean.
    void clear();

    bool canUndo() const;
    bool canRedo() const;

    /// The texts of the next steps; empty if there are none.
    QString undoText() const;
    QString redoText() const;

    /// Whether the state is the one at the last `setClean()`.
    bool isClean() const;
    void setClean();
    void resetClean();

    /// The number of steps, and how many of them are done.
    int count() const;
    int index() const;

    /// The bytes that all steps hold, and how many they may hold.
    qint64 byteSize() const;
    qint64 budget() const;
    void setBudget(qint64 bytes);

    /// Registers something that has begun and is not pushed yet, such as a stroke: `finish` pushes
    /// it, and is called before anything else happens to the stack. Meanwhile undo is possible,
    /// with `text` as its text, and the state is not clean. An empty function ends this.
    void setPending(const std::function<void()>& finish, const QString& text = {});

signals:
    /// Emitted around an undo or redo, so a listener can act once for the whole step.
    void aboutToMove();
    void moved();

    void indexChanged(int index);
    void canUndoChanged(bool can);
    void canRedoChanged(bool can);
    void cleanChanged(bool clean);
    void undoTextChanged(const QString& text);
    void redoTextChanged(const QString& text);

private:
    friend class ImageCanvas;

    /// Takes out all steps with the clean state; the stack is then as after `clear()`. `putSteps()`
    /// puts them back into the same stack, replacing its steps.
    std::unique_ptr<UndoSteps> takeSteps();
    void putSteps(std::unique_ptr<UndoSteps> steps);

    std::unique_ptr<ImageUndoStackPrivate> d;
};

}  // namespace Zorv
