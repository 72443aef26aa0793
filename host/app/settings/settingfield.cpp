#include "app/settings/settingfield.h"

#include "app/settings/pathfield.h"
#include "app/settings/settingtable.h"
#include "operations/hostinterface.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFontDatabase>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>

#include <cmath>

namespace App {

namespace {

constexpr int SwatchSize = 16;

class SwitchField final : public SettingField
{
public:
    SwitchField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_box(new QCheckBox(parent))
    {
        connect(m_box, &QCheckBox::clicked, this, &SettingField::edited);
    }

    QWidget* widget() const override { return m_box; }
    QVariant value() const override { return m_box->isChecked(); }
    void setValue(const QVariant& value) override { m_box->setChecked(value.toBool()); }

    void retranslate() override
    {
        SettingField::retranslate();
        m_box->setText(settingText(row().label));
    }

private:
    QCheckBox* m_box;
};

class NumberField final : public SettingField
{
public:
    NumberField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_box(new QSpinBox(parent))
    {
        m_box->setRange(row.minimum, row.maximum);
        connect(m_box, QOverload<int>::of(&QSpinBox::valueChanged), this, &SettingField::edited);
    }

    QWidget* widget() const override { return m_box; }
    QVariant value() const override { return m_box->value(); }

    void setValue(const QVariant& value) override
    {
        const QSignalBlocker blocker(m_box);
        m_box->setValue(value.toInt());
    }

    void retranslate() override
    {
        SettingField::retranslate();
        m_box->setSpecialValueText(settingText(row().lowest));
        m_box->setSuffix(settingText(row().unit));
    }

private:
    QSpinBox* m_box;
};

/// Keeps the exact value until the user edits it: whole percents cannot represent every value.
class ShareField final : public SettingField
{
public:
    ShareField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_box(new QSpinBox(parent))
    {
        m_box->setRange(row.minimum, row.maximum);
        m_box->setSuffix(QStringLiteral(" %"));
        connect(m_box, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int percents) {
            m_value = percents / 100.0;
            emit edited();
        });
    }

    QWidget* widget() const override { return m_box; }
    QVariant value() const override { return m_value; }

    void setValue(const QVariant& value) override
    {
        const QSignalBlocker blocker(m_box);
        m_value = value.toDouble();
        m_box->setValue(int(std::lround(qBound(0.0, m_value, 1.0) * 100)));
    }

private:
    QSpinBox* m_box;
    double m_value = 0;
};

class ChoiceField final : public SettingField
{
public:
    ChoiceField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_box(new QComboBox(parent))
    {
        connect(m_box, QOverload<int>::of(&QComboBox::activated), this, &SettingField::edited);
    }

    QWidget* widget() const override { return m_box; }
    QVariant value() const override { return m_box->currentData(); }

    /// An unknown value is shown as the first choice.
    void setValue(const QVariant& value) override
    {
        m_box->setCurrentIndex(std::max(m_box->findData(value), 0));
    }

    void retranslate() override
    {
        SettingField::retranslate();
        const QVariant chosen = value();
        m_box->clear();
        const QVector<SettingChoice> choices = row().choices();
        for (const SettingChoice& choice : choices) {
            m_box->addItem(choice.label, choice.value);
        }
        setValue(chosen);
    }

private:
    QComboBox* m_box;
};

/// The first entry is the desktop's font, which has no name.
class FontField final : public SettingField
{
public:
    FontField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_box(new QComboBox(parent))
    {
        connect(m_box, QOverload<int>::of(&QComboBox::activated), this, &SettingField::edited);
    }

    QWidget* widget() const override { return m_box; }
    QVariant value() const override { return m_box->currentData(); }

    void setValue(const QVariant& value) override
    {
        const QString family = value.toString();
        if (m_box->findData(family) < 0) {
            m_box->addItem(family, family);
        }
        m_box->setCurrentIndex(m_box->findData(family));
    }

    void retranslate() override
    {
        SettingField::retranslate();
        const QVariant chosen = m_box->count() > 0 ? value() : QString();
        m_box->clear();
        m_box->addItem(settingText(row().lowest), QString());
        const QFontDatabase fonts;
        const QStringList families = fonts.families();
        for (const QString& family : families) {
            if (fonts.isFixedPitch(family)) {
                m_box->addItem(family, family);
            }
        }
        setValue(chosen);
    }

private:
    QComboBox* m_box;
};

/// A button whose menu offers the theme's colour or the default colour, and a colour dialog.
class ColourField final : public SettingField
{
public:
    ColourField(const SettingRow& row, QWidget* parent)
        : SettingField(row), m_button(new QPushButton(parent))
    {
        auto* menu = new QMenu(m_button);
        m_first = menu->addAction(QString(), this, [this] { take(firstColour()); });
        m_choose = menu->addAction(QString(), this, &ColourField::choose);
        m_button->setMenu(menu);
    }

    QWidget* widget() const override { return m_button; }
    QVariant value() const override { return m_colour; }

    void setValue(const QVariant& value) override
    {
        m_colour = value.value<QColor>();
        m_button->setIcon(m_colour.isValid() ? swatch() : QIcon());
        m_button->setText(m_colour.isValid() ? m_colour.name() : settingText(row().lowest));
        m_first->setEnabled(m_colour != firstColour());
    }

    void retranslate() override
    {
        SettingField::retranslate();
        m_choose->setText(settingText(QT_TRANSLATE_NOOP("App::Settings", "Choose...")));
        m_first->setText(row().lowest
                             ? settingText(row().lowest)
                             : settingText(QT_TRANSLATE_NOOP("App::Settings", "As at first")));
        setValue(m_colour);
    }

private:
    QIcon swatch() const
    {
        QPixmap picture(SwatchSize, SwatchSize);
        picture.fill(m_colour);
        return picture;
    }

    /// Invalid if the default is the theme's colour.
    QColor firstColour() const
    {
        return Operations::HostInterface::defaultOption(QLatin1String(row().key)).value<QColor>();
    }

    void take(const QColor& colour)
    {
        if (colour != m_colour) {
            setValue(colour);
            emit edited();
        }
    }

    void choose()
    {
        const QColor chosen = QColorDialog::getColor(m_colour, m_button);
        if (chosen.isValid()) {
            take(chosen);
        }
    }

    QPushButton* m_button;
    QAction* m_choose;
    QAction* m_first;
    QColor m_colour;
};

class FileField final : public SettingField
{
public:
    FileField(const SettingRow& row, PathField::Kind kind, QWidget* parent)
        : SettingField(row), m_field(new PathField(kind, parent))
    {
        connect(m_field, &PathField::edited, this, &SettingField::edited);
    }

    QWidget* widget() const override { return m_field; }
    QVariant value() const override { return m_field->path(); }
    void setValue(const QVariant& value) override { m_field->setPath(value.toString()); }

private:
    PathField* m_field;
};

}  // namespace

std::unique_ptr<SettingField> SettingField::make(const SettingRow& row, QWidget* parent)
{
    switch (row.kind) {
    case SettingRow::Switch:
        return std::make_unique<SwitchField>(row, parent);
    case SettingRow::Number:
        return std::make_unique<NumberField>(row, parent);
    case SettingRow::Share:
        return std::make_unique<ShareField>(row, parent);
    case SettingRow::Choice:
        return std::make_unique<ChoiceField>(row, parent);
    case SettingRow::Colour:
        return std::make_unique<ColourField>(row, parent);
    case SettingRow::FontFamily:
        return std::make_unique<FontField>(row, parent);
    case SettingRow::Folder:
        return std::make_unique<FileField>(row, PathField::Folder, parent);
    case SettingRow::Picture:
        return std::make_unique<FileField>(row, PathField::Picture, parent);
    }
    return nullptr;
}

void SettingField::retranslate()
{
    widget()->setToolTip(settingText(m_row.toolTip));
    QString name = settingText(m_row.label).remove(QLatin1Char('&'));
    if (name.endsWith(QLatin1Char(':'))) {
        name.chop(1);
    }
    widget()->setAccessibleName(name);
}

}  // namespace App
