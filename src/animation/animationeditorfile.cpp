#include "animation/animationeditor_p.h"
#include "code/codedoc/animations.h"
#include "core/dialogs/dialogs.h"

#include <QDir>
#include <QFileInfo>

namespace Zorv {

namespace {

const QLatin1String GifPath("gif_path");
const QLatin1String GifSuffix(".gif");
constexpr int MostLines = 20;  // shown in a question

/// Shows the lines that `optimize()` would remove or change, and asks.
bool mayOptimize(const QStringList& lines)
{
    QString text = AnimationEditor::tr("These lines change nothing in the game:") +
                   QLatin1String("\n\n") + lines.mid(0, MostLines).join(QLatin1Char('\n'));
    if (lines.size() > MostLines) {
        text += QLatin1Char('\n') +
                AnimationEditor::tr("and %n more", nullptr, lines.size() - MostLines);
    }
    text += QLatin1String("\n\n") + AnimationEditor::tr("Remove them?");
    return Dialogs::instance()->question(AnimationEditor::tr("Optimize"), text,
                                         Dialogs::Yes | Dialogs::No, Dialogs::Yes) == Dialogs::Yes;
}

QString gifFolder(const CodeDocument* document)
{
    const QString folder = document->ProjectFile::option(GifPath).toString();
    return folder.isEmpty()
               ? document->ProjectFile::option(QStringLiteral("project_path")).toString()
               : folder;
}

/// Empty if the user cancelled, or if the document was destroyed while the dialog was open.
QString askGifName(const QPointer<CodeDocument>& document)
{
    QString name =
        getSaveFileName(nullptr, AnimationEditor::tr("Save as animated GIF"), gifFolder(document),
                        AnimationEditor::tr("Graphics Interchange Format (*.gif)"));
    if (!document) {
        return {};
    }
    if (!name.isEmpty()) {
        const bool hasSuffix = name.endsWith(GifSuffix, Qt::CaseInsensitive);
        name += hasSuffix ? QString() : QString(GifSuffix);
        document->ProjectFile::setOption(GifPath, QFileInfo(name).absolutePath(), true, true);
    }
    return name;
}

}  // namespace

void AnimationEditorPrivate::editAnimCode()
{
    activatePanel();
    commitFields();
    stop();
    refreshIfStale();
    codeWindow.open(currentAnimation());
}

void AnimationEditorPrivate::optimize()
{
    activatePanel();
    commitFields();
    stop();
    if (!animations || !animations->document()) {
        return;
    }
    QStringList lines;
    int count = animations->optimize(true, &lines);
    const bool hasWork = count > 0 || !lines.isEmpty();
    if (hasWork && !mayOptimize(lines)) {
        return;
    }
    if (hasWork && animations) {
        const Guard guard(&updating);
        count = animations->optimize();
    }
    editor->animationCodeChanged(true, false);
    Dialogs::instance()->information(
        AnimationEditor::tr("Optimize done!"),
        AnimationEditor::tr("Code clean, and %1 line(s) were removed in the optimization!")
            .arg(count));
}

/// While the dialog is open, another document can become current.
void AnimationEditorPrivate::saveGIF()
{
    commitFields();
    stop();
    activatePanel();
    if (!currentAnimation()) {
        return;
    }
    const QString title = AnimationEditor::tr("Save as animated GIF");
    if (!currentFrame()) {
        Dialogs::instance()->warning(
            title, AnimationEditor::tr("You can't save an empty animation as GIF."));
        return;
    }
    const QString name = askGifName(editor->document());
    QString error;
    if (!name.isEmpty() && currentFrame() && !editor->saveAnimationGIF(name, &error)) {
        Dialogs::instance()->error(
            title,
            error.isEmpty()
                ? AnimationEditor::tr("'%1' cannot be written.").arg(QDir::toNativeSeparators(name))
                : error);
    }
}

}  // namespace Zorv
