#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

class QWidget;

namespace App {

struct SettingRow;

/// The widget for editing one setting.
class SettingField : public QObject
{
    Q_OBJECT

public:
    /// Creates the field for a row of the table, which must stay valid. The widget is a child of
    /// `parent`.
    static std::unique_ptr<SettingField> make(const SettingRow& row, QWidget* parent);

    virtual QWidget* widget() const = 0;

    /// The value shown, in the form that the setting stores.
    virtual QVariant value() const = 0;
    virtual void setValue(const QVariant& value) = 0;

    /// Sets the texts of the widget in the current language.
    virtual void retranslate();

signals:
    /// The user changed the value.
    void edited();

protected:
    explicit SettingField(const SettingRow& row) : m_row(row) {}

    const SettingRow& row() const { return m_row; }

private:
    const SettingRow& m_row;
};

}  // namespace App
