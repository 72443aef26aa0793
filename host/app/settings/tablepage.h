#pragma once

#include "app/settings/settingspage.h"

#include <memory>
#include <vector>

class QLabel;

namespace App {

class SettingField;
struct SettingPageRow;
struct SettingRow;

/// A page with the settings of the table that name it.
class TablePage : public SettingsPage
{
    Q_OBJECT

public:
    /// The row must stay valid.
    explicit TablePage(const SettingPageRow& page, QWidget* parent = nullptr);
    ~TablePage() override;

    QString title() const override;
    void read() override;
    bool write(QString* error) override;
    void restoreDefaults() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Line
    {
        const SettingRow& row;
        QLabel* label;  ///< null if the widget shows the label
        std::unique_ptr<SettingField> field;
    };

    void addLine(const SettingRow& row);
    void retranslate();

    const SettingPageRow& m_page;
    std::vector<Line> m_lines;
};

}  // namespace App
