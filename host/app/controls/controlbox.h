#pragma once

#include <QWidget>

class QLabel;

namespace Zorv {
class OwnWidgetControl;
class Translator;
class WidgetControl;
}  // namespace Zorv

namespace App {

/// The widget of a control with its label.
class ControlBox : public QWidget
{
    Q_OBJECT

public:
    /// Creates the widget, named `name`, and connects it to the control's receiver.
    ControlBox(const QString& name, const Zorv::WidgetControl& control, QWidget* parent = nullptr);

    /// Takes the control's own widget, which gets `name` if it has none. The box is destroyed with
    /// the widget.
    ControlBox(const QString& name, const Zorv::OwnWidgetControl& control,
               QWidget* parent = nullptr);

    /// The widget itself: a slider, a field, a view.
    QWidget* field() const { return m_field; }

    /// Null if the control has none.
    QLabel* label() const { return m_label; }

    /// True for widgets that grow in height, such as lists and trees: they get all the remaining
    /// space.
    bool takesRoom() const;

    /// Sets label, tool tip and status tip again in the current language.
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
