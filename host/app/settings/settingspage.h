#pragma once

#include <QWidget>

namespace App {

/// A page of the settings dialog. What the person changes in it counts only when it is written.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// In the present language.
    virtual QString title() const = 0;

    /// Shows what is stored.
    virtual void read() = 0;

    /// Stores what is shown. False, with `error` in words for the person, if that cannot be done;
    /// then nothing is stored.
    virtual bool write(QString* error) = 0;

    /// Shows the defaults.
    virtual void restoreDefaults() = 0;

signals:
    /// The person has changed something.
    void edited();
};

}  // namespace App
