#include "editors/palette/palettesave_p.h"

#include "cache/palettes.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/dialogs/itemsdialog.h"
#include "core/interface.h"
#include "core/progress.h"
#include "editors/palette/paletteeditor_p.h"
#include "media/fileextensiontype.h"
#include "media/palettefile.h"
#include "text/zorvtranslator.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <memory>

namespace Zorv {

namespace {

constexpr unsigned TitleText = 44;
const QString Suffix = QStringLiteral("act");

QString title()
{
    return ZorvTranslator::instance()->trText(TitleText);
}

/// Replaces characters that separate folders or are special on some system.
QString asFileName(QString name)
{
    for (QChar& each : name) {
        each = QStringLiteral(",/\\%:*?\"<>|").contains(each) ? QLatin1Char('-') : each;
    }
    return name;
}

}  // namespace

PaletteSave::PaletteSave(Palettes* palettes, int row)
    : m_palettes(palettes), m_row(row), m_folder(paletteFolder(*palettes))
{
}

void PaletteSave::run()
{
    if (choose() && askForFile()) {
        write();
    }
}

bool PaletteSave::choose()
{
    const Interface* host = Interface::instance();
    const std::unique_ptr<ItemsDialog> dialog(
        host->itemsDialog(host->mainWindow(), title(), m_palettes, m_row));
    QObject::connect(m_palettes->sprites(), &Sprites::closing, dialog.get(), [&dialog] {
        dialog->release();
        dialog->reject();
    });
    if (dialog->exec() != QDialog::Accepted || !m_palettes) {
        return false;
    }
    const QList<int> rows = dialog->selected();
    for (const int row : rows) {
        if (const Palette* palette = m_palettes->palette(row)) {
            Item item{asFileName(paletteName(*palette)), {}, {}};
            std::fill(std::begin(item.colors), std::end(item.colors), RGBA{0, 0, 0, 255});
            palette->toPalette(item.colors);
            m_items.push_back(item);
        }
    }
    return !m_items.empty();
}

bool PaletteSave::askForFile()
{
    QString path = getSaveFileName(Interface::instance()->mainWindow(), title(), m_folder,
                                   QLatin1String(fileExtension(FileExtensionType::PaletteAct)));
    if (path.isEmpty()) {
        return false;
    }
    if (QFileInfo(path).suffix().isEmpty()) {
        path += (path.endsWith(QLatin1Char('.')) ? QString() : QStringLiteral(".")) + Suffix;
    }
    if (m_items.size() == 1) {
        m_items.front().path = path;
        return true;
    }
    const QFileInfo chosen(path);
    const QString start =
        chosen.absolutePath() + QLatin1Char('/') + chosen.completeBaseName() + QLatin1Char('_');
    QSet<QString> taken;
    for (Item& item : m_items) {
        QString name = item.name;
        for (int i = 2; taken.contains(name); ++i) {
            name = item.name + QLatin1Char('_') + QString::number(i);
        }
        taken.insert(name);
        item.path = start + name + QLatin1Char('.') + chosen.suffix();
    }
    return mayReplace(path);
}

/// The file dialog has only asked about overwriting the file that it returned.
bool PaletteSave::mayReplace(const QString& asked) const
{
    const auto existing = std::count_if(m_items.begin(), m_items.end(), [&](const Item& item) {
        return item.path != asked && QFileInfo::exists(item.path);
    });
    return existing == 0 ||
           Dialogs::instance()->question(
               title(),
               PaletteEditor::tr("%n file(s) of these names are in the folder already. Replace "
                                 "them?",
                                 nullptr, int(existing)),
               Dialogs::Yes | Dialogs::No, Dialogs::No) == Dialogs::Yes;
}

void PaletteSave::write() const
{
    QStringList errors;
    Progress progress(PaletteEditor::tr("Saving palettes..."), int(m_items.size()));
    for (const Item& item : m_items) {
        QString error;
        if (!savePaletteFile(item.path, item.colors, &error)) {
            errors.append(error);
        }
        if (!progress.step()) {
            break;
        }
    }
    tellFailures(title(), errors);
}

}  // namespace Zorv
