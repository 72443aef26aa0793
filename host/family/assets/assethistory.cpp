#include "family/assets/assethistory.h"

#include <QScopedValueRollback>

// `m_steps` holds done steps before index `m_done` and undone ones from there on. A new step drops
// the undone ones. The saved state is also just an index, `m_clean`; it becomes -1 when its step is
// dropped, because then no undo or redo leads back to it. Steps nest by counting; only the
// outermost end stores the step.

namespace Family {

namespace {

constexpr int MostSteps = 1000;

}

AssetHistory::Change::~Change() = default;

AssetHistory::AssetHistory(std::function<void()> changed) : m_changed(std::move(changed)) {}

AssetHistory::~AssetHistory() = default;

void AssetHistory::begin(const QString& title)
{
    if (m_open.title.isEmpty()) {
        m_open.title = title;
    }
    if (m_depth > 0 && m_part.isEmpty()) {
        m_part = title;
    }
    ++m_depth;
}

void AssetHistory::end()
{
    if (m_depth == 2) {
        m_part.clear();
    }
    if (m_depth == 0 || --m_depth > 0) {
        return;
    }
    Entry step = std::move(m_open);
    m_open = {};
    if (step.changes.empty()) {
        return;
    }
    if (m_clean > m_done) {
        m_clean = -1;
    }
    m_steps.erase(m_steps.begin() + m_done, m_steps.end());
    m_steps.push_back(std::move(step));
    ++m_done;
    if (m_done > MostSteps) {
        m_steps.erase(m_steps.begin());
        --m_done;
        m_clean = m_clean > 0 ? m_clean - 1 : -1;
    }
    m_changed();
}

void AssetHistory::record(std::unique_ptr<Change> change)
{
    const Step step(*this, {});
    if (m_open.changes.empty()) {
        m_firstPart = m_part;
    }
    m_open.changes.push_back(std::move(change));
}

void AssetHistory::nameByFirstPart()
{
    if (!m_open.changes.empty() && !m_firstPart.isEmpty()) {
        m_open.title = m_firstPart;
    }
}

void AssetHistory::undo()
{
    if (isOpen() || m_replaying || !canUndo()) {
        return;
    }
    {
        const QScopedValueRollback<bool> replaying(m_replaying, true);
        auto& changes = m_steps[size_t(--m_done)].changes;
        for (auto change = changes.rbegin(); change != changes.rend(); ++change) {
            (*change)->undo();
        }
    }
    m_changed();
}

void AssetHistory::redo()
{
    if (isOpen() || m_replaying || !canRedo()) {
        return;
    }
    {
        const QScopedValueRollback<bool> replaying(m_replaying, true);
        for (auto& change : m_steps[size_t(m_done++)].changes) {
            change->redo();
        }
    }
    m_changed();
}

QString AssetHistory::undoTitle() const
{
    return canUndo() ? m_steps[size_t(m_done - 1)].title : QString();
}

QString AssetHistory::redoTitle() const
{
    return canRedo() ? m_steps[size_t(m_done)].title : QString();
}

bool AssetHistory::hasCleanChanged()
{
    const bool wasClean = std::exchange(m_toldClean, isClean());
    return wasClean != m_toldClean;
}

void AssetHistory::clear()
{
    m_steps.clear();
    m_open.changes.clear();
    m_done = 0;
    m_clean = 0;
}

}  // namespace Family
