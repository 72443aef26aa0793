#include "support/planneddialogs.h"

#include <QAbstractItemModel>

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
    show({QStringLiteral("question"), title, text, buttons, defaultButton, {}, {}});
    return takeButton(buttons, defaultButton);
}

PlannedDialogs::Button PlannedDialogs::warning(const QString& title, const QString& text,
                                               Buttons buttons, Button defaultButton)
{
    show({QStringLiteral("warning"), title, text, buttons, defaultButton, {}, {}});
    return takeButton(buttons, defaultButton);
}

void PlannedDialogs::information(const QString& title, const QString& text)
{
    show({QStringLiteral("information"), title, text, Ok, Ok, {}, {}});
}

void PlannedDialogs::error(const QString& title, const QString& text)
{
    show({QStringLiteral("error"), title, text, Ok, Ok, {}, {}});
}

int PlannedDialogs::choose(const QString& title, const QString& text, const QStringList& choices,
                           int)
{
    show({QStringLiteral("choose"), title, text, {}, NoButton, choices, {}});
    return choiceAnswers.isEmpty() ? -1 : choiceAnswers.takeFirst();
}

std::optional<QString> PlannedDialogs::askText(const QString& title, const QString& label,
                                               const QString& text)
{
    show({QStringLiteral("askText"), title, label, {}, NoButton, {text}, {}});
    return textAnswers.isEmpty() ? std::nullopt : std::optional(textAnswers.takeFirst());
}

std::optional<QColor> PlannedDialogs::chooseColor(const QString& title, const QColor& color)
{
    show({QStringLiteral("chooseColor"), title, color.name(QColor::HexArgb), {}, NoButton, {}, {}});
    return colorAnswers.isEmpty() ? std::nullopt : std::optional(colorAnswers.takeFirst());
}

QString PlannedDialogs::openFileName(QWidget*, const QString& caption, const QString& dir,
                                     const QString& filter)
{
    return takeFiles("openFile", caption, dir, filter).value(0);
}

QStringList PlannedDialogs::openFileNames(QWidget*, const QString& caption, const QString& dir,
                                          const QString& filter)
{
    return takeFiles("openFiles", caption, dir, filter);
}

QString PlannedDialogs::saveFileName(QWidget*, const QString& caption, const QString& dir,
                                     const QString& filter)
{
    return takeFiles("saveFile", caption, dir, filter).value(0);
}

QString PlannedDialogs::existingFolder(QWidget*, const QString& caption, const QString& dir)
{
    return takeFiles("folder", caption, dir, {}).value(0);
}

int PlannedDialogs::runTarget(QWidget*, QAbstractItemModel* model, unsigned row, QRect* geometry)
{
    Shown dialog{QStringLiteral("runTarget"), {}, QString::number(row), {}, NoButton, {}, {}};
    for (int i = 0; i < model->rowCount(); ++i) {
        dialog.choices.append(model->index(i, 0).data().toString());
    }
    show(dialog);
    if (!targetGeometry.isNull()) {
        *geometry = targetGeometry;
    }
    return targetAnswers.isEmpty() ? -1 : targetAnswers.takeFirst();
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

QStringList PlannedDialogs::takeFiles(const char* kind, const QString& caption, const QString& dir,
                                      const QString& filter)
{
    show({QString::fromLatin1(kind), caption, filter, {}, NoButton, {}, dir});
    return fileAnswers.isEmpty() ? QStringList() : fileAnswers.takeFirst();
}
