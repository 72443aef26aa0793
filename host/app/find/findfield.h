#pragma once

#include <QComboBox>

namespace App {

/// A field with what was written in it before, which the settings keep.
class FindField : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int MaxCount = 20;

    explicit FindField(const QString& setting, QWidget* parent = nullptr);

    QString text() const { return currentText(); }

    /// Writes a text, marked, so that typing takes its place.
    void setText(const QString& text);

    /// Puts the text at the head of the history.
    void remember();

    /// Takes the history from the settings; the text stays.
    void readHistory();

private:
    QString m_setting;
};

}  // namespace App
