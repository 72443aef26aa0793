#include "app/settings/tablepage.h"

#include "app/look/language.h"
#include "app/settings/settingfield.h"
#include "app/settings/settingtable.h"
#include "operations/hostinterface.h"

#include <QEvent>
#include <QFormLayout>
#include <QLabel>

namespace App {

namespace {

/// The user's choice; invalid if a colour is left to the theme.
QVariant storedOption(const SettingRow& row)
{
    const auto* host = static_cast<Operations::HostInterface*>(Zorv::Interface::instance());
    return host->storedOption(QLatin1String(row.key));
}

}  // namespace

TablePage::TablePage(const SettingPageRow& page, QWidget* parent)
    : SettingsPage(parent), m_page(page)
{
    new QFormLayout(this);
    for (const SettingRow& row : settingTable()) {
        if (qstrcmp(row.page, page.name) == 0) {
            addLine(row);
        }
    }
    followLanguage(this, [this] { retranslate(); });
}

TablePage::~TablePage() = default;

void TablePage::addLine(const SettingRow& row)
{
    auto* form = static_cast<QFormLayout*>(layout());
    Line line{row, nullptr, SettingField::make(row, this)};
    QWidget* widget = line.field->widget();
    widget->setObjectName(QLatin1String(row.key));
    widget->setFocusPolicy(Qt::StrongFocus);
    widget->installEventFilter(this);
    if (row.kind == SettingRow::Switch) {
        form->addRow(widget);
    } else {
        line.label = new QLabel(this);
        line.label->setBuddy(widget);
        form->addRow(line.label, widget);
    }
    connect(line.field.get(), &SettingField::edited, this, &SettingsPage::edited);
    m_lines.push_back(std::move(line));
}

/// The wheel scrolls the page and must not change fields it passes over.
bool TablePage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return SettingsPage::eventFilter(watched, event);
}

void TablePage::retranslate()
{
    for (const Line& line : m_lines) {
        line.field->retranslate();
        if (line.label) {
            line.label->setText(settingText(line.row.label));
        }
    }
}

QString TablePage::title() const
{
    return settingText(m_page.title);
}

void TablePage::read()
{
    for (const Line& line : m_lines) {
        line.field->setValue(storedOption(line.row));
    }
}

/// A default value is not stored, so that a later version can change the default.
bool TablePage::write(QString*)
{
    Zorv::Interface* host = Zorv::Interface::instance();
    for (const Line& line : m_lines) {
        const QString key = QLatin1String(line.row.key);
        const QVariant value = line.field->value();
        if (value != storedOption(line.row)) {
            const bool isDefault = value == Operations::HostInterface::defaultOption(key);
            host->setOption(key, isDefault ? QVariant() : value);
        }
    }
    return true;
}

void TablePage::restoreDefaults()
{
    for (const Line& line : m_lines) {
        line.field->setValue(Operations::HostInterface::defaultOption(QLatin1String(line.row.key)));
    }
    emit edited();
}

}  // namespace App
