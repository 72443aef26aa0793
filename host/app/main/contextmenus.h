#pragma once

#include <QObject>
#include <QVector>

class QPoint;
class QWidget;

namespace App {

class MainWindow;

/// The menus at the pointer: of the stage, the time line, the animations, both trees and the tabs.
/// They have actions of the window and no texts of their own, and come by the right button, the
/// menu key and Shift+F10.
class ContextMenus : public QObject
{
public:
    /// The parts of the window must be there.
    explicit ContextMenus(MainWindow* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Place
    {
        QWidget* widget;
        QVector<const char*> actions;  // null for a gap
    };

    void add(QWidget* widget, const QVector<const char*>& actions);
    bool open(const Place& place, const QPoint* pointer);

    MainWindow* m_window;
    QVector<Place> m_places;
};

}  // namespace App
