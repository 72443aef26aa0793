#pragma once

#include "text/translator.h"

namespace Zorv {

/// The texts of tools that are not among those of `ZorvTranslator`: rows in the order of their
/// numbers, which lie beside those, so that a number tells whose it is.
class TextTable : public Translator
{
public:
    /// Marked for translators; each may be null.
    struct Row
    {
        const char* label;
        const char* toolTip;
    };

    bool has(unsigned id) const { return id >= m_first && id - m_first < m_count; }

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;

protected:
    /// The rows outlive the table; `context` is where translators find them.
    template <unsigned Count>
    TextTable(const char* context, unsigned first, const Row (&rows)[Count])
        : m_context(context), m_rows(rows), m_first(first), m_count(Count)
    {
    }

    QString translated(const char* text) const;

private:
    const char* m_context;
    const Row* m_rows;
    unsigned m_first;
    unsigned m_count;
};

}  // namespace Zorv
