#pragma once

#include <QWidget>

class QLabel;

namespace Zorv {
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

    /// The widget itself: a slider, a field, a view.
    QWidget* field() const { return m_field; }

    /// True for lists and trees, which take all the room that there is.
    bool isView() const;

    /// Label, tool tip and status tip again, in the present language.
    void retranslate();

private:
    void makeLabel(const Zorv::WidgetControl& control);

    QWidget* m_field;
    QLabel* m_label = nullptr;
    const Zorv::Translator* m_translator = nullptr;
    unsigned m_textId = 0;
};

}  // namespace App
