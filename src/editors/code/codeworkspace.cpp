#include "editors/code/codeworkspace.h"

#include "code/codedoc/codedocument.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace_p.h"

#include <QScrollBar>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace Zorv {

CodeWorkspacePrivate::CodeWorkspacePrivate(CodeWorkspace* workspace)
    : q(workspace), host(Interface::instance()), widget(new QWidget), tabBar(new QTabBar(widget)),
      toolBar(new QToolBar(widget)), editor(new CodeEditor(widget))
{
    tabBar->setExpanding(false);
    tabBar->setMovable(true);
    tabBar->setTabsClosable(true);
    toolBar->setIconSize({16, 16});
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabBar);
    layout->addWidget(toolBar);
    layout->addWidget(editor);
}

CodeWorkspacePrivate::~CodeWorkspacePrivate()
{
    if (widget && !widget->parentWidget()) {
        delete widget;
    }
}

CodeDocument* CodeWorkspacePrivate::document() const
{
    return editor->codeDocument();
}

CodeWorkspace::CodeWorkspace(QObject* parent)
    : Workspace(parent), d(std::make_unique<CodeWorkspacePrivate>(this))
{
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

void CodeWorkspace::engineSwitched(bool) {}

void CodeWorkspace::activate()
{
    d->isActive = true;
}

void CodeWorkspace::deactivate()
{
    d->isActive = false;
}

void CodeWorkspace::reconfig() {}

void CodeWorkspace::retranslate() {}

void CodeWorkspace::statusClicked() {}

void CodeWorkspace::zoomActual() {}

void CodeWorkspace::zoomIn() {}

void CodeWorkspace::zoomOut() {}

void CodeWorkspace::setDocument(CodeDocument* document)
{
    if (CodeDocument* left = d->document()) {
        left->setObjectName(
            QStringLiteral("%1,%2,%3").arg(0).arg(0).arg(d->editor->verticalScrollBar()->value()));
    }
    d->editor->setDocument(document);
    if (document) {
        document->setDefaultFont(d->editor->font());
        const QStringList place = document->objectName().split(QLatin1Char(','));
        d->editor->setCurrentLine(CodeEditor::LinePos{
            place.value(0).toInt(), place.value(1).toInt(), place.value(2).toInt()});
        d->editor->setFocus();
    }
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

void CodeWorkspace::goToLine() {}

void CodeWorkspace::nextError() {}

void CodeWorkspace::prevError() {}

void CodeWorkspace::nextDepr() {}

void CodeWorkspace::prevDepr() {}

void CodeWorkspace::comment() {}

void CodeWorkspace::foldAll()
{
    d->editor->foldAll();
}

void CodeWorkspace::unfoldAll()
{
    d->editor->unfoldAll();
}

void CodeWorkspace::insertSnippet(int) {}

}  // namespace Zorv
