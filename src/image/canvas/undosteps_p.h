#pragma once

#include "image/canvas/imageundocommand.h"

#include <QString>

#include <algorithm>
#include <deque>
#include <memory>
#include <vector>

namespace Zorv {

/// What one undo takes back: one command, or all commands of a macro.
struct UndoStep
{
    using Command = std::unique_ptr<ImageUndoCommand>;

    QString text;
    std::vector<Command> commands;
    qint64 bytes = 0;
    bool packed = false;
    bool sealed = false;

    void undo()
    {
        std::for_each(commands.rbegin(), commands.rend(), [](const Command& x) { x->undo(); });
    }
    void redo()
    {
        std::for_each(commands.begin(), commands.end(), [](const Command& x) { x->redo(); });
    }

    /// Removes commands from the back, which is the only safe order.
    void shrink(std::size_t size)
    {
        while (commands.size() > size) {
            commands.pop_back();
        }
    }
    void measure()
    {
        bytes = 0;
        for (const Command& command : commands) {
            bytes += command->byteSize();
        }
    }

    /// Packs up to `limit` bytes; returns what is left of the limit.
    qint64 pack(qint64 limit)
    {
        for (const Command& command : commands) {
            qint64 done = 1;
            while (limit > 0 && done > 0) {
                done = command->pack(limit);
                limit -= done;
            }
        }
        packed = limit > 0;
        return limit;
    }
};

/// The steps of a history and the current position in it.
struct UndoSteps
{
    std::deque<UndoStep> steps;
    qint64 bytes = 0;            ///< of all steps
    std::size_t firstLoose = 0;  ///< all steps before this one are completely packed
    qint64 packedBytes = 0;      ///< of the steps before `firstLoose`
    std::size_t index = 0;
    int cleanIndex = 0;

    UndoSteps() = default;
    UndoSteps(UndoSteps&&) = default;
    UndoSteps& operator=(UndoSteps&&) = default;

    /// Deletes later steps first: commands may hold the last references to layers.
    ~UndoSteps()
    {
        while (!steps.empty()) {
            steps.pop_back();
        }
    }
};

}  // namespace Zorv
