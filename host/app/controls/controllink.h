#pragma once

#include <QModelIndex>
#include <QObject>

class QWidget;

namespace Zorv {
class WidgetControl;
}

namespace App {

/// Connects a widget with the receiver of its control. User input goes to the receiver. Values set
/// by the receiver go to the widget, and are not sent back: that would loop. A child of the widget.
class ControlLink : public QObject
{
    Q_OBJECT

public:
    /// Connects `field`, a widget of the control's kind.
    ControlLink(QWidget* field, const Zorv::WidgetControl& control);

    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    void setNumber(int value);
    void setReal(double value);
    void setOn(bool isOn);
    void setText(const QString& text);

signals:
    void numberChanged(int value);
    void realChanged(double value);
    void switched(bool isOn);
    void rowChosen(const QModelIndex& index);

private:
    void connectField(const Zorv::WidgetControl& control);
    void connectReceiver(const Zorv::WidgetControl& control);

    QWidget* m_field;
    int m_setting = 0;  ///< guard against re-entrance: number of values being set
};

}  // namespace App
