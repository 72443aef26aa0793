#include "support/planneddialogs.h"

PlannedDialogs::PlannedDialogs()
{
    setInstance(this);
}

PlannedDialogs::~PlannedDialogs()
{
    if (instance() == this) {
        setInstance(nullptr);
    }
}

int PlannedDialogs::count(const QString& kind) const
{
    return kind.isEmpty() ? shown.size() : texts(kind).size();
}

QStringList PlannedDialogs::texts(const QString& kind) const
{
    QStringList result;
    for (const Shown& dialog : shown) {
        if (dialog.kind == kind) {
            result.append(dialog.text);
        }
    }
    return result;
}

PlannedDialogs::Button PlannedDialogs::question(const QString& title, const QString& text,
                                                Buttons buttons, Button defaultButton)
{
    show({QStringLiteral("question"), title, text, buttons, defaultButton, {}});
    return takeButton(buttons, defaultButton);
}

PlannedDialogs::Button PlannedDialogs::warning(const QString& title, const QString& text,
                                               Buttons buttons, Button defaultButton)
{
    show({QStringLiteral("warning"), title, text, buttons, defaultButton, {}});
    return takeButton(buttons, defaultButton);
}

void PlannedDialogs::information(const QString& title, const QString& text)
{
    show({QStringLiteral("information"), title, text, Ok, Ok, {}});
}

void PlannedDialogs::error(const QString& title, const QString& text)
{
    show({QStringLiteral("error"), title, text, Ok, Ok, {}});
}

int PlannedDialogs::choose(const QString& title, const QString& text, const QStringList& choices,
                           int)
{
    show({QStringLiteral("choose"), title, text, {}, NoButton, choices});
    return choiceAnswers.isEmpty() ? -1 : choiceAnswers.takeFirst();
}

QString PlannedDialogs::openFileName(QWidget*, const QString& caption, const QString&,
                                     const QString& filter)
{
    return takeFiles("openFile", caption, filter).value(0);
}

QStringList PlannedDialogs::openFileNames(QWidget*, const QString& caption, const QString&,
                                          const QString& filter)
{
    return takeFiles("openFiles", caption, filter);
}

QString PlannedDialogs::saveFileName(QWidget*, const QString& caption, const QString&,
                                     const QString& filter)
{
    return takeFiles("saveFile", caption, filter).value(0);
}

QString PlannedDialogs::existingFolder(QWidget*, const QString& caption, const QString&)
{
    return takeFiles("folder", caption, {}).value(0);
}

void PlannedDialogs::show(const Shown& dialog)
{
    shown.append(dialog);
    if (whileOpen) {
        whileOpen(dialog);
    }
}

PlannedDialogs::Button PlannedDialogs::takeButton(Buttons buttons, Button defaultButton)
{
    if (!buttonAnswers.isEmpty()) {
        return buttonAnswers.takeFirst();
    }
    if (buttons & Cancel) {
        return Cancel;
    }
    return buttons & No ? No : defaultButton;
}

QStringList PlannedDialogs::takeFiles(const char* kind, const QString& caption,
                                      const QString& filter)
{
    show({QString::fromLatin1(kind), caption, filter, {}, NoButton, {}});
    return fileAnswers.isEmpty() ? QStringList() : fileAnswers.takeFirst();
}
