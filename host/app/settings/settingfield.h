#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

class QWidget;

namespace App {

struct SettingRow;

/// The widget in which one setting is changed.
class SettingField : public QObject
{
    Q_OBJECT

public:
    /// A field for a row of the table, which lives on. The widget is a child of `parent`.
    static std::unique_ptr<SettingField> make(const SettingRow& row, QWidget* parent);

    virtual QWidget* widget() const = 0;

    /// What the widget shows, as the setting stores it.
    virtual QVariant value() const = 0;
    virtual void setValue(const QVariant& value) = 0;

    /// Gives the widget its texts in the present language.
    virtual void retranslate();

signals:
    /// The person has changed the value.
    void edited();

protected:
    explicit SettingField(const SettingRow& row) : m_row(row) {}

    const SettingRow& row() const { return m_row; }

private:
    const SettingRow& m_row;
};

}  // namespace App
