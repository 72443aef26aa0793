#include "app/controls/controlbars.h"

#include "app/actions/windowactions.h"
#include "app/controls/controllayout.h"

#include <zorv/core/interface.h>

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>
#include <QMap>
#include <QPair>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <vector>

namespace App {

namespace {

const QString OffKey = QStringLiteral("bars_off");

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

}  // namespace

struct ControlBars::Bar
{
    QString name;
    const BarRow* row = nullptr;             // null for a bar that the table does not have
    std::function<QString()> ownTitle = {};  // in place of one of the table
    QToolBar* tools = nullptr;               // the bar itself, or the one at the top of the panel
    QDockWidget* panel = nullptr;            // null for a tool bar
    QVBoxLayout* layout = nullptr;           // of the panel

    QWidget* host() const { return panel ? static_cast<QWidget*>(panel) : tools; }

    QAction* visibilitySwitch() const
    {
        return panel ? panel->toggleViewAction() : tools->toggleViewAction();
    }

    void retranslate() const
    {
        const QString title = row ? row->title.label() : ownTitle ? ownTitle() : name;
        host()->setWindowTitle(title);
        tools->setAccessibleName(title);
    }

    bool isChoice() const { return row && row->fewest > 1; }

    // The first item of a panel's layout is its tool bar.
    bool isEmpty() const
    {
        const QList<QAction*> all = tools->actions();
        const auto count = std::count_if(all.begin(), all.end(), [this](const QAction* tool) {
            return tool->isVisible() || !isChoice();
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
    // The saved state of a window has places for panels that come later, but none for tool bars.
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
    if (isPanel || (made->row && made->row->kind == BarRow::Panel)) {
        makePanel(made);
    } else {
        makeToolBar(made);
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
    bar->tools = new QToolBar;
    bar->layout->addWidget(bar->tools);
    bar->panel->setWidget(content);
    bar->panel->hide();
    d->window->addDockWidget(
        bar->row ? Qt::DockWidgetArea(bar->row->area) : Qt::RightDockWidgetArea, bar->panel);
    d->window->restoreDockWidget(bar->panel);
    bar->panel->installEventFilter(this);
}

void ControlBars::addSwitch(const Bar* bar)
{
    QAction* action = bar->visibilitySwitch();
    action->setVisible(false);
    connect(action, &QAction::triggered, this,
            [this, name = bar->name](bool isOn) { setOff(name, !isOn); });
    d->actions->addSwitch(action, bar->host()->objectName());
}

/// Whoever closes a panel by its own button has switched it off.
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
    found->tools->addAction(action);
    connect(action, &QObject::destroyed, this, &ControlBars::updateSoon);
    if (found->isChoice()) {
        connect(action, &QAction::changed, this, &ControlBars::updateSoon);
    }
    updateSoon();
    return qobject_cast<QToolButton*>(found->tools->widgetForAction(action));
}

void ControlBars::addWidget(const QString& name, QWidget* widget, bool takesRoom)
{
    Bar* found = bar(name);
    if (found->layout) {
        found->layout->addWidget(widget, takesRoom ? 1 : 0);
    } else {
        QAction* place = found->tools->addWidget(widget);
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
    addWidget(name, widget, true);
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
    updateVisibility();
    found->host()->raise();
}

void ControlBars::addSeparator(const QString& name)
{
    bar(name)->tools->addSeparator();
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

/// Many tools come at once, and those that die are still there when they tell it.
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
        const bool isUsed = !each->isEmpty() && isGroupEnabled(each->name);
        each->visibilitySwitch()->setVisible(isUsed);
        each->host()->setVisible(isUsed && !off.contains(each->name));
        if (each->panel) {
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
