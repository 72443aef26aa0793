#pragma once

#include "zorv_export.h"

#include <QUndoCommand>

namespace Zorv {

/// A step of undo of a canvas. It is pushed when its action is done already, so that the first
/// `redo()` does nothing.
///
/// A command that finds that it changes nothing calls `setObsolete(true)`, and the stack drops it.
class ZORV_EXPORT ImageUndoCommand : public QUndoCommand
{
public:
    explicit ImageUndoCommand(const QString& text = QString());
    ~ImageUndoCommand() override;

    /// Calls `doRedo()`, but for the first time.
    void redo() final;

    /// The bytes that are held for this step only. They may change with `undo()`, `redo()` and
    /// `pack()`.
    virtual qint64 byteSize() const = 0;

    /// Packs about `limit` bytes of what is held and not packed yet, and tells how many were
    /// looked at: 0 if nothing is left to pack.
    virtual qint64 pack(qint64 limit);

protected:
    virtual void doRedo() = 0;

private:
    bool m_firstRedo = true;
};

}  // namespace Zorv
