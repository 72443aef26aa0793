#include "editors/framework/editortools_p.h"

#include "core/interface.h"
#include "editors/framework/ownwidgetcontrol.h"
#include "editors/framework/toolbuttoncontrol.h"
#include "editors/framework/trwidgetcontrol.h"
#include "text/texttable_p.h"
#include "text/zorvtranslator.h"

#include <QAction>

namespace Zorv {

namespace {

constexpr int ListRows = 6;

bool isAction(ToolKind::Kind kind)
{
    return kind <= ToolKind::MenuAction;
}

WidgetControl::Kind widgetKind(ToolKind::Kind kind)
{
    switch (kind) {
    case ToolKind::Slider:
        return WidgetControl::Slider;
    case ToolKind::Label:
        return WidgetControl::Label;
    case ToolKind::Spin:
        return WidgetControl::SpinEdit;
    case ToolKind::Real:
        return WidgetControl::FloatEdit;
    case ToolKind::Combo:
        return WidgetControl::ComboBox;
    case ToolKind::List:
        return WidgetControl::ListView;
    default:
        return WidgetControl::CheckBox;
    }
}

}  // namespace

EditorTools::EditorTools(QObject* receiver, TextTable* texts) : m_receiver(receiver), m_texts(texts)
{
}

EditorTools::~EditorTools() = default;

Translator* EditorTools::textsOf(unsigned id) const
{
    return m_texts && m_texts->has(id) ? static_cast<Translator*>(m_texts)
                                       : ZorvTranslator::instance();
}

void EditorTools::publish(const EditorTool& tool, const char* const* areas)
{
    const char* const* const own = tool.areas ? tool.areas : areas;
    m_made.insert(QString::fromLatin1(tool.name),
                  isAction(tool.kind) ? makeAction(tool, own) : makeWidget(tool, own));
}

QObject* EditorTools::makeAction(const EditorTool& tool, const char* const* areas) const
{
    Interface* const host = Interface::instance();
    const QString name = QString::fromLatin1(tool.name);
    QAction* action = host->createAction(areas, name, textsOf(tool.textId), tool.textId, nullptr,
                                         m_receiver, tool.slot, tool.enableSignal, nullptr);
    const bool isHosts = action;
    if (!isHosts) {
        action = new QAction(m_receiver);
        if (tool.slot) {
            QObject::connect(action, SIGNAL(triggered(bool)), m_receiver, tool.slot);
        }
        if (tool.enableSignal) {
            QObject::connect(m_receiver, tool.enableSignal, action, SLOT(setEnabled(bool)));
        }
    }
    action->setCheckable(tool.kind == ToolKind::CheckAction);
    if (isHosts && tool.kind != ToolKind::MenuAction) {
        host->addControl(name, ToolButtonControl(action));
    }
    return action;
}

QObject* EditorTools::makeWidget(const EditorTool& tool, const char* const* areas) const
{
    Interface* const host = Interface::instance();
    const QString name = QString::fromLatin1(tool.name);
    const WidgetControl::Kind kind = widgetKind(tool.kind);
    const bool isList = tool.kind == ToolKind::List;
    if (tool.textId == NoText) {
        WidgetControl control(kind, isList ? ListRows : 0, m_receiver, tool.slot, tool.setSignal,
                              tool.enableSignal,
                              isList ? WidgetControl::SingleClick : WidgetControl::NoFlags);
        control.setAreas(areas);
        return host->addControl(name, control);
    }
    trWidgetControl control(kind, 0, textsOf(tool.textId), tool.textId, m_receiver, tool.slot,
                            tool.setSignal, tool.enableSignal);
    control.setAreas(areas);
    return host->addControl(name, control);
}

void EditorTools::publishOwn(const char* name, QWidget* widget, const char* enableSignal,
                             const char* const* areas) const
{
    OwnWidgetControl control(widget, m_receiver, enableSignal);
    control.setAreas(areas);
    Interface::instance()->addControl(QString::fromLatin1(name), control);
}

QAction* EditorTools::action(const char* name) const
{
    return widget<QAction>(name);
}

}  // namespace Zorv
