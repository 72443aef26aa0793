#pragma once

#include <QWidget>

class QLabel;

namespace Zorv {
class OwnWidgetControl;
class Translator;
class WidgetControl;
}  // namespace Zorv

namespace App {

/// The widget of a control together with its label.
class ControlBox : public QWidget
{
    Q_OBJECT

public:
    /// Makes the widget, named `name`, and connects it with the receiver of the control.
    ControlBox(const QString& name, const Zorv::WidgetControl& control, QWidget* parent = nullptr);

    /// Takes the widget of the control, which gets `name` if it has none. The box goes when the
    /// widget does.
    ControlBox(const QString& name, const Zorv::OwnWidgetControl& control,
               QWidget* parent = nullptr);

    /// The widget itself: a slider, a field, a view.
    QWidget* field() const { return m_field; }

    /// Null for a control without one.
    QLabel* label() const { return m_label; }

    /// True for a list, a tree and what else grows in height: it gets all the room that is left.
    bool takesRoom() const;

    /// Label, tool tip and status tip again, in the present language.
    void retranslate();

private:
    void hold(const QString& name);
    void makeLabel(const Zorv::WidgetControl& control);

    QWidget* m_field;
    QLabel* m_label = nullptr;
    const Zorv::Translator* m_translator = nullptr;
    unsigned m_textId = 0;
};

}  // namespace App
