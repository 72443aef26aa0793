#include "code/codedoc/steptitles_p.h"

#include <QTextDocument>

#include <algorithm>

namespace Zorv {

void StepTitles::begin(const QString& title)
{
    m_open = {m_document->availableUndoSteps(), 0, title};
}

void StepTitles::name(const QString& title)
{
    if (m_open.title.isEmpty()) {
        m_open.title = title;
    }
}

void StepTitles::end()
{
    m_open.after = m_document->availableUndoSteps();
    if (m_open.after > m_open.before && !m_open.title.isEmpty()) {
        dropBehind(m_open.before);
        m_steps.append(m_open);
    }
}

void StepTitles::grown()
{
    dropBehind(m_edits);
    m_edits = m_document->availableUndoSteps();
}

/// If Qt merges an edit with the previous one, the history does not grow, but the undone steps are
/// dropped all the same.
void StepTitles::changed()
{
    m_edits = m_document->availableUndoSteps();
    if (!m_document->isRedoAvailable()) {
        dropBehind(m_edits);
    }
}

void StepTitles::dropBehind(int edits)
{
    while (!m_steps.isEmpty() && m_steps.last().after > edits) {
        m_steps.removeLast();
    }
}

QString StepTitles::undone() const
{
    const int edits = m_document->availableUndoSteps();
    const auto found = std::find_if(m_steps.begin(), m_steps.end(),
                                    [edits](const Step& step) { return step.after == edits; });
    return found == m_steps.end() ? QString() : found->title;
}

QString StepTitles::redone() const
{
    const int edits = m_document->availableUndoSteps();
    const auto found = std::find_if(m_steps.begin(), m_steps.end(),
                                    [edits](const Step& step) { return step.before == edits; });
    return found == m_steps.end() || !m_document->isRedoAvailable() ? QString() : found->title;
}

}  // namespace Zorv
