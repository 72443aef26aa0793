#pragma once

#include "zorv_export.h"

#include <QUndoCommand>

namespace Zorv {

/// An undo step of a canvas. It is pushed after its action is done, so the first `redo()` does
/// nothing.
///
/// A command that finds out that it changes nothing calls `setObsolete(true)`; the stack drops it.
class ZORV_EXPORT ImageUndoCommand : public QUndoCommand
{
public:
    explicit ImageUndoCommand(const QString& text = QString());
    ~ImageUndoCommand() override;

    /// Calls `doRedo()`, except the first time, when the push itself calls it.
    void redo() final;

    /// The bytes held only for this step. They may change in `undo()`, `redo()` and `pack()`.
    virtual qint64 byteSize() const = 0;

    /// Compresses about `limit` bytes that are not packed yet. Returns how many were looked at: 0
    /// if nothing is left to pack.
    virtual qint64 pack(qint64 limit);

protected:
    virtual void doRedo() = 0;

private:
    bool m_firstRedo = true;
};

}  // namespace Zorv
