#include "app/code/codetexteditor.h"

#include "app/code/nodemodel.h"
#include "app/look/icon.h"
#include "app/look/language.h"
#include "family/familydocument.h"

#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>

#include <QAction>
#include <QEvent>
#include <QTextBlock>
#include <QTimer>
#include <QTreeView>
#include <algorithm>

namespace App {

namespace {

constexpr int FollowWait = 60;  // milliseconds

}  // namespace

CodeTextEditor::CodeTextEditor(Zorv::CodeWorkspace* workspace, QObject* parent)
    : CodeFileEditor(workspace, new NodeModel, "code_tree", parent),
      m_nodes(static_cast<NodeModel*>(model())),
      m_action(host()->createEditorAction(QStringLiteral("editor_code"), nullptr, 0)),
      m_follow(new QTimer(this))
{
    m_action->setIcon(icon(QStringLiteral(":/zorvl_icons/icons/code.png")));
    m_action->setEnabled(false);
    m_follow->setSingleShot(true);
    m_follow->setInterval(FollowWait);
    connect(m_follow, &QTimer::timeout, this, &CodeTextEditor::selectLine);
    connect(m_nodes, &NodeModel::refreshed, this, &CodeTextEditor::selectLine);
    setUpTree();
    retranslate();
}

void CodeTextEditor::setUpTree()
{
    m_nodes->setActive(tree() && tree()->isVisible());
    if (tree()) {
        tree()->installEventFilter(this);
        followLanguage(tree(),
                       [view = tree()] { view->setAccessibleName(tr("Nodes of the text")); });
    }
}

void CodeTextEditor::setText(Family::FamilyDocument* document)
{
    setDocument(document);
    m_action->setEnabled(document);
    if (document) {
        selectLine();
    } else {
        deactivate();
    }
    emit modified();
}

void CodeTextEditor::goTo(int line, int column, int length)
{
    const QTextDocument* text = codeWorkspace()->editor()->document();
    QTextBlock block = text->findBlockByNumber(std::max(line, 0));
    if (!block.isValid()) {
        block = text->lastBlock();
    }
    const int last = block.length() - 1;
    const int start = qBound(0, column, last);
    navigateTo({}, 0, unsigned(block.blockNumber()), unsigned(start));
    const int end = std::min(start + length, last);
    if (end > start) {
        QTextCursor cursor = codeWorkspace()->editor()->textCursor();
        cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, end - start);
        codeWorkspace()->editor()->setTextCursor(cursor);
    }
}

QString CodeTextEditor::name() const
{
    return QStringLiteral("code");
}

int CodeTextEditor::canEditFileType() const
{
    return 1;
}

QStringList CodeTextEditor::areas() const
{
    return {QStringLiteral("code")};
}

void CodeTextEditor::retranslate()
{
    m_action->setText(tr("Code"));
    if (isShown()) {
        const QTextCursor cursor = codeWorkspace()->editor()->textCursor();
        cursorChanged({cursor.blockNumber(), cursor.positionInBlock()});
    }
}

QString CodeTextEditor::fileFilter() const
{
    const auto* text = static_cast<const Family::FamilyDocument*>(document());
    return text ? Family::fileKindName(text->kind()) + QLatin1Char(';') +
                      Family::fileSuffix(text->kind())
                : QString();
}

void CodeTextEditor::currLineChanged(int)
{
    if (tree() && tree()->isVisible() && !m_follow->isActive()) {
        m_follow->start();
    }
}

/// True also if another editor that shares the tree shows the text.
bool CodeTextEditor::isShown() const
{
    return document() && codeWorkspace()->editor()->codeDocument() == document();
}

void CodeTextEditor::selectLine()
{
    if (!isShown() || !tree() || !tree()->isVisible() || m_nodes->isStale() ||
        tree()->model() != m_nodes) {
        return;
    }
    const int line = codeWorkspace()->editor()->textCursor().blockNumber();
    const QModelIndex index = m_nodes->indexInLine(unsigned(line));
    const QModelIndexList selected = tree()->selectionModel()->selectedIndexes();
    // If the user collapsed the branch of this line, keep it collapsed.
    if (index.isValid() ? !selected.contains(index) : !selected.isEmpty()) {
        CodeFileEditor::currLineChanged(line);
    }
}

/// A hidden tree is not kept up to date.
bool CodeTextEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == tree() && event->type() == QEvent::Show) {
        m_nodes->setActive(true);
        m_follow->start();
    } else if (watched == tree() && event->type() == QEvent::Hide) {
        m_nodes->setActive(false);
    }
    return CodeFileEditor::eventFilter(watched, event);
}

}  // namespace App
