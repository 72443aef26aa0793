#include "editors/code/codeworkspace.h"

#include "code/codedoc/codedocument.h"
#include "core/dialogs/dialogs.h"
#include "core/enginemodel.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codefont.h"
#include "editors/code/codeformatting.h"
#include "editors/code/codeworkspace_p.h"
#include "editors/code/encdlg.h"
#include "editors/code/pickbox_p.h"
#include "editors/snipman/snippetmanager.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QFileInfo>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QScrollBar>
#include <QTabBar>
#include <QToolBar>
#include <QWheelEvent>

namespace Zorv {

namespace {

constexpr QSize IconSize(16, 16);
constexpr int TabWidth = 4;  // in spaces
constexpr int EncodingField = 2;
constexpr unsigned SnippetsText = 10;
constexpr double ZoomStep = 2;  // points
constexpr double SmallestFont = 6;
constexpr double LargestFont = 96;

QFont fontOf(const Interface* host)
{
    return codeFont(host->option(QStringLiteral("font_name")).toString(),
                    host->option(QStringLiteral("font_size")).toInt());
}

}  // namespace

void CodeWorkspacePrivate::savePlace(CodeDocument* left) const
{
    left->setObjectName(QStringLiteral("0,0,%1").arg(editor->verticalScrollBar()->value()));
}

void CodeWorkspacePrivate::restorePlace(const CodeDocument* shown)
{
    const QStringList place = shown->objectName().split(QLatin1Char(','));
    editor->setCurrentLine(CodeEditor::LinePos{place.value(0).toInt(), place.value(1).toInt(),
                                               place.value(2).toInt()});
}

void CodeWorkspacePrivate::applySettings()
{
    toolBar->setIconSize(IconSize);
    editor->setSyntaxFormatting(formattingOf(host));
    setFont(fontOf(host));
    if (isActive) {
        applyBar();
    }
}

void CodeWorkspacePrivate::applyBar()
{
    const bool isShown = host->option(QStringLiteral("show_code_bar")).toBool();
    toolBar->setVisible(isShown);
    if (barAction) {
        barAction->setChecked(isShown);
    }
}

void CodeWorkspacePrivate::setEnabled(bool enabled)
{
    isActive = enabled;
    widget->setEnabled(enabled);
    if (barAction) {
        barAction->setEnabled(enabled);
    }
}

/// Setting the same font again would lay out the whole text again.
void CodeWorkspacePrivate::setFont(const QFont& font)
{
    if (editor->font() != font) {
        editor->setFont(font);
    }
    if (document() && document()->defaultFont() != editor->font()) {
        document()->setDefaultFont(editor->font());
    }
    const double tabStop =
        TabWidth * QFontMetricsF(editor->font()).horizontalAdvance(QLatin1Char(' '));
    if (!qFuzzyCompare(editor->tabStopDistance(), tabStop)) {
        editor->setTabStopDistance(tabStop);
    }
    // The edges of the ranges depend on character positions.
    editor->updateBlockHighlight();
}

void CodeWorkspacePrivate::changeFontSize(double points)
{
    QFont font = editor->font();
    const double size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    font.setPointSizeF(qBound(qMin(SmallestFont, size), size + points, qMax(LargestFont, size)));
    setFont(font);
}

bool CodeWorkspacePrivate::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel ||
        static_cast<QWheelEvent*>(event)->modifiers() != Qt::ControlModifier) {
        return QObject::eventFilter(watched, event);
    }
    m_wheel += static_cast<QWheelEvent*>(event)->angleDelta().y();
    const int steps = m_wheel / QWheelEvent::DefaultDeltasPerStep;
    m_wheel %= QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0) {
        changeFontSize(steps * ZoomStep);
    }
    return true;
}

void CodeWorkspacePrivate::tellDocument()
{
    editor->setAccessibleName(document() ? CodeWorkspace::tr("Text of %1").arg(document()->title())
                                         : CodeWorkspace::tr("Text"));
    updateEncoding();
}

void CodeWorkspacePrivate::updateEncoding()
{
    if (document()) {
        host->showStatus(EncodingField,
                         CodeWorkspace::tr("Encoding: %1").arg(document()->codecName()));
    }
}

void CodeWorkspacePrivate::retranslate()
{
    tabBar->setAccessibleName(CodeWorkspace::tr("Open texts"));
    toolBar->setAccessibleName(ZorvTranslator::instance()->trText(1));
    const QString names[] = {ZorvTranslator::instance()->trText(SnippetsText),
                             CodeWorkspace::tr("Problems of this text")};
    PickBox* const boxes[] = {snippets, messages};
    for (int i = 0; i < 2; ++i) {
        boxes[i]->setAccessibleName(names[i]);
        boxes[i]->setToolTip(names[i]);
    }
    SnippetManager::instance()->retranslate();
    tellDocument();
}

CodeWorkspace::CodeWorkspace(QObject* parent)
    : Workspace(parent), d(std::make_unique<CodeWorkspacePrivate>(this))
{
    reconfig();
    retranslate();
}

CodeWorkspace::~CodeWorkspace() = default;

QString CodeWorkspace::name() const
{
    return QStringLiteral("code");
}

QWidget* CodeWorkspace::widget() const
{
    return d->widget;
}

void CodeWorkspace::engineSwitched(bool isNew)
{
    const EngineModel* engine = isNew ? d->host->engineModel() : nullptr;
    if (!engine) {
        return;
    }
    d->editor->completerFromFile(engine->dataPath() + QLatin1String("/completer.xml"));
    SnippetManager::instance()->update(engine->dataPath() + QLatin1String("/snippets"));
    if (!d->editor->completerError().isEmpty()) {
        Dialogs::instance()->warning(tr("Words to complete"), d->editor->completerError());
    }
}

void CodeWorkspace::activate()
{
    d->tabBar->setVisible(d->tabBar->count() > 0);
    d->applyBar();
    d->setEnabled(true);
}

void CodeWorkspace::deactivate()
{
    d->setEnabled(false);
}

void CodeWorkspace::reconfig()
{
    d->applySettings();
}

void CodeWorkspace::retranslate()
{
    d->retranslate();
}

void CodeWorkspace::statusClicked()
{
    const QPointer<CodeDocument> target = d->document();
    if (!target) {
        return;
    }
    const QPointer<EncDlg> dialog = new EncDlg(d->host->mainWindow(), target->codecId());
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    const int codec = dialog ? dialog->index() : -1;
    delete dialog;
    if (!isAccepted || codec < 0 || !target) {
        return;
    }
    target->setCodecId(codec);
    if (QFileInfo::exists(target->fileName())) {
        const auto answer = Dialogs::instance()->question(
            tr("Reload"), tr("Do you want to reload the file using the specified encoding?"),
            Dialogs::Yes | Dialogs::No, Dialogs::Yes);
        if (answer == Dialogs::Yes && target) {
            target->reload();
        }
    }
    d->updateEncoding();
}

void CodeWorkspace::zoomActual()
{
    d->setFont(fontOf(d->host));
}

void CodeWorkspace::zoomIn()
{
    d->changeFontSize(ZoomStep);
}

void CodeWorkspace::zoomOut()
{
    d->changeFontSize(-ZoomStep);
}

void CodeWorkspace::setDocument(CodeDocument* document)
{
    emit documentLeaves();
    d->showMessages(document);
    if (CodeDocument* left = d->document()) {
        d->savePlace(left);
    }
    d->editor->setDocument(document);
    if (document) {
        d->setFont(d->editor->font());
        d->restorePlace(document);
        d->editor->setFocus();
    }
    d->tellDocument();
    emit documentShown();
}

CodeEditor* CodeWorkspace::editor() const
{
    return d->editor;
}

QTabBar* CodeWorkspace::tabBar() const
{
    return d->tabBar;
}

QToolBar* CodeWorkspace::toolBar() const
{
    return d->toolBar;
}

bool CodeWorkspace::isActive() const
{
    return d->isActive;
}

void CodeWorkspace::goToLine()
{
    d->goToLine();
}

void CodeWorkspace::nextError()
{
    d->nextError();
}

void CodeWorkspace::prevError()
{
    d->prevError();
}

void CodeWorkspace::nextDepr()
{
    d->nextDepr();
}

void CodeWorkspace::prevDepr()
{
    d->prevDepr();
}

void CodeWorkspace::comment()
{
    d->comment();
}

void CodeWorkspace::foldAll()
{
    d->foldAll();
}

void CodeWorkspace::unfoldAll()
{
    d->unfoldAll();
}

void CodeWorkspace::insertSnippet(int row)
{
    d->snipActivated(row);
}

}  // namespace Zorv
