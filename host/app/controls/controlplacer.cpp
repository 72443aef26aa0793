#include "app/controls/controlplacer.h"

#include "app/actions/actionregistry.h"
#include "app/actions/windowactions.h"
#include "app/controls/areagate.h"
#include "app/controls/controlbars.h"
#include "app/controls/controlbox.h"
#include "app/controls/controllayout.h"

#include <zorv/core/interface.h>
#include <zorv/editors/framework/extraeditor.h>
#include <zorv/editors/framework/ownwidgetcontrol.h>
#include <zorv/editors/framework/toolbuttoncontrol.h>
#include <zorv/editors/framework/trwidgetcontrol.h>

#include <QActionGroup>
#include <QCheckBox>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QToolButton>

namespace App {

namespace {

const QString EditorPrefix = QStringLiteral("editor_");

// "anim_frame_add" becomes "Anim frame add".
QString readableName(const QString& name)
{
    QString text = name;
    text.replace(QLatin1Char('_'), QLatin1Char(' '));
    return text.left(1).toUpper() + text.mid(1);
}

QString barOf(const QString& name)
{
    const char* bar = placeOf(name).bar;
    return bar ? QString::fromLatin1(bar) : prefixOf(name);
}

/// The bar of the tools named after the panel, or the panel's own.
QString barOfPanel(const Zorv::ExtraEditor* panel)
{
    return barOf(panel->name() + QLatin1Char('_'));
}

QList<QKeySequence> firstKeys(const QString& name, const char* shortcut = nullptr)
{
    const char* key = shortcut ? shortcut : firstKeyOf(name);
    return key ? QList<QKeySequence>{QKeySequence(QLatin1String(key), QKeySequence::PortableText)}
               : QList<QKeySequence>();
}

template <typename WidgetKind>
QStringList areasOf(const QString& name, const WidgetKind& control)
{
    return control.areas().isEmpty() ? QStringList(QLatin1String(placeOf(name).area))
                                     : control.areas();
}

template <typename WidgetKind>
bool waitsForOwner(const WidgetKind& control)
{
    return control.receiver() && !control.enableSignal().isEmpty();
}

/// Removes a tool with its receiver. The tool may be in the middle of its work, because a receiver
/// can be destroyed in a slot that the tool called.
template <typename Tool>
void goWith(QObject* receiver, Tool* tool)
{
    QObject::connect(receiver, &QObject::destroyed, tool, [tool] {
        tool->setEnabled(false);
        tool->deleteLater();
    });
}

}  // namespace

ControlPlacer::ControlPlacer(QMainWindow* window, WindowActions* actions)
    : QObject(window), m_window(window), m_actions(actions),
      m_bars(new ControlBars(window, actions)), m_editors(new QActionGroup(this))
{
}

void ControlPlacer::fillBars()
{
    m_bars->fill(m_actions->registry());
}

QWidget* ControlPlacer::page(const char* name)
{
    return m_bars->page(QLatin1String(name));
}

QAction* ControlPlacer::addAction(const ActionRequest& request)
{
    auto* action = new QAction(readableName(request.name), m_window);
    ActionInfo info{request.name,
                    {},
                    ActiveAreas::fromArray(request.areas),
                    firstKeys(request.name, request.shortcut)};
    if (request.translator) {
        info.text = {request.translator, request.textId};
    }
    info.waitsForOwner = request.receiver && request.enableSignal;
    m_actions->place(action, placeOf(request.name).menu);
    AreaGate* gate = m_actions->registry()->add(action, info);
    keepGate(request.name, gate);
    if (info.waitsForOwner) {
        connect(request.receiver, request.enableSignal, gate, SLOT(setAllowed(bool)));
    }
    return action;
}

QAction* ControlPlacer::createAction(const ActionRequest& request)
{
    if (request.name.isEmpty()) {
        return nullptr;
    }
    QAction* action = addAction(request);
    if (!request.receiver) {
        return action;
    }
    if (request.slot) {
        connect(action, SIGNAL(triggered(bool)), request.receiver, request.slot);
    }
    if (request.checkSignal) {
        action->setCheckable(true);
        connect(request.receiver, request.checkSignal, action, SLOT(setChecked(bool)));
    }
    goWith(request.receiver, action);
    return action;
}

QAction* ControlPlacer::createEditorAction(const QString& name, const Zorv::Translator* translator,
                                           unsigned textId)
{
    QAction* action =
        addAction({nullptr, name, translator, textId, nullptr, nullptr, nullptr, nullptr, nullptr});
    action->setCheckable(true);
    m_editors->addAction(action);
    m_bars->addButton(barOf(name), action);
    const QByteArray editor =
        (name.startsWith(EditorPrefix) ? name.mid(EditorPrefix.size()) : name).toLatin1();
    connect(action, &QAction::triggered, this, [editor] {
        auto* host = Zorv::Interface::instance();
        if (auto* found = host->editorByName(editor.constData())) {
            host->activateEditor(found);
        }
    });
    return action;
}

QObject* ControlPlacer::addControl(const QString& name, const Zorv::Control& control)
{
    if (name.isEmpty()) {
        return nullptr;
    }
    if (const auto* button = dynamic_cast<const Zorv::ToolButtonControl*>(&control)) {
        return button->action() ? addButton(name, *button) : nullptr;
    }
    if (const auto* own = dynamic_cast<const Zorv::OwnWidgetControl*>(&control)) {
        return own->widget() ? addWidget(name, *own) : nullptr;
    }
    const auto* widget = dynamic_cast<const Zorv::WidgetControl*>(&control);
    QWidget* field = widget ? addWidget(name, *widget) : nullptr;
    if (auto* check = qobject_cast<QCheckBox*>(field)) {
        addSwitch(name, *widget, check);
    }
    return field;
}

QToolButton* ControlPlacer::addButton(const QString& name, const Zorv::ToolButtonControl& control)
{
    QAction* action = control.action();
    ActionRegistry* registry = m_actions->registry();
    // The editor made this action itself.
    if (registry->action(action->objectName()) != action) {
        registry->add(action, {name, {}, {}, action->shortcuts()});
    }
    QToolButton* button = m_bars->addButton(barOf(name), action);
    const auto* withMenu = dynamic_cast<const Zorv::MenuToolButtonControl*>(&control);
    if (withMenu && withMenu->menu()) {
        button->setMenu(withMenu->menu());
        button->setPopupMode(QToolButton::MenuButtonPopup);
    }
    return button;
}

template <typename WidgetKind>
QWidget* ControlPlacer::addWidget(const QString& name, const WidgetKind& control)
{
    if (ControlBox* old = m_boxes.value(name)) {
        old->hide();
        old->deleteLater();
    }
    auto* box = new ControlBox(name, control);
    m_boxes.insert(name, box);
    QObject* receiver = control.receiver();
    auto* gate = new AreaGate(m_actions->registry()->activeAreas(), areasOf(name, control), box,
                              waitsForOwner(control));
    keepGate(name, gate);
    if (waitsForOwner(control)) {
        connect(receiver, control.enableSignal().constData(), gate, SLOT(setAllowed(bool)));
    }
    if (receiver) {
        goWith(receiver, box);
    }
    m_bars->addWidget(barOf(name), name, box, box->takesRoom());
    return box->field();
}

/// A check box also gets an action, so that it has a shortcut, a menu entry, and is found by the
/// action search.
void ControlPlacer::addSwitch(const QString& name, const Zorv::WidgetControl& control,
                              QCheckBox* check)
{
    auto* action = new QAction(readableName(name), check);
    action->setCheckable(true);
    ActionInfo info{name, {}, areasOf(name, control), firstKeys(name)};
    if (const auto* named = dynamic_cast<const Zorv::trWidgetControl*>(&control)) {
        info.text = {named->translator(), named->textId()};
    }
    info.waitsForOwner = waitsForOwner(control);
    m_actions->place(action, placeOf(name).menu);
    AreaGate* gate = m_actions->registry()->add(action, info);
    keepGate(name, gate);
    if (info.waitsForOwner) {
        connect(control.receiver(), control.enableSignal().constData(), gate,
                SLOT(setAllowed(bool)));
    }
    connect(check, &QCheckBox::toggled, action, &QAction::setChecked);
    connect(action, &QAction::triggered, check, &QCheckBox::click);
}

QDockWidget* ControlPlacer::addPanel(Zorv::ExtraEditor* panel)
{
    QWidget* widget = panel->widget();
    if (widget && !widget->parentWidget()) {
        m_bars->addPanel(barOfPanel(panel), widget, [left = QPointer<Zorv::ExtraEditor>(panel)] {
            return left ? left->displayName() : QString();
        });
    }
    return m_window->findChild<QDockWidget*>(barOfPanel(panel));
}

void ControlPlacer::showPanel(const Zorv::ExtraEditor* panel)
{
    m_bars->bringForward(barOfPanel(panel));
}

void ControlPlacer::bringForward(const char* panel)
{
    m_bars->bringForward(QLatin1String(panel));
}

void ControlPlacer::switchOff(const char* bar)
{
    m_bars->setOff(QLatin1String(bar), true);
}

void ControlPlacer::keepGate(const QString& name, AreaGate* gate)
{
    m_gates.insert(name, gate);
    gate->setOffered(m_bars->isGroupEnabled(barOf(name)));
}

void ControlPlacer::setMenuEnabled(const char* menu, const char* group, bool isEnabled)
{
    m_groups.insert({menu, group}, isEnabled);
    bool isAny = false;
    for (auto each = m_groups.cbegin(); each != m_groups.cend(); ++each) {
        isAny = isAny || (each.key().first == menu && each.value());
    }
    m_actions->showMenu(menu, isAny);
    m_bars->setGroupEnabled(QLatin1String(menu), QLatin1String(group), isEnabled);
    // Shortcuts would also work in a hidden menu, so the tools are disabled.
    for (auto each = m_gates.cbegin(); each != m_gates.cend(); ++each) {
        if (*each) {
            (*each)->setOffered(m_bars->isGroupEnabled(barOf(each.key())));
        }
    }
}

void ControlPlacer::updateVisibility()
{
    m_bars->updateVisibility();
}

/// First the boxes, then the forms: they align labels by their new width.
void ControlPlacer::retranslate()
{
    for (ControlBox* box : qAsConst(m_boxes)) {
        if (box) {
            box->retranslate();
        }
    }
    m_bars->retranslate();
}

}  // namespace App
