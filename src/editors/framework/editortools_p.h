#pragma once

#include <QHash>
#include <QPointer>

class QAction;
class QWidget;

namespace Zorv {

class TextTable;
class Translator;

/// The kind of a tool. A namespace of its own keeps the tables of tools readable.
namespace ToolKind {

enum Kind {
    Action,
    CheckAction,
    MenuAction,  ///< no button of its own
    Slider,
    Label,
    Spin,
    Real,
    Combo,
    Check,
    List  ///< one click chooses a row
};

}  // namespace ToolKind

/// Text number for a widget without a label.
constexpr unsigned NoText = ~0U;

/// One tool of an editor: a row of its table. The host gets the tools in table order.
struct EditorTool
{
    const char* name;
    ToolKind::Kind kind;
    unsigned textId;
    const char* enableSignal;            ///< null: always enabled
    const char* slot;                    ///< null: display only
    const char* setSignal = nullptr;     ///< widgets only
    const char* const* areas = nullptr;  ///< null: the areas of the table
};

/// Publishes the tools of an editor from a table, and finds them again by name.
class EditorTools
{
public:
    /// `receiver` has the slots and signals. `texts` is the editor's own text table, or null. Text
    /// numbers that it does not have are looked up in `ZorvTranslator`.
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

    /// Publishes a widget that the editor has created itself.
    void publishOwn(const char* name, QWidget* widget, const char* enableSignal,
                    const char* const* areas) const;

    /// A host without a window creates no actions, but the editor still needs the action's state.
    /// Then the action is created here, owned by the receiver. Null once it was deleted.
    QAction* action(const char* name) const;

    /// Null if the host has no window, or if the widget has another class.
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
