#pragma once

#include "editors/framework/widgetcontrol.h"

#include <QWidget>

#include <memory>

/// The simplest window that can be made of published controls: all of them, one below
/// the other.
class TestControls : public QWidget
{
    Q_OBJECT

public:
    TestControls();

    /// The button of an action or the widget, under the name that it was published by.
    QWidget* add(const QString& name, const Zorv::Control& control);

private:
    QWidget* makeWidget(const Zorv::WidgetControl& control);
};
