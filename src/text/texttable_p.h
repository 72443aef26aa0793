#pragma once

#include "text/translator.h"

namespace Zorv {

/// Texts of tools that are not in `ZorvTranslator`. The rows are numbered consecutively from a
/// first number that is outside of the range of `ZorvTranslator`, so the number alone identifies
/// the table.
class TextTable : public Translator
{
public:
    /// Both are marked for translation. Each may be null.
    struct Row
    {
        const char* label;
        const char* toolTip;
    };

    bool has(unsigned id) const { return id >= m_first && id - m_first < m_count; }

    QString trText(unsigned int id) const override;
    QString trToolTip(unsigned int id) const override;

protected:
    /// The rows must outlive the table. `context` is the translation context.
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
