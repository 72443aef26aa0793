#include "editors/snipman/snippetform_p.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "editors/snipman/combosnipfield.h"
#include "editors/snipman/regularsnipfield.h"
#include "editors/snipman/snippetnumber_p.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

namespace Zorv {

namespace {

constexpr int MaxLabel = 200;

QWidget* makeList(const ComboSnipField& field)
{
    auto* box = new QComboBox;
    for (int i = 0; i < field.itemTitles.size(); ++i) {
        box->addItem(SnippetForm::translated(field.itemTitles[i], field.name), field.itemValue(i));
    }
    return box;
}

QWidget* makeWholeNumber(const QString& value)
{
    auto* box = new QSpinBox;
    box->setRange(-MaxSnippetNumber, MaxSnippetNumber);
    box->setValue(value.toInt());
    return box;
}

QWidget* makeNumber(const QString& value)
{
    auto* box = new SnippetNumberBox;
    box->setValue(value.toDouble());
    return box;
}

/// Selects the default, so that typing replaces it, as after the Tab key.
void selectText(QWidget* input)
{
    if (auto* line = qobject_cast<QLineEdit*>(input)) {
        line->selectAll();
    } else if (auto* number = qobject_cast<QAbstractSpinBox*>(input)) {
        number->selectAll();
    }
}

QString valueOf(const QWidget* input)
{
    if (const auto* list = qobject_cast<const QComboBox*>(input)) {
        return list->currentData().toString();
    }
    if (const auto* whole = qobject_cast<const QSpinBox*>(input)) {
        return QString::number(whole->value());
    }
    if (const auto* number = qobject_cast<const QDoubleSpinBox*>(input)) {
        return snippetNumber(number->value());
    }
    return qobject_cast<const QLineEdit*>(input)->text();
}

}  // namespace

const char* const SnippetForm::Context = "Snippets";

SnippetForm::SnippetForm(QWidget* parent, const QString& title, const Fields& fields)
    : QDialog(parent)
{
    setWindowTitle(title);
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    for (const auto& field : fields) {
        addRow(grid, *field);
    }
    grid->setRowStretch(grid->rowCount(), 1);
    if (!m_inputs.empty()) {
        m_inputs.front()->setFocus();
        selectText(m_inputs.front());
    }

    auto* area = new QScrollArea;
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidget(page);

    auto* buttons = makeOkCancel(this);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(area);
    layout->addWidget(buttons);
}

QStringList SnippetForm::values() const
{
    QStringList result;
    for (const QWidget* input : m_inputs) {
        result.append(valueOf(input));
    }
    return result;
}

QString SnippetForm::translated(const QString& text, const QString& fieldName)
{
    // An empty text would look up the header of the translation file.
    return text.isEmpty() ? text
                          : QCoreApplication::translate(Context, text.toUtf8().constData(),
                                                        fieldName.toUtf8().constData());
}

void SnippetForm::addRow(QGridLayout* grid, const SnipField& field)
{
    const QString title = translated(field.title, field.name);
    QWidget* input = makeInput(field);
    input->setObjectName(field.name);
    input->setAccessibleName(title);

    // A label with a buddy treats "&" as the mark of an access key.
    QString text = title.size() > MaxLabel ? title.left(MaxLabel) + QChar(0x2026) : title;
    auto* label = new QLabel(text.replace(QLatin1Char('&'), QLatin1String("&&")));
    label->setTextFormat(Qt::PlainText);
    label->setBuddy(input);

    const int row = int(m_inputs.size());
    grid->addWidget(label, row, 0);
    grid->addWidget(input, row, 1);
    m_inputs.push_back(input);
}

QWidget* SnippetForm::makeInput(const SnipField& field)
{
    if (const auto* list = dynamic_cast<const ComboSnipField*>(&field)) {
        return makeList(*list);
    }
    const QString value = static_cast<const RegularSnipField&>(field).value;
    if (field.type() == QLatin1String("int")) {
        return makeWholeNumber(value);
    }
    if (field.type() == QLatin1String("float")) {
        return makeNumber(value);
    }
    return new QLineEdit(value);
}

}  // namespace Zorv
