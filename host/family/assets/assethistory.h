#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Family {

/// The undo history of a collection: steps of changes, shared by all lists of one file.
///
/// A list first changes itself, then records how to undo and redo the change. Records that only a
/// step still uses are kept alive by it. Main thread only.
class AssetHistory
{
public:
    /// One change; already done when it is recorded.
    class Change
    {
    public:
        virtual ~Change();
        virtual void undo() = 0;
        virtual void redo() = 0;
    };

    /// Changes a value whose location outlives the history. Recording it makes the change.
    template <class Value>
    class Swap final : public Change
    {
    public:
        Swap(Value* place, Value other) : m_place(place), m_other(std::move(other)) { redo(); }
        void undo() override { std::swap(*m_place, m_other); }
        void redo() override { std::swap(*m_place, m_other); }

    private:
        Value* m_place;
        Value m_other;
    };

    /// Opens a step and closes it at the end of a block.
    class Step
    {
    public:
        Step(AssetHistory& history, const QString& title) : m_history(history)
        {
            m_history.begin(title);
        }
        ~Step() { m_history.end(); }

    private:
        Q_DISABLE_COPY(Step)
        AssetHistory& m_history;
    };

    /// Keeps all records in place while it lives. Code that would replace them, such as reloading
    /// the file, first checks `isHeld()`.
    class Hold
    {
    public:
        explicit Hold(const AssetHistory& history) : m_holds(history.m_holds) { ++m_holds; }
        ~Hold() { --m_holds; }

    private:
        Q_DISABLE_COPY(Hold)
        int& m_holds;
    };

    /// `changed` is called after each step that was made, undone or redone, when everything is
    /// consistent again.
    explicit AssetHistory(std::function<void()> changed);
    ~AssetHistory();

    /// Open and close a step. Nested steps form one step, named by the outermost non-empty title. A
    /// step without a change leaves no trace.
    void begin(const QString& title);
    void end();

    /// Names the open step after its first part, for work that is cancelled halfway: the title then
    /// does not promise what was not done. Does nothing if nothing is done yet.
    void nameByFirstPart();

    /// True inside of a step.
    bool isOpen() const { return m_depth > 0; }

    /// True while records are in use: during a step, or while held.
    bool isHeld() const { return m_depth > 0 || m_holds > 0; }

    /// Records a change, in a step of its own if none is open. Drops all undone steps.
    void record(std::unique_ptr<Change> change);

    /// True during undo or redo: nothing must be recorded then.
    bool isReplaying() const { return m_replaying; }

    /// Undo or redo one step; do nothing if there is none or a step is open.
    void undo();
    void redo();
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < int(m_steps.size()); }

    /// The title of the step that `undo()` or `redo()` would process; empty if there is none.
    QString undoTitle() const;
    QString redoTitle() const;

    /// The saved state: `isClean()` is true in it, however it is reached. A state saved in the
    /// middle of a step cannot be reached by undo; then no state is clean. `setDirty()` is for
    /// content that is in no file.
    bool isClean() const { return m_done == m_clean && m_open.changes.empty(); }
    void setClean() { m_clean = m_open.changes.empty() ? m_done : -1; }
    void setDirty() { m_clean = -1; }

    /// True if `isClean()` has changed since the last call.
    bool hasCleanChanged();

    /// Drops all steps; the current state becomes clean.
    void clear();

private:
    struct Entry
    {
        QString title;
        std::vector<std::unique_ptr<Change>> changes;
    };

    Q_DISABLE_COPY(AssetHistory)
    std::function<void()> m_changed;
    std::vector<Entry> m_steps;
    Entry m_open;
    QString m_part;       // the title of the nested step that is open,
    QString m_firstPart;  // and the title of the first change
    int m_done = 0;       // number of done steps; the others are undone
    int m_clean = 0;      // m_done at the last save; -1: unreachable
    int m_depth = 0;
    mutable int m_holds = 0;
    bool m_replaying = false;
    bool m_toldClean = true;
};

}  // namespace Family
