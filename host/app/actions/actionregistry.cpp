#include "app/actions/actionregistry.h"

#include "app/actions/formername.h"
#include "app/controls/activeareas.h"
#include "app/controls/areagate.h"
#include "app/look/icon.h"

#include <zorv/core/interface.h>

#include <QAction>
#include <QHash>
#include <QIcon>
#include <QMenu>
#include <algorithm>

// An entry holds an action, its description and its gate. The gate decides whether the action is
// enabled; the registry only changes texts, icon and shortcuts. Shortcuts come from the setting
// "shortcut_" + name, or else from the description.
//
// Two shortcuts clash if one is the beginning of the other, not only if they are equal: neither
// would work. They do not clash if their actions can never be enabled together.

namespace App {

namespace {

struct Entry
{
    QAction* action = nullptr;
    ActionInfo info;
    AreaGate* gate = nullptr;  // a child of the action
};

QString settingOf(const QString& name)
{
    return QLatin1String("shortcut_") + name;
}

QVariant chosenKey(const QString& name)
{
    const auto* host = Zorv::Interface::instance();
    const QVariant chosen = host->option(settingOf(name));
    const char* former = formerNameOf(name);
    return chosen.isValid() || !former ? chosen : host->option(settingOf(QLatin1String(former)));
}

void forgetChosenKey(const QString& name)
{
    auto* host = Zorv::Interface::instance();
    host->setOption(settingOf(name), QVariant());
    if (const char* former = formerNameOf(name)) {
        host->setOption(settingOf(QLatin1String(former)), QVariant());
    }
}

void setIcon(QAction* action, const ActionInfo& info)
{
    if (action->icon().isNull()) {
        const QString picture = info.picture.isEmpty() ? info.name : info.picture;
        action->setIcon(icon(QStringLiteral(":/icons/icons/%1.png").arg(picture)));
    }
}

bool areInEachOthersWay(const QKeySequence& first, const QKeySequence& second)
{
    return !first.isEmpty() && !second.isEmpty() &&
           (first.matches(second) != QKeySequence::NoMatch ||
            second.matches(first) != QKeySequence::NoMatch);
}

QMenu* menuOf(const QAction* action)
{
    const QList<QWidget*> widgets = action->associatedWidgets();
    for (QWidget* widget : widgets) {
        // Qt's overflow menu of a menu bar that is too narrow has no title.
        auto* menu = qobject_cast<QMenu*>(widget);
        if (menu && !menu->title().isEmpty()) {
            return menu;
        }
    }
    return nullptr;
}

}  // namespace

struct ActionRegistry::Private
{
    ActiveAreas areas;
    QStringList names;
    QHash<QString, Entry> entries;

    void forget(const QString& name)
    {
        names.removeOne(name);
        entries.remove(name);
    }

    void applyKeys(const QString& name) const
    {
        const Entry entry = entries.value(name);
        const QVariant chosen = chosenKey(name);
        if (!chosen.isValid()) {
            entry.action->setShortcuts(entry.info.defaultKeys);
            return;
        }
        entry.action->setShortcut(QKeySequence(chosen.toString(), QKeySequence::PortableText));
    }

    /// Shortcuts of two different widgets do not clash: only one of the widgets has the focus.
    static bool canMeet(const Entry& one, const Entry& other)
    {
        const bool areOfWidgets = one.action && isOfWidget(one.action) && isOfWidget(other.action);
        return !areOfWidgets && ActiveAreas::canMeet(one.info.areas, other.info.areas);
    }

    static bool isOfWidget(const QAction* action)
    {
        return action->shortcutContext() == Qt::WidgetShortcut ||
               action->shortcutContext() == Qt::WidgetWithChildrenShortcut;
    }

    /// The shortcut of `entry` that clashes with one of `keys`; empty if none does.
    static QKeySequence keyInTheWay(const Entry& entry, const QList<QKeySequence>& keys)
    {
        const QList<QKeySequence> own = entry.action->shortcuts();
        for (const QKeySequence& key : own) {
            for (const QKeySequence& other : keys) {
                if (areInEachOthersWay(key, other)) {
                    return key;
                }
            }
        }
        return {};
    }
};

ActionRegistry::ActionRegistry(QObject* parent) : QObject(parent), d(std::make_unique<Private>()) {}

// Actions can outlive the registry, and would report their destruction to it.
ActionRegistry::~ActionRegistry()
{
    for (const Entry& entry : qAsConst(d->entries)) {
        entry.action->disconnect(this);
        delete entry.gate;
    }
}

AreaGate* ActionRegistry::add(QAction* action, const ActionInfo& info)
{
    const Entry old = d->entries.value(info.name);
    if (old.action) {
        old.action->disconnect(this);
        delete old.gate;
        d->forget(info.name);
    }
    if (old.action && old.action != action) {
        // With the same shortcut on two actions, Qt would trigger neither.
        old.action->setShortcuts(QList<QKeySequence>());
        old.action->setVisible(false);
    }
    auto* gate = new AreaGate(&d->areas, info.areas, action, info.waitsForOwner);
    d->names.append(info.name);
    d->entries.insert(info.name, {action, info, gate});
    action->setObjectName(info.name);
    // Other windows, such as dialogs, have shortcuts of their own.
    action->setShortcutContext(Qt::WindowShortcut);
    info.text.apply(action);
    setIcon(action, info);
    d->applyKeys(info.name);
    connect(action, &QObject::destroyed, this, [this, name = info.name] {
        d->forget(name);
        emit changed();
    });
    emit changed();
    return gate;
}

QStringList ActionRegistry::names() const
{
    return d->names;
}

QAction* ActionRegistry::action(const QString& name) const
{
    return d->entries.value(name).action;
}

QString ActionRegistry::text(const QString& name) const
{
    const QAction* found = action(name);
    return found ? ActionText::plain(found->text()) : QString();
}

QString ActionRegistry::menuPath(const QString& name) const
{
    QStringList titles;
    const QAction* found = action(name);
    for (QMenu* menu = found ? menuOf(found) : nullptr; menu; menu = menuOf(menu->menuAction())) {
        titles.prepend(ActionText::plain(menu->title()));
    }
    return titles.join(QLatin1String(" > "));
}

QVector<int> ActionRegistry::menuPlace(const QString& name) const
{
    QVector<int> place;
    const QAction* at = action(name);
    QMenu* menu = at ? menuOf(at) : nullptr;
    while (menu) {
        place.prepend(menu->actions().indexOf(const_cast<QAction*>(at)));
        at = menu->menuAction();
        QMenu* above = menuOf(at);
        if (!above && menu->parentWidget()) {
            place.prepend(menu->parentWidget()->actions().indexOf(menu->menuAction()));
        }
        menu = above;
    }
    return place;
}

bool ActionRegistry::isMenuVisible(const QString& name) const
{
    const QAction* found = action(name);
    for (QMenu* menu = found ? menuOf(found) : nullptr; menu; menu = menuOf(menu->menuAction())) {
        if (!menu->menuAction()->isVisible()) {
            return false;
        }
    }
    return found;
}

QStringList ActionRegistry::areas(const QString& name) const
{
    return d->entries.value(name).info.areas;
}

QList<QKeySequence> ActionRegistry::keys(const QString& name) const
{
    const QAction* found = action(name);
    return found ? found->shortcuts() : QList<QKeySequence>();
}

QList<QKeySequence> ActionRegistry::defaultKeys(const QString& name) const
{
    return d->entries.value(name).info.defaultKeys;
}

bool ActionRegistry::isChosen(const QString& name) const
{
    return d->entries.contains(name) && chosenKey(name).isValid();
}

void ActionRegistry::setShortcut(const QString& name, const QKeySequence& key)
{
    if (!d->entries.contains(name)) {
        return;
    }
    // A null string would remove the setting, and forget that the user chose no shortcut.
    const QString text = key.toString(QKeySequence::PortableText);
    Zorv::Interface::instance()->setOption(settingOf(name),
                                           text.isEmpty() ? QString(QLatin1String("")) : text);
    d->applyKeys(name);
    emit changed();
}

void ActionRegistry::resetShortcut(const QString& name)
{
    if (isChosen(name)) {
        forgetChosenKey(name);
        d->applyKeys(name);
        emit changed();
    }
}

void ActionRegistry::resetAllShortcuts()
{
    for (const QString& name : qAsConst(d->names)) {
        resetShortcut(name);
    }
}

QVector<KeyClash> ActionRegistry::clashes() const
{
    QVector<KeyClash> found;
    for (auto first = d->names.cbegin(); first != d->names.cend(); ++first) {
        const Entry& entry = d->entries[*first];
        const QList<QKeySequence> own = entry.action->shortcuts();
        for (auto second = first + 1; !own.isEmpty() && second != d->names.cend(); ++second) {
            const Entry& other = d->entries[*second];
            const QKeySequence key = Private::keyInTheWay(other, own);
            if (!key.isEmpty() && Private::canMeet(entry, other)) {
                found.append({*first, *second, key});
            }
        }
    }
    return found;
}

QStringList ActionRegistry::clashesOf(const QString& name, const QKeySequence& key) const
{
    const Entry own = d->entries.value(name);
    QStringList found;
    std::copy_if(d->names.cbegin(), d->names.cend(), std::back_inserter(found),
                 [&](const QString& other) {
                     const Entry& entry = d->entries[other];
                     return other != name && Private::canMeet(own, entry) &&
                            !Private::keyInTheWay(entry, {key}).isEmpty();
                 });
    return found;
}

void ActionRegistry::setActiveAreas(const QSet<QString>& areas)
{
    d->areas.set(areas);
}

const ActiveAreas* ActionRegistry::activeAreas() const
{
    return &d->areas;
}

void ActionRegistry::setAllowed(const QString& name, bool isAllowed)
{
    const auto found = d->entries.constFind(name);
    if (found != d->entries.constEnd()) {
        found->gate->setAllowed(isAllowed);
    }
}

void ActionRegistry::setDetail(const QString& name, const QString& detail)
{
    const Entry entry = d->entries.value(name);
    if (!entry.action) {
        return;
    }
    QString text = entry.info.text.label();
    if (!detail.isEmpty()) {
        text +=
            QLatin1String(": ") + QString(detail).replace(QLatin1Char('&'), QLatin1String("&&"));
    }
    if (entry.action->text() != text) {
        entry.action->setText(text);
        entry.action->setToolTip(ActionText::plain(text));
    }
}

void ActionRegistry::retranslate()
{
    for (const Entry& entry : qAsConst(d->entries)) {
        entry.info.text.apply(entry.action);
    }
    emit changed();
}

}  // namespace App
