#include "app/window/panelplace.h"

#include <QApplication>
#include <QComboBox>
#include <QDockWidget>

#include <algorithm>

namespace App {

PanelPlace PanelPlace::inside(const QWidget* bar)
{
    const QList<QComboBox*> fields = bar->findChildren<QComboBox*>();
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [](const QWidget* field) { return field->isEnabled(); });
    return {found == fields.end() ? nullptr : *found, bar};
}

void goToPanel(const QVector<PanelPlace>& places, int step)
{
    const QWidget* focus = QApplication::focusWidget();
    QVector<QWidget*> shown;
    int current = -1;
    for (const PanelPlace& place : places) {
        // A panel behind another tab counts as visible for Qt, but lies outside the window.
        if (place.field && !place.field->visibleRegion().isEmpty()) {
            const bool isHere = focus && (place.area == focus || place.area->isAncestorOf(focus));
            current = isHere ? shown.size() : current;
            shown.append(place.field);
        }
    }
    if (!shown.isEmpty()) {
        const int from = current < 0 && step < 0 ? 0 : current;
        shown[(from + step + shown.size()) % shown.size()]->setFocus(Qt::ShortcutFocusReason);
    }
}

void bringForward(QWidget* content)
{
    for (QWidget* parent = content->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto* dock = qobject_cast<QDockWidget*>(parent)) {
            dock->show();
            dock->raise();
            break;
        }
    }
}

}  // namespace App
