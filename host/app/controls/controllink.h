#pragma once

#include <QModelIndex>
#include <QObject>

class QWidget;

namespace Zorv {
class WidgetControl;
}

namespace App {

/// Stands between a widget and the receiver of the control that it was made for. What the
/// person does goes to the receiver; what the receiver sets goes into the widget, and is not
/// told back. Lives as a child of the widget.
class ControlLink : public QObject
{
    Q_OBJECT

public:
    /// Connects `field`, the widget of the control's kind.
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
    int m_setting = 0;  ///< how many values of the receiver are being set
};

}  // namespace App
