#include "cache/sprites.h"
#include "core/dialogs/dialogs.h"
#include "core/dialogs/failures_p.h"
#include "core/interface.h"
#include "core/project.h"
#include "editors/import/importreport_p.h"
#include "image/dialogs/sprimport.h"
#include "image/spriteeditor_p.h"
#include "image/spriteimport_p.h"
#include "text/zorvtranslator.h"

namespace Zorv {

namespace {

constexpr unsigned ImportText = 129;

QString reportOf(const SpriteImportResult& result)
{
    QStringList lines;
    lines += result.count() > 0
                 ? SpriteEditor::tr("%n sprite(s) were imported!", nullptr, result.count())
                 : SpriteEditor::tr("No sprite imported!");
    lines += importLines({result.replaced, result.skipped, result.refused});
    if (result.palettes > 0) {
        lines += SpriteEditor::tr("%n palette(s) were added.", nullptr, result.palettes);
    }
    if (!result.errors.isEmpty()) {
        lines += shortList(result.errors);
    }
    return lines.join(QLatin1Char('\n'));
}

}  // namespace

void SpriteEditorPrivate::projImport()
{
    const QPointer<Sprites> to = inFront();
    if (!to || !ImportDlg::hasSource(host)) {
        return;
    }
    SprImport dialog(host, to);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const ImportDlg::Info choice = dialog.getInfo();
    if (!isAccepted || !choice.source || !to || to != inFront()) {
        return;
    }
    const QString title =
        SpriteEditor::tr("Import sprites from project '%1'").arg(choice.source->title());
    // Ask first: work on a sprite that is replaced would go into the new one with the next save.
    const bool isReplaced =
        to == sprites && SpriteImport(to, choice.entries, choice.conflicts).replaces(row);
    if (isReplaced && (!mayLeave() || !to || to != sprites)) {
        return;
    }
    const int first = int(to->count());
    SpriteImportResult result;
    {
        const QScopedValueRollback<int> guard(selGuard, isReplaced ? selGuard + 1 : selGuard);
        result = SpriteImport(to, choice.entries, choice.conflicts).run(title);
    }
    if (isReplaced && to && to == sprites) {
        show(row);
    }
    if (to && (to == sprites || to == waiting) && int(to->count()) > first) {
        host->activateEditor(editor);
        editor->showSprite(to, first);
    }
    if (!result.isGivenUp) {
        QString name = ZorvTranslator::instance()->trText(ImportText);
        name.remove(QLatin1String("..."));
        Dialogs::instance()->information(name, reportOf(result));
    }
}

}  // namespace Zorv
