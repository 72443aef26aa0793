#pragma once

#include <QString>

class QAction;

namespace Zorv {
class Translator;
}

namespace App {

/// Where the texts of an action come from, so that they can be asked for again when the
/// language changes.
class ActionText
{
public:
    /// Of none: the action keeps the text that it has.
    ActionText() = default;

    /// Of a source text in a context of the translation files. Both live on.
    ActionText(const char* context, const char* source) : m_context(context), m_source(source) {}

    /// Of a table of numbered texts, which lives on.
    ActionText(const Zorv::Translator* translator, unsigned id) : m_translator(translator), m_id(id)
    {
    }

    /// Gives an action text, tool tip and status tip in the present language.
    void apply(QAction* action) const;

    /// The label alone; empty for none.
    QString label() const;

    /// A text without the mark of its access key and without "..." at its end.
    static QString plain(QString text);

private:
    const char* m_context = nullptr;
    const char* m_source = nullptr;
    const Zorv::Translator* m_translator = nullptr;
    unsigned m_id = 0;
};

}  // namespace App
