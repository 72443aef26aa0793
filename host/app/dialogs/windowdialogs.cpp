#include "app/dialogs/windowdialogs.h"

#include <zorv/core/interface.h>

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

namespace App {

namespace {

// More choices than this are easier to find in a list.
constexpr int MaxButtons = 3;

QWidget* mainWindow()
{
    const Zorv::Interface* host = Zorv::Interface::instance();
    return host ? host->mainWindow() : nullptr;
}

int chooseFromList(const QString& title, const QString& text, const QStringList& choices,
                   int defaultChoice)
{
    QInputDialog dialog(mainWindow());
    dialog.setWindowTitle(title);
    dialog.setLabelText(text);
    dialog.setOption(QInputDialog::UseListViewForComboBoxItems);
    dialog.setComboBoxItems(choices);
    dialog.setTextValue(choices.value(defaultChoice, choices.first()));
    return dialog.exec() == QDialog::Accepted ? choices.indexOf(dialog.textValue()) : -1;
}

int chooseByButton(const QString& title, const QString& text, const QStringList& choices,
                   int defaultChoice)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, mainWindow());
    box.setTextFormat(Qt::PlainText);
    QList<QAbstractButton*> buttons;
    for (const QString& choice : choices) {
        buttons.append(box.addButton(choice, QMessageBox::AcceptRole));
    }
    box.setEscapeButton(box.addButton(QMessageBox::Cancel));
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.value(defaultChoice)));
    box.exec();
    return buttons.indexOf(box.clickedButton());
}

}  // namespace

WindowDialogs::WindowDialogs()
{
    setInstance(this);
}

WindowDialogs::~WindowDialogs()
{
    if (instance() == this) {
        setInstance(nullptr);
    }
}

int WindowDialogs::choose(const QString& title, const QString& text, const QStringList& choices,
                          int defaultChoice)
{
    if (choices.isEmpty()) {
        return -1;
    }
    return choices.size() > MaxButtons ? chooseFromList(title, text, choices, defaultChoice)
                                       : chooseByButton(title, text, choices, defaultChoice);
}

}  // namespace App
