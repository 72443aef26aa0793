#include "cli/commanddialogs.h"

#include "cli/output.h"

#include <QAbstractItemModel>
#include <QCoreApplication>

namespace Cli {

namespace {

CommandDialogs::Button givingUp(CommandDialogs::Buttons buttons)
{
    for (CommandDialogs::Button button : {CommandDialogs::Cancel, CommandDialogs::No}) {
        if (buttons & button) {
            return button;
        }
    }
    return CommandDialogs::NoButton;
}

}  // namespace

CommandDialogs::CommandDialogs()
{
    setInstance(this);
}

CommandDialogs::~CommandDialogs()
{
    setInstance(nullptr);
}

CommandDialogs::Button CommandDialogs::question(const QString&, const QString& text,
                                                Buttons buttons, Button)
{
    show(text);
    return givingUp(buttons);
}

CommandDialogs::Button CommandDialogs::warning(const QString&, const QString& text, Buttons buttons,
                                               Button)
{
    show(text);
    return givingUp(buttons);
}

void CommandDialogs::information(const QString&, const QString& text)
{
    complain(text);
}

void CommandDialogs::error(const QString&, const QString& text)
{
    show(text);
}

int CommandDialogs::choose(const QString&, const QString& text, const QStringList&, int)
{
    show(text);
    return -1;
}

std::optional<QString> CommandDialogs::askText(const QString&, const QString& label, const QString&)
{
    show(label);
    return std::nullopt;
}

QString CommandDialogs::openFileName(QWidget*, const QString& caption, const QString&,
                                     const QString&)
{
    show(caption);
    return {};
}

QStringList CommandDialogs::openFileNames(QWidget*, const QString& caption, const QString&,
                                          const QString&)
{
    show(caption);
    return {};
}

QString CommandDialogs::saveFileName(QWidget*, const QString& caption, const QString&,
                                     const QString&)
{
    show(caption);
    return {};
}

QString CommandDialogs::existingFolder(QWidget*, const QString& caption, const QString&)
{
    show(caption);
    return {};
}

int CommandDialogs::runTarget(QWidget*, QAbstractItemModel* model, unsigned, QRect*)
{
    QStringList names;
    for (int row = 0; row < model->rowCount(); ++row) {
        names.append(model->index(row, 0).data().toString());
    }
    show(QCoreApplication::translate("Cli", "There is more than one engine: %1. Name one with "
                                            "'--engine'.")
             .arg(names.join(QLatin1String(", "))));
    return -1;
}

void CommandDialogs::show(const QString& text)
{
    m_shown = true;
    complain(text);
}

}  // namespace Cli
