#pragma once

#include <QString>

class QAction;

namespace Zorv {
class Translator;
}

namespace App {

/// The source of an action's texts, kept so that they can be read again when the language changes.
class ActionText
{
public:
    /// Empty: the action keeps its own text.
    ActionText() = default;

    /// A source text in a context of the translation files. Both strings must stay valid.
    ActionText(const char* context, const char* source) : m_context(context), m_source(source) {}

    /// A text from a numbered table, which must stay valid.
    ActionText(const Zorv::Translator* translator, unsigned id) : m_translator(translator), m_id(id)
    {
    }

    /// Sets an action's text, tool tip and status tip in the current language.
    void apply(QAction* action) const;

    /// The label alone; empty for none.
    QString label() const;

    /// A text without its access-key mark and without "..." at the end.
    static QString plain(QString text);

private:
    const char* m_context = nullptr;
    const char* m_source = nullptr;
    const Zorv::Translator* m_translator = nullptr;
    unsigned m_id = 0;
};

}  // namespace App
