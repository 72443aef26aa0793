#include "app/controls/controlbars.h"

#include "app/actions/actionregistry.h"
#include "app/actions/windowactions.h"
#include "app/controls/activeareas.h"
#include "app/controls/controlform.h"
#include "app/controls/controllayout.h"

#include <zorv/core/interface.h>

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMap>
#include <QPair>
#include <QScrollArea>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWidgetAction>
#include <algorithm>
#include <vector>

// A bar has up to four forms: a tool bar, a panel with a tool bar and widgets below it, a panel
// with a form, or a page that a part of the window shows. `Bar::host()` is the outermost widget in
// each case.
//
// All changes only request `updateVisibility()`, which runs on the next turn of the event loop. It
// computes the visibility of every bar from the current state: tools, areas, groups and the user's
// switches. Nothing is remembered except whether a panel was raised.

namespace App {

namespace {

const QString OffKey = QStringLiteral("bars_off");
constexpr int FewestLines = 2;  // visible lines of a form, at least
constexpr int FewestCharacters = 12;

QStringList barsThatAreOff()
{
    QStringList names = Zorv::Interface::instance()->option(OffKey).toStringList();
    for (const BarRow& row : barTable()) {
        if (row.setting &&
            !Zorv::Interface::instance()->option(QLatin1String(row.setting)).toBool()) {
            names.append(QLatin1String(row.name));
        }
    }
    return names;
}

const BarRow* rowOf(const QString& name)
{
    const QVector<BarRow>& table = barTable();
    const auto found = std::find_if(table.begin(), table.end(), [&name](const BarRow& row) {
        return name == QLatin1String(row.name);
    });
    return found == table.end() ? nullptr : &*found;
}

/// The index of a tool in the order of its bar; tools not listed come last.
int rankOf(const QVector<const char*>& order, const QString& name)
{
    const auto found = std::find_if(order.begin(), order.end(), [&name](const char* each) {
        return each && name == QLatin1String(each);
    });
    return int(found - order.begin());
}

bool hasForm(const QString& name)
{
    const QVector<FormRow>& table = formTable();
    return std::any_of(table.begin(), table.end(),
                       [&name](const FormRow& row) { return name == QLatin1String(row.bar); });
}

/// Scrolls, because on a small screen the form is larger than its panel.
class FormArea : public QScrollArea
{
public:
    explicit FormArea(QWidget* form)
    {
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        setFocusPolicy(Qt::NoFocus);
        setWidget(form);
    }

    QSize sizeHint() const override { return widget()->sizeHint(); }

    QSize minimumSizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * FewestCharacters,
                fontMetrics().lineSpacing() * FewestLines};
    }
};

/// Shows a separator only between two visible tools.
void showLines(const QToolBar* bar)
{
    QAction* line = nullptr;
    bool isBehindTool = false;
    for (QAction* action : bar->actions()) {
        if (action->isSeparator()) {
            action->setVisible(false);
            line = isBehindTool ? action : line;
        } else if (action->isVisible()) {
            if (line) {
                line->setVisible(true);
            }
            line = nullptr;
            isBehindTool = true;
        }
    }
}

}  // namespace

struct ControlBars::Bar
{
    QString name;
    const BarRow* row = nullptr;             // null: the table does not have the bar
    std::function<QString()> ownTitle = {};  // used if the table has none
    QToolBar* tools = nullptr;               // the bar itself, or the one at the panel's top
    QDockWidget* panel = nullptr;            // null for a tool bar
    QVBoxLayout* layout = nullptr;           // of the panel
    ControlForm* form = nullptr;             // for a bar with rows, instead of `tools`
    QMap<const QAction*, int> lines = {};    // separators, with their place in the order
    bool wasInFront = false;  // a panel that was raised when last hidden; or comes first

    QWidget* host() const
    {
        return panel ? static_cast<QWidget*>(panel) : tools ? static_cast<QWidget*>(tools) : form;
    }

    // Null for a page.
    QAction* visibilitySwitch() const
    {
        return isPage() ? nullptr : panel ? panel->toggleViewAction() : tools->toggleViewAction();
    }

    bool isPage() const { return row && row->kind == BarRow::Page; }

    bool isInItsArea(const ActiveAreas* areas) const
    {
        const auto isActive = [areas](const char* area) {
            return areas->areas().contains(QLatin1String(area));
        };
        return !row ||
               ((!row->only || isActive(row->only)) && (!row->without || !isActive(row->without)));
    }

    // A panel that reappears is raised only if it was raised when it was hidden.
    void show(bool isShown)
    {
        if (panel && panel->isHidden() == isShown) {
            wasInFront = isShown ? wasInFront : !panel->visibleRegion().isEmpty();
            panel->setVisible(isShown);
            if (isShown && wasInFront) {
                panel->raise();
            }
        } else if (!panel) {
            tools->setVisible(isShown);
        }
    }

    void retranslate() const
    {
        const QString title = row ? row->title.label() : ownTitle ? ownTitle() : name;
        host()->setWindowTitle(title);
        for (QWidget* part : {static_cast<QWidget*>(tools), static_cast<QWidget*>(form)}) {
            if (part) {
                part->setAccessibleName(title);
            }
        }
        if (form) {
            form->align();
        }
    }

    int rankOf(const QAction* action) const
    {
        return lines.value(action, App::rankOf(orderOf(name), action->objectName()));
    }

    // Inserts the action before those that come later in the order.
    void insert(QAction* action) const
    {
        const QList<QAction*> all = tools->actions();
        const auto later = std::find_if(
            all.begin(), all.end(),
            [this, rank = rankOf(action)](const QAction* other) { return rankOf(other) > rank; });
        tools->insertAction(later == all.end() ? nullptr : *later, action);
    }

    bool isChoice() const { return row && row->fewest > 1; }

    // The first item of a panel's layout is its tool bar or its form.
    bool isEmpty() const
    {
        if (form) {
            return form->isEmpty();
        }
        const QList<QAction*> all = tools->actions();
        const auto count = std::count_if(all.begin(), all.end(), [this](const QAction* tool) {
            return !tool->isSeparator() && (tool->isVisible() || !isChoice());
        });
        return count < (isChoice() ? row->fewest : 1) && (!layout || layout->count() < 2);
    }
};

struct ControlBars::Private
{
    QMainWindow* window;
    WindowActions* actions;
    std::vector<std::unique_ptr<Bar>> bars;
    QMap<QPair<QString, QString>, bool> groups;  // of a menu and a group
    bool isUpdatePending = false;
};

ControlBars::ControlBars(QMainWindow* window, WindowActions* actions)
    : QObject(window), d(std::make_unique<Private>())
{
    d->window = window;
    d->actions = actions;
    connect(actions->registry()->activeAreas(), &ActiveAreas::changed, this,
            &ControlBars::updateSoon);
    // Create all tool bars now: the saved window state can place panels that are created later, but
    // not tool bars.
    for (const BarRow& row : barTable()) {
        if (row.kind == BarRow::ToolBar) {
            makeBar(QLatin1String(row.name));
        }
    }
}

ControlBars::~ControlBars() = default;

ControlBars::Bar* ControlBars::find(const QString& name) const
{
    const auto found = std::find_if(d->bars.begin(), d->bars.end(),
                                    [&name](const auto& bar) { return bar->name == name; });
    return found == d->bars.end() ? nullptr : found->get();
}

ControlBars::Bar* ControlBars::bar(const QString& name)
{
    Bar* found = find(name);
    return found ? found : makeBar(name);
}

ControlBars::Bar* ControlBars::makeBar(const QString& name, bool isPanel)
{
    d->bars.push_back(std::make_unique<Bar>());
    Bar* made = d->bars.back().get();
    made->name = name;
    made->row = rowOf(name);
    made->wasInFront = made->row && made->row->only;
    if (made->isPage()) {
        makePage(made);
    } else if (isPanel || (made->row && made->row->kind == BarRow::Panel)) {
        makePanel(made);
    } else {
        makeToolBar(made);
    }
    const QVector<const char*>& order = orderOf(name);
    for (int i = 0; i < order.size(); ++i) {
        if (!order[i]) {
            made->lines.insert(made->tools->addSeparator(), i);
        }
    }
    addSwitch(made);
    made->retranslate();
    return made;
}

void ControlBars::makeToolBar(Bar* bar)
{
    bar->tools = new QToolBar(d->window);
    bar->tools->setObjectName(bar->name + QLatin1String("_bar"));
    bar->tools->hide();
    d->window->addToolBar(bar->row ? Qt::ToolBarArea(bar->row->area) : Qt::TopToolBarArea,
                          bar->tools);
}

void ControlBars::makePanel(Bar* bar)
{
    bar->panel = new QDockWidget(d->window);
    bar->panel->setObjectName(bar->name);
    auto* content = new QWidget;
    bar->layout = new QVBoxLayout(content);
    bar->layout->setContentsMargins(0, 0, 0, 0);
    const bool isLow = bar->row && bar->row->isLow;
    if (hasForm(bar->name)) {
        bar->form = new ControlForm(bar->name);
        bar->layout->addWidget(isLow ? static_cast<QWidget*>(bar->form) : new FormArea(bar->form));
    } else {
        bar->tools = new QToolBar;
        bar->layout->addWidget(bar->tools);
    }
    if (isLow) {
        content->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    }
    bar->panel->setWidget(content);
    bar->panel->hide();
    d->window->addDockWidget(
        bar->row ? Qt::DockWidgetArea(bar->row->area) : Qt::RightDockWidgetArea, bar->panel);
    d->window->restoreDockWidget(bar->panel);
    bar->panel->installEventFilter(this);
}

void ControlBars::makePage(Bar* bar)
{
    if (hasForm(bar->name)) {
        bar->form = new ControlForm(bar->name, d->window);
        bar->form->hide();
    } else {
        bar->tools = new QToolBar(d->window);
        bar->tools->hide();
    }
    bar->host()->setObjectName(bar->name + QLatin1String("_page"));
}

QWidget* ControlBars::page(const QString& name)
{
    return bar(name)->host();
}

void ControlBars::fill(const ActionRegistry* registry)
{
    for (const BarRow& row : barTable()) {
        const QString name = QLatin1String(row.name);
        for (const char* tool : orderOf(name)) {
            QAction* action = tool ? registry->action(QLatin1String(tool)) : nullptr;
            if (action && !bar(name)->tools->actions().contains(action)) {
                addButton(name, action);
            }
        }
    }
}

void ControlBars::addSwitch(const Bar* bar)
{
    QAction* action = bar->visibilitySwitch();
    if (!action) {
        return;
    }
    action->setVisible(false);
    connect(action, &QAction::triggered, this,
            [this, name = bar->name](bool isOn) { setOff(name, !isOn); });
    d->actions->addSwitch(action, bar->host()->objectName());
}

/// Closing a panel with its own button switches it off.
bool ControlBars::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close) {
        setOff(watched->objectName(), true);
    }
    return QObject::eventFilter(watched, event);
}

void ControlBars::setOff(const QString& name, bool isOff)
{
    auto* host = Zorv::Interface::instance();
    const BarRow* row = rowOf(name);
    if (row && row->setting) {
        host->setOption(QLatin1String(row->setting), !isOff);
    } else {
        QStringList names = host->option(OffKey).toStringList();
        names.removeAll(name);
        if (isOff) {
            names.append(name);
        }
        host->setOption(OffKey, names.isEmpty() ? QVariant() : names);
    }
    updateSoon();
}

QToolButton* ControlBars::addButton(const QString& name, QAction* action)
{
    Bar* found = bar(name);
    connect(action, &QObject::destroyed, this, &ControlBars::updateSoon);
    if (found->form) {
        updateSoon();
        return found->form->addButton(action);
    }
    found->insert(action);
    if (found->isChoice()) {
        connect(action, &QAction::changed, this, &ControlBars::updateSoon);
    }
    updateSoon();
    return qobject_cast<QToolButton*>(found->tools->widgetForAction(action));
}

void ControlBars::addWidget(const QString& name, const QString& tool, QWidget* widget,
                            bool takesRoom)
{
    Bar* found = bar(name);
    if (found->form) {
        found->form->addWidget(tool, widget);
    } else if (found->layout) {
        found->layout->addWidget(widget, takesRoom ? 1 : 0);
    } else {
        auto* place = new QWidgetAction(found->tools);
        place->setObjectName(tool);
        place->setDefaultWidget(widget);
        found->insert(place);
        connect(widget, &QObject::destroyed, place, &QObject::deleteLater);
        connect(place, &QObject::destroyed, this, &ControlBars::updateSoon);
    }
    connect(widget, &QObject::destroyed, this, &ControlBars::updateSoon);
    updateSoon();
}

void ControlBars::addPanel(const QString& name, QWidget* widget,
                           const std::function<QString()>& title)
{
    Bar* found = find(name);
    found = found ? found : makeBar(name, true);
    found->ownTitle = title;
    found->retranslate();
    addWidget(name, {}, widget, true);
}

void ControlBars::bringForward(const QString& name)
{
    Bar* found = find(name);
    if (!found) {
        return;
    }
    if (barsThatAreOff().contains(name)) {
        setOff(name, false);
    }
    found->wasInFront = true;
    updateVisibility();
    found->host()->raise();
}

void ControlBars::setGroupEnabled(const QString& menu, const QString& group, bool isEnabled)
{
    d->groups.insert({menu, group}, isEnabled);
    updateVisibility();
}

bool ControlBars::isGroupEnabled(const QString& name) const
{
    const BarRow* row = rowOf(name);
    return !row || !row->menu ||
           d->groups.value({QLatin1String(row->menu), QLatin1String(row->group)}, true);
}

/// Deferred: many tools are added together, and a destroyed tool is still in its bar when it sends
/// its signal.
void ControlBars::updateSoon()
{
    if (!d->isUpdatePending) {
        d->isUpdatePending = true;
        QTimer::singleShot(0, this, &ControlBars::updateVisibility);
    }
}

void ControlBars::updateVisibility()
{
    d->isUpdatePending = false;
    const QStringList off = barsThatAreOff();
    for (const auto& each : d->bars) {
        if (each->tools) {
            showLines(each->tools);
        }
        if (each->isPage()) {
            continue;
        }
        const bool isUsed = !each->isEmpty() && isGroupEnabled(each->name) &&
                            each->isInItsArea(d->actions->registry()->activeAreas());
        each->visibilitySwitch()->setVisible(isUsed);
        each->show(isUsed && !off.contains(each->name));
        if (each->panel && each->tools) {
            each->tools->setVisible(!each->tools->actions().isEmpty());
        }
    }
}

void ControlBars::retranslate()
{
    for (const auto& each : d->bars) {
        each->retranslate();
    }
}

}  // namespace App
