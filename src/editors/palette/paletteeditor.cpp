#include "editors/palette/paletteeditor.h"

#include "animation/animationeditor.h"
#include "cache/palettes.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/framework/editor.h"
#include "editors/palette/paletteeditor_p.h"
#include "editors/palette/remapdlg.h"
#include "media/paletteobject.h"
#include "text/zorvtranslator.h"

#include <QAbstractItemModel>
#include <QSlider>

#include <algorithm>

// The grid, the slider and the collection each signal changes, which may come from one of the
// others. `inhibit` is above 0 while the editor itself changes one of them, as a guard against
// loops.

namespace Zorv {

namespace {

constexpr unsigned PanelText = 27;
constexpr RGBA Black{0, 0, 0, 255};

Editor* editorOf(const Interface* host, const char* area, const char* name)
{
    Editor* found = host->editorByName(area);
    return found ? found : host->editorByName(name);
}

}  // namespace

PaletteEditorPrivate::PaletteEditorPrivate(PaletteEditor* owner)
    : editor(owner), host(Interface::instance()), view(new PaletteWidget),
      remapDlg(new RemapDlg(host->mainWindow()))
{
    view->setMovable(false);
    connect(this, &PaletteEditorPrivate::enabled, editor, &PaletteEditor::enabled);
    connect(view, &PaletteWidget::changed, this, &PaletteEditorPrivate::changed);
    connect(view, &PaletteWidget::colorMoved, this, &PaletteEditorPrivate::colorMoved);
    connect(view, &PaletteWidget::colorDblClick, this, &PaletteEditorPrivate::colorDblClicked);
    connect(remapDlg, &RemapDlg::changing, this, &PaletteEditorPrivate::beginRemap);
    connect(remapDlg, &RemapDlg::updateView, this, &PaletteEditorPrivate::endRemap);
}

/// The host's window owns the published widgets and may outlive this object.
PaletteEditorPrivate::~PaletteEditorPrivate()
{
    delete view;
    delete remapDlg;
}

int PaletteEditorPrivate::row() const
{
    return palettes ? palettes->currentIndex : -1;
}

int PaletteEditorPrivate::count() const
{
    return palettes ? palettes->count() : 0;
}

bool PaletteEditorPrivate::hasRow() const
{
    return !isOther && row() >= 0 && row() < count();
}

void PaletteEditorPrivate::take(Palettes* now)
{
    if (palettes) {
        palettes->disconnect(this);
    }
    if (sprites) {
        sprites->disconnect(this);
    }
    if (remapModel) {
        remapModel->disconnect(this);
    }
    palettes = now;
    palette = nullptr;
    isOther = isPreview = false;
    sprites = now ? now->sprites() : nullptr;
    remapModel = now ? now->remapModel() : nullptr;
    if (now) {
        connect(now, &Palettes::palChanged, this, &PaletteEditorPrivate::palChanged);
        connect(now, &QObject::destroyed, this, [this] { take(nullptr); });
    }
    if (sprites) {
        connect(sprites, &Sprites::closing, this, [this] { take(nullptr); });
    }
    if (remapModel) {
        connect(remapModel, &QAbstractItemModel::dataChanged, this,
                &PaletteEditorPrivate::remapChanged);
    }
    if (remapDlg) {
        remapDlg->setModel(remapModel);
    }
    host->setMenuEnabled("pal", "sprites", now);
    if (now) {
        updateRange();
    } else {
        showNone();
    }
}

void PaletteEditorPrivate::updateRange()
{
    if (!palettes) {
        return;
    }
    if (isOther) {
        keepOthers();
        return;
    }
    {
        const Inhibit guard(this);
        if (slider) {
            slider->setRange(0, std::max(count() - 1, 0));
        }
        if (row() >= count()) {
            palettes->setCurrent(std::max(count() - 1, 0));
        }
        emit setSelPos(row());
    }
    emit enabled(hasRow());
    selPosChanged(row());
}

/// Keeps showing colours of no palette when the panel is reactivated, or when palettes are added or
/// removed.
void PaletteEditorPrivate::keepOthers()
{
    const Inhibit guard(this);
    palettes->setCurrent(count());
    if (slider) {
        slider->setRange(0, std::max(count() - 1, 0));
    }
    emit enabled(false);
}

void PaletteEditorPrivate::fillGrid(const RGBA (&colors)[256])
{
    if (view) {
        const Inhibit guard(this);
        view->palette()->fromPalette(colors);
        view->flatten();
    }
}

void PaletteEditorPrivate::definePos(int pos)
{
    {
        const Inhibit guard(this);
        emit setSelPos(pos);
    }
    selPosChanged(pos);
}

void PaletteEditorPrivate::showNone()
{
    palette = nullptr;
    isOther = isPreview = false;
    if (view) {
        const Inhibit guard(this);
        emit setPosText(QStringLiteral("0 / 0"));
        view->setMovable(false);
        view->palette()->gradient(nullptr, Black, Black);
        view->flatten();
    }
    if (!palettes) {
        emit enabled(false);
    }
    editor->paletteSelected(nullptr);
    emit editor->currentPaletteChanged();
}

void PaletteEditorPrivate::selPosChanged(int pos)
{
    if (inhibit > 0 || !palettes) {
        return;
    }
    palettes->setCurrent(pos);
    palette = pos < 0 || pos >= count() ? nullptr : palettes->palette(pos);
    if (!palette) {
        showNone();
        return;
    }
    if (isOther) {
        emit enabled(true);
    }
    isOther = isPreview = false;
    {
        const Inhibit guard(this);
        emit setPosText(
            QStringLiteral("%1 / %2").arg(QString::number(pos + 1), QString::number(count())));
        editor->paletteSelected(palette);
        RGBA colors[256];
        std::fill(std::begin(colors), std::end(colors), Black);
        palette->toPalette(colors);
        if (view) {
            view->setMovable(true);
        }
        fillGrid(colors);
    }
    emit editor->currentPaletteChanged();
}

void PaletteEditorPrivate::prevPal()
{
    if (row() > 0) {
        definePos(row() - 1);
    }
}

void PaletteEditorPrivate::nextPal()
{
    if (row() + 1 < count()) {
        definePos(row() + 1);
    }
}

void PaletteEditorPrivate::palChanged(bool structure)
{
    if (structure || isOther) {
        palette = nullptr;
        updateRange();
    } else if (palette && editor->canChangeFieldValue()) {
        definePos(int(palette->index()));
    }
}

/// Bringing the sprite editor forward makes its sprite's palette current. Restore the chosen one:
/// the tool was meant for it. If the canvas keeps work of another file, that file's palettes come
/// up, which are the wrong ones.
bool PaletteEditorPrivate::bringForward()
{
    const QPointer<Palettes> before = palettes;
    const int chosen = hasRow() ? row() : -1;
    editor->switchToSprites();
    if (before != palettes) {
        Dialogs::instance()->warning(
            editor->displayName(),
            PaletteEditor::tr("The canvas has changes that are not saved, of a sprite of another "
                              "project. Save or discard them first."));
        return false;
    }
    if (chosen >= 0 && row() != chosen) {
        definePos(chosen);
    }
    return true;
}

PaletteEditor::PaletteEditor(QObject* parent)
    : ExtraEditor(parent), d(std::make_unique<PaletteEditorPrivate>(this))
{
    d->publish();
    d->take(nullptr);
    d->retranslate();
}

PaletteEditor::~PaletteEditor() = default;

QString PaletteEditor::name() const
{
    return QStringLiteral("pal");
}

QString PaletteEditor::displayName() const
{
    return ZorvTranslator::instance()->trText(PanelText);
}

QWidget* PaletteEditor::widget() const
{
    return d->view;
}

void PaletteEditor::activate()
{
    ExtraEditor::activate();
    d->updateRange();
}

void PaletteEditor::retranslate()
{
    d->retranslate();
}

void PaletteEditor::paletteSelected(Palette*) {}

void PaletteEditor::remapChanged()
{
    Editor* front = d->host->currentEditor();
    if (!front) {
        return;
    }
    if (front == editorOf(d->host, "sprites", "spr")) {
        d->definePos(d->palette ? int(d->palette->index()) : 0);
    } else if (auto* animations = qobject_cast<AnimationEditor*>(front)) {
        animations->update();
    }
}

Palettes* PaletteEditor::palettes() const
{
    return d->palettes;
}

void PaletteEditor::setPalettes(Palettes* palettes)
{
    d->take(palettes);
}

Palette* PaletteEditor::currentPalette() const
{
    return d->palette;
}

void PaletteEditor::setCurrentPalette(Palette* palette)
{
    if (d->palettes) {
        d->definePos(palette ? std::min(int(palette->index()), d->count()) : d->count());
    }
}

void PaletteEditor::setPalette(const RGBA (&colors)[256])
{
    QVariant id;
    const QPointer<Palettes> palettes = d->palettes;
    if (!palettes || !paletteIdentifier(&id) || !palettes || d->palettes != palettes) {
        return;
    }
    Palette* known = palettes->palette(palettes->find(0, id));
    if (known) {
        known->setColors(colors, Palette::KeepPixels);
    } else {
        palettes->addPalette(colors, id, false);
    }
    d->updateRange();
}

void PaletteEditor::showColors(const RGBA (&colors)[256])
{
    if (d->palettes && d->palette) {
        d->definePos(d->count());
    }
    d->fillGrid(colors);
    d->isOther = true;
    emit d->enabled(false);
}

void PaletteEditor::previewColors(const RGBA* colors)
{
    if (!d->palette || (!colors && !d->isPreview)) {
        return;
    }
    if (!colors) {
        d->selPosChanged(d->row());
        return;
    }
    RGBA shown[256];
    std::copy_n(colors, std::size(shown), shown);
    d->isPreview = true;
    if (d->view) {
        d->view->setMovable(false);
    }
    d->fillGrid(shown);
    emit currentPaletteChanged();
}

bool PaletteEditor::isPreviewing() const
{
    return d->isPreview;
}

bool PaletteEditor::canChangeFieldValue() const
{
    return isActive() && d->inhibit == 0 && d->palette && !d->isPreview;
}

void PaletteEditor::switchToSprites()
{
    Editor* sprites = editorOf(d->host, "sprites", "spr");
    if (sprites && sprites != d->host->currentEditor()) {
        d->host->activateEditor(sprites);
    }
}

bool PaletteEditor::bringForward()
{
    return d->bringForward();
}

PaletteWidget* PaletteEditor::view() const
{
    return d->view;
}

ShownPalette::ShownPalette(PaletteEditorPrivate* d)
    : m_d(d), m_palettes(d->palettes), m_palette(d->palette), m_row(d->row()),
      m_identifier(m_palette ? m_palette->property(QStringLiteral("Identifier")) : QVariant())
{
}

bool ShownPalette::isListThere() const
{
    return m_d && m_palettes && m_d->palettes == m_palettes;
}

bool ShownPalette::isThere() const
{
    return isListThere() && m_d->palette && m_d->palette == m_palette && m_d->row() == m_row &&
           m_palette->property(QStringLiteral("Identifier")) == m_identifier;
}

bool ShownPalette::comeBack() const
{
    if (isListThere() && m_palette && m_d->palette != m_palette &&
        m_palettes->palette(m_row) == m_palette) {
        m_d->definePos(m_row);
    }
    return isThere();
}

}  // namespace Zorv
