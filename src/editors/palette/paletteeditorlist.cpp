#include "cache/palettes.h"
#include "cache/paletteuses.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/dialogs/itemsdialog.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/palette/paletteeditor_p.h"
#include "editors/palette/palettesave_p.h"
#include "media/fileextensiontype.h"
#include "media/palettefile.h"
#include "media/paletteobject.h"
#include "text/zorvtranslator.h"

#include <algorithm>
#include <array>
#include <memory>
#include <numeric>
#include <vector>

namespace Zorv {

namespace {

enum TextId : unsigned {
    AllFormatsText = 7,  // text of the host
    ClearText = 28,
    DuplicatesText = 32,
    ApplyText = 40,
    OpenText = 43,
};

using Colors = std::array<RGBA, 256>;

/// One undo step, open while this object lives.
class Step
{
public:
    Step(Palettes* palettes, const QString& title) : m_palettes(palettes)
    {
        m_palettes->beginUpdate(title);
    }
    ~Step()
    {
        if (m_palettes) {
            m_palettes->endUpdate();
        }
    }

private:
    Q_DISABLE_COPY(Step)
    QPointer<Palettes> m_palettes;
};

QString textOf(unsigned id)
{
    return ZorvTranslator::instance()->trText(id);
}

QString filterOf(const Interface* host)
{
    return host->text(AllFormatsText) +
           QLatin1String(fileExtension(FileExtensionType::AllPalettes)) +
           QLatin1String(fileExtension(FileExtensionType::Palettes));
}

Colors colorsOf(const Palette* palette)
{
    RGBA colors[256];
    std::fill(std::begin(colors), std::end(colors), RGBA{0, 0, 0, 255});
    palette->toPalette(colors);
    Colors result;
    std::copy(std::begin(colors), std::end(colors), result.begin());
    return result;
}

/// The number of sprites whose palette repeats the colours of an earlier one.
int countOfRepeats(const Palettes& palettes)
{
    const QVector<int> uses = paletteUses(palettes);
    std::vector<Colors> before;
    int count = 0;
    for (int row = 0; row < uses.size(); ++row) {
        const Colors colors = colorsOf(palettes.palette(row));
        const bool isRepeat = std::find(before.begin(), before.end(), colors) != before.end();
        count += isRepeat ? uses[row] : 0;
        if (!isRepeat) {
            before.push_back(colors);
        }
    }
    return count;
}

/// A loaded palette file.
struct Read
{
    QString file;
    RGBA colors[256];
};

std::vector<Read> readFiles(const QStringList& files, QStringList* errors)
{
    std::vector<Read> read;
    for (const QString& file : files) {
        Read next{file, {}};
        QString error;
        if (loadPaletteFile(file, next.colors, &error)) {
            read.push_back(next);
        } else {
            errors->append(error);
        }
    }
    return read;
}

}  // namespace

QString paletteName(const Palette& palette)
{
    return palette.property(QStringLiteral("Identifier")).toString();
}

QString paletteFolder(const Palettes& palettes)
{
    const Sprites* sprites = palettes.sprites();
    const Project* project = sprites ? sprites->project() : nullptr;
    return project ? project->option(QStringLiteral("project_path")).toString() : QString();
}

/// Asks before changing palettes that sprites use. If the answer is yes, the collection
/// still exists.
bool PaletteEditorPrivate::mayChange(unsigned titleId, const QString& text) const
{
    const QPointer<Palettes> before = palettes;
    const Dialogs::Button answer = Dialogs::instance()->question(
        textOf(titleId), text, Dialogs::Yes | Dialogs::No, Dialogs::No);
    return answer == Dialogs::Yes && before && before == palettes;
}

void PaletteEditorPrivate::clear()
{
    if (!bringForward() || !palettes) {
        return;
    }
    const QVector<int> uses = paletteUses(*palettes);
    const int users = std::accumulate(uses.begin(), uses.end(), 0);
    if (users > 0 &&
        !mayChange(ClearText,
                   PaletteEditor::tr("%n sprite(s) use these palettes, and are shown in shades of "
                                     "gray without them. Do you want to remove all palettes?",
                                     nullptr, users))) {
        return;
    }
    {
        const Step step(palettes, textOf(ClearText));
        palettes->clear();
    }
    updateRange();
    editor->remapChanged();
}

/// Does not ask, because no sprite uses the removed palettes.
void PaletteEditorPrivate::clearUnused()
{
    if (bringForward() && palettes) {
        palettes->removeUnused();
        updateRange();
    }
}

void PaletteEditorPrivate::delDupl()
{
    if (!palettes) {
        return;
    }
    const int users = countOfRepeats(*palettes);
    if (users > 0 &&
        !mayChange(DuplicatesText,
                   PaletteEditor::tr("%n sprite(s) use a palette that repeats another one, and "
                                     "take that one. Do you want to remove all duplicates?",
                                     nullptr, users))) {
        return;
    }
    {
        const Step step(palettes, textOf(DuplicatesText));
        palettes->removeDuplicates();
    }
    updateRange();
    definePos(row());
}

void PaletteEditorPrivate::add()
{
    if (!bringForward() || !palettes) {
        return;
    }
    const QPointer<Palettes> before = palettes;
    const Dialogs::Button answer = Dialogs::instance()->question(
        PaletteEditor::tr("Add palette"),
        PaletteEditor::tr("Do you want to load the palettes from files?"),
        Dialogs::Yes | Dialogs::No, Dialogs::Yes);
    if (!before || before != palettes) {
        return;
    }
    const int place = std::min(count(), count() == 0 ? 0 : row() + 1);
    if (answer == Dialogs::Yes) {
        addFiles(place);
    } else {
        addNew(place);
    }
}

/// Without a palette to copy, adds an empty one.
void PaletteEditorPrivate::addNew(int place)
{
    const ShownPalette shown(this);
    enum { Copy, Empty };
    const int choice =
        palette ? Dialogs::instance()->choose(
                      PaletteEditor::tr("Add palette"),
                      PaletteEditor::tr("The colors of the new palette:"),
                      {PaletteEditor::tr("Those of palette %1").arg(paletteName(*palette)),
                       PaletteEditor::tr("None yet: all are transparent")},
                      Copy)
                : Empty;
    if (choice < 0 || !(choice == Copy ? shown.isThere() : shown.isListThere())) {
        return;
    }
    RGBA colors[256] = {};
    if (choice == Copy) {
        const Colors copied = colorsOf(palette);
        std::copy(copied.begin(), copied.end(), colors);
    }
    if (palettes->insert(std::min(place, count()), colors, 0, true)) {
        updateRange();
        definePos(std::min(place, count() - 1));
    }
}

void PaletteEditorPrivate::addFiles(int place)
{
    const QString title = PaletteEditor::tr("Add palettes");
    const ShownPalette shown(this);
    const QStringList files =
        getOpenFileNames(host->mainWindow(), title, paletteFolder(*palettes), filterOf(host));
    if (!shown.isListThere()) {
        return;
    }
    if (files.isEmpty()) {
        definePos(place);
        return;
    }
    QStringList errors;
    std::vector<Read> read = readFiles(files, &errors);
    QStringList names;
    for (const Read& each : read) {
        names.append(each.file);
    }
    QList<QVariant> ids;
    bool isReversed = false;
    if (!names.isEmpty()) {
        editor->paletteIdentifiers(names, &ids, &isReversed);
        if (ids.size() != names.size() || !shown.isListThere()) {
            return;
        }
        std::unique_ptr<Step> step;
        if (names.size() > 1) {
            step = std::make_unique<Step>(palettes, title);
        }
        int next = std::min(place, count());
        for (size_t i = 0; i < read.size(); ++i) {
            if (isReversed) {
                PaletteObject(read[i].colors).switchColors(nullptr, true);
            }
            if (palettes->insert(next, read[i].colors, ids.at(int(i)), false)) {
                ++next;
            } else {
                errors.append(
                    PaletteEditor::tr("The palette of '%1' could not be added.").arg(read[i].file));
            }
        }
        step.reset();
        updateRange();
        definePos(std::max(next - 1, 0));
    }
    tellFailures(title, errors);
}

void PaletteEditorPrivate::del()
{
    if (!bringForward() || !hasRow()) {
        return;
    }
    const ShownPalette shown(this);
    const int place = row();
    if (host->option(QStringLiteral("confirm_delete")).toBool() &&
        Dialogs::instance()->question(
            PaletteEditor::tr("Delete palette"),
            PaletteEditor::tr("Do you really want to delete the palette?"),
            Dialogs::Yes | Dialogs::No, Dialogs::Yes) != Dialogs::Yes) {
        return;
    }
    if (!shown.isThere()) {
        return;
    }
    palettes->remove(place);
    updateRange();
    if (place < count()) {
        definePos(place);
    }
}

void PaletteEditorPrivate::open()
{
    if (!bringForward() || !palette) {
        return;
    }
    const ShownPalette shown(this);
    const QString file = getOpenFileName(host->mainWindow(), textOf(OpenText),
                                         paletteFolder(*palettes), filterOf(host));
    if (file.isEmpty()) {
        return;
    }
    RGBA colors[256];
    QString error;
    if (!loadPaletteFile(file, colors, &error)) {
        tellFailures(textOf(OpenText), {error});
    } else if (shown.isThere()) {
        palette->setColors(colors, Palette::KeepPixels);
        selPosChanged(row());
    }
}

void PaletteEditorPrivate::save()
{
    if (palette) {
        PaletteSave(palettes, row()).run();
    }
}

void PaletteEditorPrivate::setSprPal()
{
    if (!bringForward() || !palette || !sprites) {
        return;
    }
    const ShownPalette shown(this);
    const QPointer<Sprites> from = sprites;
    const QString title = textOf(ApplyText);
    const std::unique_ptr<ItemsDialog> dialog(
        host->itemsDialog(host->mainWindow(), title, from, from->currentIndex));
    connect(from, &Sprites::closing, dialog.get(), [&dialog] {
        dialog->release();
        dialog->reject();
    });
    const bool isChosen = dialog->exec() == QDialog::Accepted && dialog->hasSelection();
    if (!isChosen || !from || !shown.isThere()) {
        return;
    }
    const QList<int> rows = dialog->selected();
    {
        const Step step(palettes, title);
        for (const int each : rows) {
            if (Sprite* sprite = from->sprite(each)) {
                sprite->setPalette(palette);
            }
        }
    }
    editor->remapChanged();
}

}  // namespace Zorv
