#include "core/dialogs/dialogs.h"

#include "core/dialogs/rundlg.h"
#include "core/interface.h"

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>

#include <algorithm>

namespace Zorv {

namespace {

Dialogs* s_dialogs = nullptr;

const struct
{
    Dialogs::Button button;
    QMessageBox::StandardButton standard;
} buttonTable[] = {
    {Dialogs::Ok, QMessageBox::Ok},
    {Dialogs::Cancel, QMessageBox::Cancel},
    {Dialogs::Yes, QMessageBox::Yes},
    {Dialogs::No, QMessageBox::No},
};

QWidget* mainWindow()
{
    const Interface* host = Interface::instance();
    return host ? host->mainWindow() : nullptr;
}

// Without widgets nobody can answer.
bool canShow()
{
    return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

Dialogs::Button closingButton(Dialogs::Buttons buttons, Dialogs::Button defaultButton)
{
    if (buttons & Dialogs::Cancel) {
        return Dialogs::Cancel;
    }
    return buttons & Dialogs::No ? Dialogs::No : defaultButton;
}

Dialogs::Button showBox(QMessageBox::Icon icon, const QString& title, const QString& text,
                        Dialogs::Buttons buttons, Dialogs::Button defaultButton)
{
    const Dialogs::Button closing = closingButton(buttons, defaultButton);
    if (!canShow()) {
        return closing;
    }
    QMessageBox box(icon, title, text, QMessageBox::NoButton, mainWindow());
    // Paths in a text must not be taken for markup.
    box.setTextFormat(Qt::PlainText);
    for (const auto& entry : buttonTable) {
        if (!(buttons & entry.button)) {
            continue;
        }
        QPushButton* button = box.addButton(entry.standard);
        if (entry.button == defaultButton) {
            box.setDefaultButton(button);
        }
        if (entry.button == closing) {
            box.setEscapeButton(button);
        }
    }
    const int answer = box.exec();
    const auto* entry = std::find_if(std::begin(buttonTable), std::end(buttonTable),
                                     [=](const auto& e) { return e.standard == answer; });
    return entry == std::end(buttonTable) ? closing : entry->button;
}

QWidget* orMainWindow(QWidget* parent)
{
    return parent ? parent : mainWindow();
}

/// Appends the first extension of the filter, unless the name already ends in one of them.
QString withExtension(const QString& name, const QString& filter)
{
    static const QRegularExpression pattern(QStringLiteral("[( ]\\*([^ )]*)(?=[^(]*\\))"));
    QStringList extensions;
    for (auto matches = pattern.globalMatch(filter); matches.hasNext();) {
        extensions.append(matches.next().captured(1));
    }
    const bool hasExtension =
        std::any_of(extensions.cbegin(), extensions.cend(), [&name](const QString& extension) {
            return name.endsWith(extension, Qt::CaseInsensitive);
        });
    return hasExtension ? name : name + extensions.value(0);
}

bool mayReplace(const QString& fileName)
{
    const QString text = QCoreApplication::translate(
                             "Zorv::Dialogs", "%1 already exists.\nDo you want to replace it?")
                             .arg(QDir::toNativeSeparators(fileName));
    return Dialogs::instance()->warning(
               QCoreApplication::translate("Zorv::Dialogs", "Replace the file?"), text,
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

}  // namespace

Dialogs::~Dialogs() = default;

Dialogs* Dialogs::instance()
{
    static Dialogs standard;
    return s_dialogs ? s_dialogs : &standard;
}

void Dialogs::setInstance(Dialogs* dialogs)
{
    s_dialogs = dialogs;
}

Dialogs::Button Dialogs::question(const QString& title, const QString& text, Buttons buttons,
                                  Button defaultButton)
{
    return showBox(QMessageBox::Question, title, text, buttons, defaultButton);
}

Dialogs::Button Dialogs::warning(const QString& title, const QString& text, Buttons buttons,
                                 Button defaultButton)
{
    return showBox(QMessageBox::Warning, title, text, buttons, defaultButton);
}

void Dialogs::information(const QString& title, const QString& text)
{
    showBox(QMessageBox::Information, title, text, Ok, Ok);
}

void Dialogs::error(const QString& title, const QString& text)
{
    showBox(QMessageBox::Critical, title, text, Ok, Ok);
}

int Dialogs::choose(const QString& title, const QString& text, const QStringList& choices,
                    int defaultChoice)
{
    if (!canShow() || choices.isEmpty()) {
        return -1;
    }
    QInputDialog dialog(mainWindow());
    dialog.setWindowTitle(title);
    dialog.setLabelText(text);
    dialog.setComboBoxItems(choices);
    dialog.setTextValue(choices.value(defaultChoice, choices.first()));
    return dialog.exec() == QDialog::Accepted ? choices.indexOf(dialog.textValue()) : -1;
}

std::optional<QString> Dialogs::askText(const QString& title, const QString& label,
                                        const QString& text)
{
    if (!canShow()) {
        return std::nullopt;
    }
    QInputDialog dialog(mainWindow());
    dialog.setWindowTitle(title);
    dialog.setLabelText(label);
    dialog.setTextValue(text);
    return dialog.exec() == QDialog::Accepted ? std::optional(dialog.textValue()) : std::nullopt;
}

std::optional<QColor> Dialogs::chooseColor(const QString& title, const QColor& color)
{
    const QColor chosen = canShow() ? QColorDialog::getColor(color, mainWindow(), title,
                                                             QColorDialog::ShowAlphaChannel)
                                    : QColor();
    return chosen.isValid() ? std::optional(chosen) : std::nullopt;
}

QString Dialogs::openFileName(QWidget* parent, const QString& caption, const QString& dir,
                              const QString& filter)
{
    return canShow() ? QFileDialog::getOpenFileName(orMainWindow(parent), caption, dir, filter)
                     : QString();
}

QStringList Dialogs::openFileNames(QWidget* parent, const QString& caption, const QString& dir,
                                   const QString& filter)
{
    return canShow() ? QFileDialog::getOpenFileNames(orMainWindow(parent), caption, dir, filter)
                     : QStringList();
}

QString Dialogs::saveFileName(QWidget* parent, const QString& caption, const QString& dir,
                              const QString& filter)
{
    QString start = dir;
    while (canShow()) {
        const QString name =
            QFileDialog::getSaveFileName(orMainWindow(parent), caption, start, filter);
        if (name.isEmpty()) {
            break;
        }
        // The dialog has only checked the name without the extension.
        const QString full = withExtension(name, filter);
        if (full == name || !QFileInfo::exists(full) || mayReplace(full)) {
            return full;
        }
        start = full;
    }
    return {};
}

QString Dialogs::existingFolder(QWidget* parent, const QString& caption, const QString& dir)
{
    return canShow() ? QFileDialog::getExistingDirectory(orMainWindow(parent), caption, dir)
                     : QString();
}

int Dialogs::runTarget(QWidget* parent, QAbstractItemModel* model, unsigned row, QRect* geometry)
{
    if (!canShow()) {
        return -1;
    }
    RunDlg dialog(orMainWindow(parent), model, row);
    if (!geometry->isNull()) {
        dialog.setGeometry(*geometry);
    }
    const int answer = dialog.exec();
    *geometry = dialog.geometry();
    return answer == QDialog::Accepted ? int(dialog.selectedIndex()) : -1;
}

QString getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                        const QString& filter)
{
    return Dialogs::instance()->openFileName(parent, caption, dir, filter);
}

QString getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                        const QString& filter)
{
    return Dialogs::instance()->saveFileName(parent, caption, dir, filter);
}

QStringList getOpenFileNames(QWidget* parent, const QString& caption, const QString& dir,
                             const QString& filter)
{
    QStringList names = Dialogs::instance()->openFileNames(parent, caption, dir, filter);
    const Interface* host = Interface::instance();
    if (host && host->option(QStringLiteral("sort_file_names")).toBool()) {
        names.sort(Qt::CaseSensitive);
    }
    return names;
}

}  // namespace Zorv
