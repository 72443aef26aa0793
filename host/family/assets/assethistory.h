#pragma once

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Family {

/// The undo of a collection: steps of changes, shared by all lists of one file.
///
/// A list changes itself, then records how to go back and forth. Records that only a step still
/// knows live in it. Main thread only.
class AssetHistory
{
public:
    /// One change, done already when it is recorded.
    class Change
    {
    public:
        virtual ~Change();
        virtual void undo() = 0;
        virtual void redo() = 0;
    };

    /// Another value in a place that outlives the history. It changes when it is recorded.
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

    /// Opens a step, and closes it at the end of a block.
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

    /// Keeps all records where they are for as long as it lives: who would replace them, as
    /// reading the file again does, asks `isHeld()` first.
    class Hold
    {
    public:
        explicit Hold(const AssetHistory& history) : m_holds(history.m_holds) { ++m_holds; }
        ~Hold() { --m_holds; }

    private:
        Q_DISABLE_COPY(Hold)
        int& m_holds;
    };

    /// `changed` is called after each step that was made, undone or redone, when all is true
    /// again.
    explicit AssetHistory(std::function<void()> changed);
    ~AssetHistory();

    /// Open and close a step. Steps in a step are one, named by the outermost title that is not
    /// empty. One without a change leaves nothing behind.
    void begin(const QString& title);
    void end();

    /// Names the open step by what was done first in it, for work that ends there. So a step does
    /// not promise what was given up. Nothing if nothing is done yet.
    void nameByFirstPart();

    /// True inside of a step.
    bool isOpen() const { return m_depth > 0; }

    /// True while records are in use: in a step, or held.
    bool isHeld() const { return m_depth > 0 || m_holds > 0; }

    /// Takes a change up; in a step of its own if none is open. Steps that were undone are gone.
    void record(std::unique_ptr<Change> change);

    /// True while a step is undone or redone: nothing is to be recorded.
    bool isReplaying() const { return m_replaying; }

    /// Go one step back or forth; nothing if there is none, or a step is open.
    void undo();
    void redo();
    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < int(m_steps.size()); }

    /// The title of the step that `undo()` or `redo()` would take; empty without one.
    QString undoTitle() const;
    QString redoTitle() const;

    /// The state that was saved: `isClean()` is true in it, however it is reached. What was saved
    /// in the middle of a step is no state that undo leads to: then none is clean. `setDirty()` is
    /// for a content that is in no file.
    bool isClean() const { return m_done == m_clean && m_open.changes.empty(); }
    void setClean() { m_clean = m_open.changes.empty() ? m_done : -1; }
    void setDirty() { m_clean = -1; }

    /// True if `isClean()` is another one than when this was asked last.
    bool hasCleanChanged();

    /// Forgets all steps; the present state is clean.
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
    QString m_part;       // the title of the step that is open in the open one,
    QString m_firstPart;  // and that of the first change
    int m_done = 0;       // steps in front of here are done, those behind undone
    int m_clean = 0;      // the value of m_done when it was saved; -1 if that is out of reach
    int m_depth = 0;
    mutable int m_holds = 0;
    bool m_replaying = false;
    bool m_toldClean = true;
};

}  // namespace Family
