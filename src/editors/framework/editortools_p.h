#pragma once

#include <QHash>
#include <QPointer>

class QAction;
class QWidget;

namespace Zorv {

class TextTable;
class Translator;

/// What a tool is; of a name of its own, so that tables can be read.
namespace ToolKind {

enum Kind {
    Action,
    CheckAction,
    MenuAction,  ///< without a button of its own
    Slider,
    Label,
    Spin,
    Real,
    Combo,
    Check,
    List  ///< a click chooses a row
};

}  // namespace ToolKind

/// The text of a widget without a label.
constexpr unsigned NoText = ~0U;

/// A tool of an editor: a row of its table, in the order in which the host gets them.
struct EditorTool
{
    const char* name;
    ToolKind::Kind kind;
    unsigned textId;
    const char* enableSignal;            ///< null for what is always enabled
    const char* slot;                    ///< null for what only shows
    const char* setSignal = nullptr;     ///< of a widget
    const char* const* areas = nullptr;  ///< null for those of the table
};

/// The tools of an editor: published by rows, found again by their names.
class EditorTools
{
public:
    /// Slots and signals are those of `receiver`. Numbers of texts that `texts` does not have are
    /// those of `ZorvTranslator`; null for none of the editor's own.
    explicit EditorTools(QObject* receiver, TextTable* texts = nullptr);
    ~EditorTools();

    template <size_t Count>
    void publish(const EditorTool (&table)[Count], const char* const* areas)
    {
        for (const EditorTool& tool : table) {
            publish(tool, areas);
        }
    }

    void publish(const EditorTool& tool, const char* const* areas);

    /// Brings in a widget that the editor has made.
    void publishOwn(const char* name, QWidget* widget, const char* enableSignal,
                    const char* const* areas) const;

    /// A host without a window makes no action, and what is kept in it is needed all the same: then
    /// it is one of the receiver's. Null once it has gone.
    QAction* action(const char* name) const;

    /// Null for a host without a window, and for a widget of another class.
    template <class Widget>
    Widget* widget(const char* name) const
    {
        return qobject_cast<Widget*>(m_made.value(QLatin1String(name)).data());
    }

private:
    Translator* textsOf(unsigned id) const;
    QObject* makeAction(const EditorTool& tool, const char* const* areas) const;
    QObject* makeWidget(const EditorTool& tool, const char* const* areas) const;

    QObject* m_receiver;
    TextTable* m_texts;
    QHash<QString, QPointer<QObject>> m_made;
};

}  // namespace Zorv
