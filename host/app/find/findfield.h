#pragma once

#include <QComboBox>

namespace App {

/// A field with a history of its texts, stored in the settings.
class FindField : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int MaxCount = 20;

    explicit FindField(const QString& setting, QWidget* parent = nullptr);

    QString text() const { return currentText(); }

    /// Sets a text and selects it, so that typing replaces it.
    void setText(const QString& text);

    /// Puts the text at the top of the history.
    void remember();

    /// Reads the history from the settings; the text does not change.
    void readHistory();

private:
    QString m_setting;
};

}  // namespace App
