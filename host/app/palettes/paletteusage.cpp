#include "app/palettes/paletteusage.h"

#include "app/palettes/familypaletteeditor.h"
#include "family/assets/palettelist.h"
#include "family/assets/spritecollection.h"
#include "operations/media/spriteedits.h"

#include <zorv/cache/paletteuses.h>
#include <zorv/core/interface.h>
#include <zorv/editors/framework/ownwidgetcontrol.h>
#include <zorv/editors/palette/palettewidget.h>

#include <QLabel>

#include <algorithm>

// Two caches, each empty until needed: the number of sprites per palette, which is cheap, and the
// use of each slot, which is counted on request. Any change of the collection or its palettes
// clears both. The line is then updated on the next turn of the event loop, because the panel may
// still show a palette that is being replaced.

namespace App {

using Family::SpriteCollection;
using Operations::PaletteUses;

namespace {

const char* const areas[] = {"sprites", "animations", nullptr};

}  // namespace

PaletteUsage::PaletteUsage(FamilyPaletteEditor* editor, QObject* parent)
    : QObject(parent), m_editor(editor), m_label(new QLabel)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(0);
    connect(&m_soon, &QTimer::timeout, this, &PaletteUsage::showLine);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    Zorv::OwnWidgetControl control(m_label);
    control.setAreas(areas);
    Zorv::Interface::instance()->addControl(QStringLiteral("pal_line"), control);
    Zorv::PaletteWidget* view = editor->view();
    view->setSlotNotes([this](int slot) { return noteOf(slot); });
    connect(view, &Zorv::PaletteWidget::selectionChanged, this, &PaletteUsage::showLine);
    connect(editor, &Zorv::PaletteEditor::currentPaletteChanged, this, &PaletteUsage::showLine);
}

PaletteUsage::~PaletteUsage()
{
    if (Zorv::PaletteWidget* view = m_editor->view()) {
        view->setSlotNotes({});
    }
    delete m_label;
}

QStringList PaletteUsage::count()
{
    follow();
    const QPointer<SpriteCollection> sprites = m_sprites;
    if (!sprites) {
        return {};
    }
    m_count.reset();
    const QPointer<PaletteUsage> alive(this);
    sprites->beginChange({});  // keeps the file from being reloaded meanwhile
    const Operations::PaletteUseCount counted = Operations::countUses(*sprites);
    if (!sprites) {
        return {};
    }
    sprites->endChange();
    if (!alive || sprites != m_sprites || counted.isCanceled) {
        return {};
    }
    m_count = counted;
    showLine();
    return Operations::brokenSprites(*sprites, counted.broken);
}

/// Follows the collection in the panel, which can change.
void PaletteUsage::follow()
{
    SpriteCollection* now = m_editor->sprites();
    if (now == m_sprites) {
        return;
    }
    if (m_sprites) {
        m_sprites->disconnect(this);
        m_sprites->palettes()->disconnect(this);
    }
    m_sprites = now;
    forget();
    if (now) {
        // While a file is reloaded, its palettes change before the panel is notified.
        const auto changed = [this] {
            forget();
            m_soon.start();
        };
        connect(now, &Zorv::Sprites::changed, this, changed);
        connect(now, &QAbstractItemModel::modelReset, this, changed);
        connect(now->palettes(), &Zorv::Palettes::palChanged, this, changed);
        connect(now->palettes(), &QAbstractItemModel::modelReset, this, changed);
    }
}

void PaletteUsage::forget()
{
    m_rows.reset();
    m_count.reset();
}

/// Null while no count exists.
const PaletteUses* PaletteUsage::current() const
{
    const Zorv::Palette* palette = m_editor->currentPalette();
    const int row = palette && m_count ? int(palette->index()) : -1;
    return row >= 0 && row < m_count->palettes.size() && m_sprites == m_editor->sprites()
               ? &m_count->palettes[row]
               : nullptr;
}

QString PaletteUsage::noteOf(int slot) const
{
    const PaletteUses* uses = current();
    if (!uses) {
        return {};
    }
    const PaletteUses::Entry& entry = uses->entries[size_t(slot)];
    return tr("%n sprite(s), pixels: %1", nullptr, entry.sprites).arg(entry.pixels);
}

QString PaletteUsage::selectedNote(const PaletteUses& uses) const
{
    const bool* selection = m_editor->view()->selection;
    const int count = int(std::count(selection, selection + 256, true));
    if (count == 1) {
        const int slot = m_editor->view()->firstSelection();
        return tr("Slot %1: %2").arg(QString::number(slot), noteOf(slot));
    }
    if (count == 0) {
        const auto used = std::count_if(uses.entries.begin(), uses.entries.end(),
                                        [](const auto& each) { return each.pixels > 0; });
        return tr("%n slot(s) are used.", nullptr, int(used));
    }
    qint64 pixels = 0;
    for (size_t i = 0; i < uses.entries.size(); ++i) {
        pixels += selection[i] ? uses.entries[i].pixels : 0;
    }
    return tr("%n selected slot(s), pixels: %1", nullptr, count).arg(pixels);
}

QString PaletteUsage::line()
{
    const Zorv::Palette* palette = m_editor->currentPalette();
    if (!palette || !m_sprites || !m_editor->view()) {
        return {};
    }
    if (!m_rows) {
        m_rows = Zorv::paletteUses(*m_sprites->palettes());
    }
    QString text =
        tr("%n sprite(s) have palette %1.", nullptr, m_rows->value(int(palette->index())))
            .arg(palette->property(QStringLiteral("Identifier")).toString());
    if (const PaletteUses* uses = current()) {
        text += QLatin1Char('\n') + selectedNote(*uses);
    }
    return text;
}

void PaletteUsage::showLine()
{
    follow();
    if (m_label) {
        m_label->setText(line());
    }
}

}  // namespace App
