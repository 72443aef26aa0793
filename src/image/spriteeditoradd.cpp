#include "cache/palette.h"
#include "cache/palettes.h"
#include "cache/sprite.h"
#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/dialogs/itemsdialog.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/palette/paldlg.h"
#include "image/canvas/imagecanvas.h"
#include "image/imagefilelists_p.h"
#include "image/spriteadding_p.h"
#include "image/spriteeditor_p.h"
#include "image/spritesave_p.h"
#include "media/tools/cropimage.h"
#include "text/zorvtranslator.h"

#include <QDropEvent>
#include <QFileInfo>

#include <algorithm>

namespace Zorv {

namespace {

constexpr unsigned SaveText = 126;
constexpr unsigned LeftOutTitle = 2;
constexpr int ColorCount = 256;

/// Missing entries of the image count as opaque black. The alpha of entry 0 is ignored, because
/// file formats treat it differently.
bool hasColorsOf(const QImage& image, const Palette* palette, QVector<QRgb>* table)
{
    RGBA entries[ColorCount];
    std::fill(std::begin(entries), std::end(entries), RGBA{0, 0, 0, 255});
    palette->toPalette(entries);
    const QVector<QRgb> colors = image.colorTable();
    for (int i = 0; i < ColorCount; ++i) {
        const RGBA& entry = entries[i];
        table->append(qRgba(entry.r, entry.g, entry.b, entry.a));
        const QRgb color = colors.value(i, qRgb(0, 0, 0));
        const QRgb differing = color ^ table->last();
        if ((i > 0 ? differing : differing & RGB_MASK) != 0) {
            return false;
        }
    }
    return true;
}

Dialogs::Button ask(const QString& title, const QString& text, Dialogs::Buttons buttons)
{
    return Dialogs::instance()->question(title, text, buttons, Dialogs::No);
}

}  // namespace

void SpriteEditorPrivate::add()
{
    const QPointer<Sprites> into = inFront();
    if (!into) {
        return;
    }
    const QStringList files = getOpenFileNames(nullptr, SpriteEditor::tr("Add sprites"),
                                               imageFolder(into->project()), imageFilter());
    if (files.isEmpty() || !into || into != inFront()) {
        return;
    }
    keepImageFolder(into->project(), QFileInfo(files.first()).absolutePath());
    addFiles(into, files);
}

void SpriteEditorPrivate::addFiles(const QPointer<Sprites>& into, const QStringList& files)
{
    if (files.isEmpty() || !into) {
        return;
    }
    const unsigned count = into->count();
    if (editor->takeFiles(into, files)) {
        showAdded(into, count);
        return;
    }
    const Dialogs::Button answer =
        ask(SpriteEditor::tr("Add sprites"),
            SpriteEditor::tr("Do you want to crop %n image(s)?", nullptr, files.size()),
            Dialogs::Yes | Dialogs::No | Dialogs::Cancel);
    if (answer != Dialogs::Cancel && into && (into == sprites || into == waiting)) {
        addCropped(into, files, answer == Dialogs::Yes);
    }
}

void SpriteEditorPrivate::addCropped(const QPointer<Sprites>& into, const QStringList& files,
                                     bool isCropped)
{
    const unsigned count = into->count();
    QList<QVariant> identifiers;
    editor->newIdentifiers(*into, files, &identifiers);
    SpriteAdding adding(into, files, identifiers);
    adding.run(isCropped);
    showAdded(into, count);
    if (!adding.errors().isEmpty()) {
        Dialogs::instance()->warning(host->text(LeftOutTitle), shortList(adding.errors()));
    }
}

/// Shows the last sprite, if any were added.
void SpriteEditorPrivate::showAdded(const QPointer<Sprites>& into, unsigned before)
{
    if (into && (into == sprites || into == waiting) && into->count() > before) {
        host->activateEditor(editor);
        editor->showSprite(into, into ? int(into->count()) - 1 : -1);
    }
}

void SpriteEditorPrivate::openImg()
{
    if (!sprite()) {
        return;
    }
    const std::function<bool()> isThere = stillThere();
    const QString title = SpriteEditor::tr("Change image");
    const QString file =
        getOpenFileName(nullptr, title, imageFolder(sprites->project()), imageFilter());
    if (file.isEmpty() || !isThere()) {
        return;
    }
    keepImageFolder(sprites->project(), QFileInfo(file).absolutePath());
    ImageRead read = loadNonCroppedImage(file);
    if (read.image.isNull()) {
        Dialogs::instance()->warning(host->text(LeftOutTitle), read.error);
        return;
    }
    if (ask(title, SpriteEditor::tr("Do you want to crop the image?"),
            Dialogs::Yes | Dialogs::No) == Dialogs::Yes) {
        cropImage(read.image, &read.corner, 0);
    }
    if (isThere()) {
        setSpriteImage(read.image, read.corner);
    }
}

/// Asks what to do with colours that differ from the sprite's palette. A true-colour image has no
/// palette, so there is no question.
void SpriteEditorPrivate::setSpriteImage(QImage image, const QPoint& corner)
{
    Sprite* now = sprite();
    if (!now) {
        return;
    }
    const Palette* palette = now->palette();
    QVector<QRgb> table;
    const bool isIndexed = image.format() == QImage::Format_Indexed8;
    const bool isSame = isIndexed && palette && hasColorsOf(image, palette, &table);
    if (!isIndexed || isSame) {
        if (isSame) {
            image.setColorTable(table);
        }
        if (mayReplace()) {
            storeImage(image, corner, [&] { sprite()->setImage(image); });
        }
        return;
    }
    const std::function<bool()> isThere = stillThere();
    PalDlg dialog(host->mainWindow(), sprites->palettes(), palette ? int(palette->index()) : -1);
    // After a reset of the list the chosen row would mean another palette.
    connect(sprites->palettes(), &QAbstractItemModel::modelReset, &dialog, &QDialog::reject);
    if (dialog.exec() != QDialog::Accepted || !isThere()) {
        return;
    }
    const PalDlg::Info info = dialog.getInfo();
    const QPersistentModelIndex chosen = sprites->palettes()->index(info.row, 0);
    if (mayReplace() && (chosen.isValid() || info.mode == Sprite::ImagePalette)) {
        storeImage(image, corner, [&] {
            sprite()->setImage(image, info.isReversed, info.mode,
                               sprites->palettes()->palette(chosen.row()));
        });
    }
}

/// Asks about unsaved work last, when nothing else can be cancelled any more.
bool SpriteEditorPrivate::mayReplace()
{
    const std::function<bool()> isThere = stillThere();
    return mayLeave() && isThere();
}

/// Keeps the axis at its place in the picture if that was cropped. One undo step.
bool SpriteEditorPrivate::storeImage(const QImage& image, const QPoint& corner,
                                     const std::function<void()>& store)
{
    {
        const QScopedValueRollback<int> guard(selGuard, selGuard + 1);
        const QPoint axis = sprite()->axis() - corner;
        sprites->beginChange(SpriteEditor::tr("Change image"));
        store();
        if (!corner.isNull() && sprite()->size() == image.size()) {
            sprite()->setProperty(QStringLiteral("Axis"), axis);
        }
        sprites->endChange();
    }
    const bool isStored = sprite() && sprite()->size() == image.size();
    show(row);
    if (!isStored) {
        tellRefusal(SpriteEditor::tr("The picture could not be saved into the sprite. It is too "
                                     "large for a sprite, or memory is short."));
    }
    return isStored;
}

/// If the sprite on the canvas is among the chosen ones, the canvas is saved first.
void SpriteEditorPrivate::saveImgAs()
{
    if (!sprite()) {
        return;
    }
    QString title = ZorvTranslator::instance()->trText(SaveText);
    title.remove(QLatin1String("..."));
    const QPointer<Sprites> before = sprites;
    QVector<int> rows{row};
    if (before->count() > 1) {
        const std::unique_ptr<ItemsDialog> dialog(
            host->itemsDialog(host->mainWindow(), title, before, row));
        const auto closing = connect(before, &Sprites::closing, dialog.get(), [&dialog] {
            dialog->release();
            dialog->reject();
        });
        const bool isAccepted = dialog->exec() == QDialog::Accepted;
        disconnect(closing);
        rows = isAccepted ? dialog->selected().toVector() : QVector<int>();
        if (before) {
            dialog->release();
        }
    }
    if (rows.isEmpty() || !before || before != sprites) {
        return;
    }
    if (rows.contains(row)) {
        saveImg();
        if (isChanged()) {
            return;
        }
    }
    SpriteSave(before, rows, before->project(), {title, SpriteSave::LikeOneFile}).run();
}

bool SpriteEditor::takeFiles(Sprites*, const QStringList&)
{
    return false;
}

void SpriteEditor::newIdentifiers(const Sprites&, const QStringList&, QList<QVariant>*) {}

void SpriteEditor::addFiles(const QStringList& files)
{
    d->addFiles(d->inFront(), files);
}

void SpriteEditor::takeDropsOn(QWidget* widget)
{
    widget->setAcceptDrops(true);
    widget->installEventFilter(d.get());
}

/// The program that drags waits until the drop is over, so questions are asked only afterwards.
/// Files dropped on the canvas go to its file; files dropped on lists go to the project in front.
bool SpriteEditorPrivate::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter) {
        return QObject::eventFilter(watched, event);
    }
    auto* drop = static_cast<QDropEvent*>(event);
    const bool isCanvas = watched == workspace->widget();
    const QPointer<Sprites> into = isWaiting && !isCanvas ? waiting : sprites;
    const QStringList files = into ? draggedImages(drop->mimeData()) : QStringList();
    if (files.isEmpty()) {
        return QObject::eventFilter(watched, event);
    }
    drop->setDropAction(Qt::CopyAction);
    drop->accept();
    if (isDrop) {
        QMetaObject::invokeMethod(
            this, [this, into, files] { addFiles(into, files); }, Qt::QueuedConnection);
    }
    return true;
}

}  // namespace Zorv
