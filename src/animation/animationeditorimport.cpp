#include "animation/animationeditor_p.h"
#include "animation/import/animationimport.h"
#include "animation/import/animimportdlg.h"
#include "animation/import/assetrequest.h"
#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/import/importreport_p.h"
#include "text/zorvtranslator.h"

#include <algorithm>

namespace Zorv {

/// The user's choice in the import dialog. The project may have been closed since.
struct ImportChoice : ImportDlg::Info
{
    bool bringsSprites;
};

namespace {

constexpr unsigned TitleText = 69;
constexpr int MostLines = 10;  // of sprites listed one by one

QString textOf(SpriteNumber sprite)
{
    return QStringLiteral("%1,%2").arg(QString::number(sprite.group),
                                       QString::number(sprite.number));
}

/// One line for each sprite that got another number or is missing.
QStringList spriteLines(const AssetResult& assets)
{
    QStringList lines;
    QVector<SpriteNumber> renumbered = assets.renumbered.keys().toVector();
    std::sort(renumbered.begin(), renumbered.end(), [](SpriteNumber a, SpriteNumber b) {
        return a.group != b.group ? a.group < b.group : a.number < b.number;
    });
    for (const SpriteNumber sprite : qAsConst(renumbered)) {
        lines.append(AnimationEditor::tr("Sprite %1 is now %2.")
                         .arg(textOf(sprite), textOf(assets.renumbered.value(sprite))));
    }
    for (const SpriteNumber sprite : assets.missing) {
        lines.append(
            AnimationEditor::tr("Sprite %1 is missing in the source.").arg(textOf(sprite)));
    }
    for (const SpriteNumber sprite : assets.broken) {
        lines.append(AnimationEditor::tr("Sprite %1 is broken and was left.").arg(textOf(sprite)));
    }
    const int left = lines.size() - MostLines;
    if (left > 1) {
        lines = lines.mid(0, MostLines)
                << AnimationEditor::tr("And %n more sprite(s).", nullptr, left);
    }
    return lines;
}

QString reportOf(const AnimationImportResult& animations, const AssetResult& assets)
{
    QStringList lines;
    const auto add = [&lines](int count, const QString& text) {
        lines += count > 0 ? QStringList(text) : QStringList();
    };
    add(animations.count(),
        AnimationEditor::tr("%n animation(s) were imported!", nullptr, animations.count()));
    add(int(animations.count() == 0), AnimationEditor::tr("No animation imported!"));
    lines += importLines(
        {animations.replaced.size(), animations.skipped.size(), animations.refused.size()});
    add(assets.added, AnimationEditor::tr("%n sprite(s) were added.", nullptr, assets.added));
    add(assets.shared,
        AnimationEditor::tr("%n sprite(s) were there already.", nullptr, assets.shared));
    add(assets.palettes,
        AnimationEditor::tr("%n palette(s) were added.", nullptr, assets.palettes));
    lines += spriteLines(assets);
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

void AnimationEditorPrivate::projImport()
{
    if (!ImportDlg::hasSource(host)) {
        return;
    }
    commitFields();
    stop();
    activatePanel();
    if (!animations) {
        return;
    }
    AnimImportDlg dialog(host, animations);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const ImportChoice choice{dialog.getInfo(), dialog.bringsSprites()};
    if (isAccepted && choice.source && animations) {
        importEntries(choice);
    }
}

void AnimationEditorPrivate::importEntries(const ImportChoice& choice)
{
    const QString name = choice.source->title();
    const QPointer<Animations> destination = animations;
    AnimationImport import(destination, choice.entries, choice.conflicts);
    AssetResult assets;
    if (choice.bringsSprites && !bringAssets(import.sprites(), choice.source, &assets)) {
        return;
    }
    const AnimationImportResult result = import.insert(
        destination ? destination->currentIndex() : -1,
        AnimationEditor::tr("Import animations from project '%1'").arg(name), assets.renumbered);
    const QString first = (result.added + result.replaced).value(0);
    if (destination && destination == animations && !first.isEmpty()) {
        showAnimation(destination->find(0, first));
        editor->animationCodeChanged(true, false);
    }
    Dialogs::instance()->information(ZorvTranslator::instance()->trText(TitleText),
                                     reportOf(result, assets));
}

/// Leaves out broken sprites only if the user agrees. False if nothing is to be imported.
bool AnimationEditorPrivate::bringAssets(const QVector<SpriteNumber>& wanted,
                                         const QPointer<Project>& source, AssetResult* result)
{
    if (wanted.isEmpty()) {
        return true;
    }
    const QString title = ZorvTranslator::instance()->trText(TitleText);
    AssetRequest request{source, animations->project(), wanted};
    *result = editor->importAssets(request);
    if (!result->error.isEmpty() && !result->broken.isEmpty()) {
        const QString question =
            AnimationEditor::tr("%1\n\nDo you want to import the others?").arg(result->error);
        if (Dialogs::instance()->question(title, question, Dialogs::Yes | Dialogs::No,
                                          Dialogs::No) != Dialogs::Yes ||
            !source || !animations) {
            return false;
        }
        request.leavesBroken = true;
        *result = editor->importAssets(request);
    }
    if (!result->error.isEmpty()) {
        Dialogs::instance()->error(title, result->error);
    }
    return result->error.isEmpty();
}

}  // namespace Zorv
