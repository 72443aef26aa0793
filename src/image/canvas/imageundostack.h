#pragma once

#include "zorv_export.h"

#include <QObject>

#include <functional>
#include <memory>

namespace Zorv {

class ImageUndoCommand;
class ImageUndoStackPrivate;
struct UndoSteps;

/// The history of a canvas: like a `QUndoStack`, but it keeps to a number of bytes.
///
/// When the budget is passed, the steps that are farthest from the present are packed. If that is
/// not enough when one is added, the oldest are dropped, whole macros at a time. The last step
/// always stays. If the clean state was in front of a step that is dropped, nothing is clean until
/// `setClean()`. Undo and redo never take a step that does nothing.
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

    /// Takes over a command whose action is done. It becomes part of the open macro, or drops what
    /// could be redone and becomes part of the last step if that takes it
    /// (`QUndoCommand::mergeWith()`), or a step of its own. One that is obsolete is deleted; so is
    /// a step that has become obsolete.
    void push(ImageUndoCommand* command);

    /// What is pushed until `endMacro()` is one step, which drops what could be redone. An inner
    /// macro is part of the outer one. A macro in which nothing was pushed is no step.
    void beginMacro(const QString& text);
    void endMacro();

    /// Takes back what the open macro has done, from the innermost `beginMacro()` on, and ends it.
    void cancelMacro();

    /// What is pushed next becomes a step of its own.
    void seal();

    /// One step back or forth; without effect if there is none or a macro is open. An open stroke
    /// is ended first.
    void undo();
    void redo();

    /// Drops all steps. The present state is clean then.
    void clear();

    bool canUndo() const;
    bool canRedo() const;

    /// The texts of the next steps; empty without one.
    QString undoText() const;
    QString redoText() const;

    /// Whether the state is the one in which `setClean()` was called last.
    bool isClean() const;
    void setClean();
    void resetClean();

    /// The number of steps, and of those that are done.
    int count() const;
    int index() const;

    /// The bytes that all steps hold, and how many they may.
    qint64 byteSize() const;
    qint64 budget() const;
    void setBudget(qint64 bytes);

    /// What has begun and is not pushed yet, such as a stroke: `finish` pushes it. It is called
    /// before anything else happens to the stack. While there is one, undo is possible, with `text`
    /// as that of its step, and the state is not clean. An empty function ends this.
    void setPending(const std::function<void()>& finish, const QString& text = {});

signals:
    /// Around an undo or redo, so that a listener can act once for the whole step.
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

    /// All steps, with what is clean; the stack is as after `clear()` then. They are put into the
    /// same stack again, in place of what it has.
    std::unique_ptr<UndoSteps> takeSteps();
    void putSteps(std::unique_ptr<UndoSteps> steps);

    std::unique_ptr<ImageUndoStackPrivate> d;
};

}  // namespace Zorv
