#pragma once

#include <QWidget>

namespace App {

/// A page of the settings dialog. Changes take effect only when they are written.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// In the current language.
    virtual QString title() const = 0;

    /// Shows the stored values.
    virtual void read() = 0;

    /// Stores the values shown. False, with `error` as a message for the user, on failure; nothing
    /// is stored then.
    virtual bool write(QString* error) = 0;

    /// Shows the defaults.
    virtual void restoreDefaults() = 0;

signals:
    /// The user changed something.
    void edited();
};

}  // namespace App
