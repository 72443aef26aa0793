#pragma once

#include <QObject>
#include <QVector>

class QPoint;
class QWidget;

namespace App {

class MainWindow;

/// The context menus of the stage, the time line, the animations, both trees and the tabs. They
/// show actions of the window and have no texts of their own. The right button, the menu key and
/// Shift+F10 open them.
class ContextMenus : public QObject
{
public:
    /// The parts of the window must exist.
    explicit ContextMenus(MainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place
    {
        QWidget* widget;
        QVector<const char*> actions;  // null: separator
    };

    void add(QWidget* widget, const QVector<const char*>& actions);
    bool open(const Place& place, const QPoint* pointer);

    MainWindow* m_window;
    QVector<Place> m_places;
};

}  // namespace App
