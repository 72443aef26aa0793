#include "editors/snipman/snipfielddlg.h"

#include "core/dialogs/dialogbuttons_p.h"
#include "editors/snipman/combosnipfield.h"
#include "editors/snipman/regularsnipfield.h"
#include "editors/snipman/snippetnumber_p.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>

/// The pages of inputs are in the order of the types.
class SnipFieldDlgPrivate
{
public:
    enum Type { Text, Whole, Number, Items };

    QLineEdit* name = nullptr;
    QLineEdit* title = nullptr;
    QComboBox* type = nullptr;
    QStackedWidget* pages = nullptr;
    QLineEdit* text = nullptr;
    QSpinBox* whole = nullptr;
    Zorv::SnippetNumberBox* number = nullptr;
    QPlainTextEdit* values = nullptr;
    QPlainTextEdit* titles = nullptr;
    QDialogButtonBox* buttons = nullptr;
};

namespace {

const char* const typeNames[] = {"string", "int", "float", "items"};

/// Adds a row to a form; screen readers read its label.
template <typename Widget>
Widget* addRow(QFormLayout* form, const QString& label, const char* name, Widget* widget)
{
    widget->setObjectName(QLatin1String(name));
    form->addRow(label, widget);
    return widget;
}

QFormLayout* addPage(QStackedWidget* pages)
{
    auto* page = new QWidget;
    auto* form = new QFormLayout(page);
    form->setContentsMargins({});
    pages->addWidget(page);
    return form;
}

QPlainTextEdit* makeLines()
{
    auto* edit = new QPlainTextEdit;
    edit->setTabChangesFocus(true);
    return edit;
}

QStringList linesOf(const QPlainTextEdit* edit)
{
    return edit->toPlainText().split(QLatin1Char('\n'));
}

}  // namespace

SnipFieldDlg::SnipFieldDlg(QWidget* parent) : QDialog(parent), d(new SnipFieldDlgPrivate)
{
    setWindowTitle(tr("Field of a code snippet"));
    auto* form = new QFormLayout;
    d->name = addRow(form, tr("&Name:"), "name", new QLineEdit);
    d->name->setToolTip(tr("In the code, @ and this name stand for the value."));
    d->title = addRow(form, tr("&Title:"), "title", new QLineEdit);
    d->type = addRow(form, tr("T&ype:"), "type", new QComboBox);
    d->type->addItems({tr("Text"), tr("Whole number"), tr("Number"), tr("List of items")});

    d->pages = new QStackedWidget;
    d->text = addRow(addPage(d->pages), tr("&Value:"), "text", new QLineEdit);
    d->whole = addRow(addPage(d->pages), tr("&Value:"), "whole", new QSpinBox);
    d->whole->setRange(-Zorv::MaxSnippetNumber, Zorv::MaxSnippetNumber);
    d->number = addRow(addPage(d->pages), tr("&Value:"), "number", new Zorv::SnippetNumberBox);
    QFormLayout* lists = addPage(d->pages);
    d->titles = addRow(lists, tr("&Items, one a line:"), "titles", makeLines());
    d->values = addRow(lists, tr("&Values, one a line:"), "values", makeLines());
    lists->addRow(new QLabel(tr("A comma begins a new item.")));

    d->buttons = Zorv::makeOkCancel(this);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(d->pages);
    layout->addWidget(d->buttons);
    d->name->setFocus();
    QMetaObject::connectSlotsByName(this);
    on_name_textChanged({});
}

SnipFieldDlg::~SnipFieldDlg() = default;

void SnipFieldDlg::setField(const SnipField& field)
{
    d->name->setText(field.name);
    d->title->setText(field.title);
    int type = SnipFieldDlgPrivate::Text;
    for (int i = 0; i < d->type->count(); ++i) {
        if (field.type() == QLatin1String(typeNames[i])) {
            type = i;
        }
    }
    d->type->setCurrentIndex(type);
    if (const auto* list = dynamic_cast<const ComboSnipField*>(&field)) {
        d->titles->setPlainText(list->itemTitles.join(QLatin1Char('\n')));
        d->values->setPlainText(list->itemValues.join(QLatin1Char('\n')));
    } else if (const auto* regular = dynamic_cast<const RegularSnipField*>(&field)) {
        d->text->setText(regular->value);
        d->whole->setValue(regular->value.toInt());
        d->number->setValue(regular->value.toDouble());
    }
}

SnipField* SnipFieldDlg::getField() const
{
    const QString name = d->name->text();
    const QString title = d->title->text();
    const int type = d->type->currentIndex();
    if (type == SnipFieldDlgPrivate::Items) {
        return new ComboSnipField(name, title, linesOf(d->values), linesOf(d->titles));
    }
    const QString value = type == SnipFieldDlgPrivate::Whole ? QString::number(d->whole->value())
                          : type == SnipFieldDlgPrivate::Number
                              ? Zorv::snippetNumber(d->number->value())
                              : d->text->text();
    return new RegularSnipField(name, title, QLatin1String(typeNames[type]), value);
}

void SnipFieldDlg::on_type_currentIndexChanged(int index)
{
    d->pages->setCurrentIndex(index);
}

void SnipFieldDlg::on_name_textChanged(const QString& text)
{
    d->buttons->button(QDialogButtonBox::Ok)->setEnabled(!text.isEmpty());
}
