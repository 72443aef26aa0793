#include "editors/code/codeworkspace_p.h"

#include "code/codedoc/codedocument.h"
#include "code/codedoc/enginemodelof_p.h"
#include "core/dialogs/dialogs.h"
#include "core/enginemodel.h"
#include "core/interface.h"
#include "core/messages.h"
#include "editors/code/codecomment_p.h"
#include "editors/code/codeeditor.h"
#include "editors/code/gotodlg.h"
#include "editors/code/pickbox_p.h"
#include "editors/framework/toolbuttoncontrol.h"
#include "editors/snipman/snipdlg.h"
#include "editors/snipman/snippetmanager.h"
#include "text/zorvtranslator.h"

#include <QAction>
#include <QStandardItemModel>
#include <QTabBar>
#include <QTextBlock>
#include <QToolBar>
#include <QVBoxLayout>

namespace Zorv {

namespace {

constexpr int SnippetBoxCharacters = 16;
constexpr int MessageBoxCharacters = 16;  // minimum
constexpr unsigned GoToText = 15;

const char* const areas[] = {"code", nullptr};

enum Place { InMenu, BesideSnippets, BesideMessages, InBarOfHost };

const struct
{
    const char* name;
    unsigned textId;
    const char* slot;
    Place place;
} tools[] = {
    {"view_code_bar", 1, SLOT(showTextBar(bool)), InMenu},
    {"code_snippet_insert", 11, SLOT(snipInsert()), BesideSnippets},
    {"code_snippet_new", 12, SLOT(snipNew()), BesideSnippets},
    {"code_snippet_edit", 13, SLOT(snipEdit()), BesideSnippets},
    {"code_goto", GoToText, SLOT(goToLine()), InBarOfHost},
    {"code_prev_error", 16, SLOT(prevError()), BesideMessages},
    {"code_next_error", 17, SLOT(nextError()), BesideMessages},
    {"code_prev_deprecation", 18, SLOT(prevDepr()), BesideMessages},
    {"code_next_deprecation", 19, SLOT(nextDepr()), BesideMessages},
    {"code_comment", 20, SLOT(comment()), InBarOfHost},
    {"code_fold_all", 21, SLOT(foldAll()), InBarOfHost},
    {"code_unfold_all", 22, SLOT(unfoldAll()), InBarOfHost},
};

QAbstractItemModel* noMessages()
{
    static QStandardItemModel model;
    return &model;
}

}  // namespace

CodeWorkspacePrivate::CodeWorkspacePrivate(CodeWorkspace* workspace)
    : q(workspace), host(Interface::instance()), widget(new QWidget), tabBar(new QTabBar(widget)),
      toolBar(new QToolBar(widget)), editor(new CodeEditor(widget)),
      snippets(new PickBox(SnippetBoxCharacters, toolBar)),
      messages(new PickBox(MessageBoxCharacters, toolBar))
{
    tabBar->setExpanding(false);
    tabBar->setMovable(true);
    tabBar->setTabsClosable(true);
    tabBar->hide();
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(tabBar);
    layout->addWidget(toolBar);
    layout->addWidget(editor);
    widget->setFocusProxy(editor);
    snippets->setObjectName(QStringLiteral("code_snippets"));
    messages->setObjectName(QStringLiteral("code_messages"));
    snippets->setModel(SnippetManager::instance());
    messages->setModel(noMessages());
    messages->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(snippets, &PickBox::picked, this, &CodeWorkspacePrivate::snipActivated);
    connect(messages, &PickBox::picked, this, &CodeWorkspacePrivate::errorActivated);
    for (const PickBox* box : {snippets, messages}) {
        connect(box, &PickBox::left, editor, QOverload<>::of(&QWidget::setFocus));
    }
    editor->viewport()->installEventFilter(this);
    publish();
}

CodeWorkspacePrivate::~CodeWorkspacePrivate()
{
    if (widget && !widget->parentWidget()) {
        delete widget;
    }
}

void CodeWorkspacePrivate::publish()
{
    toolBar->addWidget(snippets);
    QAction* middle = toolBar->addSeparator();
    QAction* end = toolBar->addWidget(messages);
    for (const auto& tool : tools) {
        const QString name = QString::fromLatin1(tool.name);
        QAction* action = host->createAction(areas, name, ZorvTranslator::instance(), tool.textId,
                                             nullptr, this, tool.slot, nullptr, nullptr);
        if (!action) {
            continue;  // a host without a window creates no actions
        }
        if (tool.place == InMenu) {
            barAction = action;
            barAction->setCheckable(true);
        } else if (tool.place == BesideSnippets) {
            toolBar->insertAction(middle, action);
        } else if (tool.place == BesideMessages) {
            toolBar->insertAction(end, action);
        } else {
            host->addControl(name, ToolButtonControl(action));
        }
    }
}

CodeDocument* CodeWorkspacePrivate::document() const
{
    return editor->codeDocument();
}

bool CodeWorkspacePrivate::isUsable() const
{
    return document() && !editor->isReadOnly();
}

void CodeWorkspacePrivate::showMessages(CodeDocument* newDocument)
{
    QAbstractItemModel* model = newDocument ? newDocument->messages() : nullptr;
    messages->setModel(model ? model : noMessages());
}

void CodeWorkspacePrivate::showTextBar(bool checked)
{
    toolBar->setVisible(checked);
    host->setOption(QStringLiteral("show_code_bar"), checked);
}

void CodeWorkspacePrivate::snipActivated(int row)
{
    if (!isUsable() || row < 0) {
        return;
    }
    const QPointer<CodeDocument> target = document();
    const QString text = SnippetManager::instance()->snippet(*host, unsigned(row));
    // The snippet may have shown a dialog, during which the document can change.
    if (target && target == document()) {
        insertText(text);
    }
}

void CodeWorkspacePrivate::insertText(const QString& text)
{
    static const QString marker = QStringLiteral("CURSOR");
    if (text.isEmpty() || !isUsable()) {
        return;
    }
    QString plain = text;
    plain.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    const int place = plain.indexOf(marker);
    plain.remove(marker);
    QTextCursor cursor = editor->textCursor();
    cursor.insertText(plain);
    if (place >= 0) {
        cursor.setPosition(cursor.position() - (plain.size() - place));
    }
    editor->setTextCursor(cursor);
    editor->setFocus();
}

void CodeWorkspacePrivate::snipInsert()
{
    snipActivated(snippets->currentIndex());
}

void CodeWorkspacePrivate::snipNew()
{
    editSnippet({});
}

void CodeWorkspacePrivate::snipEdit()
{
    const EngineModel* engine = host->engineModel();
    if (engine && snippets->currentIndex() >= 0) {
        // The shown text may be translated; the edit role has the file name.
        editSnippet(engine->dataPath() + QLatin1String("/snippets/") +
                    snippets->currentData(Qt::EditRole).toString() + QLatin1String(".xml"));
    }
}

void CodeWorkspacePrivate::editSnippet(const QString& path)
{
    const QPointer<CodeWorkspacePrivate> self = this;
    const QPointer<SnipDlg> dialog = new SnipDlg(host, path, host->mainWindow());
    connect(dialog, &SnipDlg::insertRequested, this, &CodeWorkspacePrivate::insertText);
    dialog->exec();
    delete dialog;
    // The dialog may have saved a file under a new name.
    if (self && !SnippetManager::instance()->folder().isEmpty()) {
        const QString current = snippets->currentText();
        SnippetManager::instance()->update(SnippetManager::instance()->folder());
        snippets->setCurrentIndex(qMax(snippets->findText(current), 0));
    }
}

void CodeWorkspacePrivate::goToLine()
{
    if (!isUsable()) {
        return;
    }
    const QPointer<CodeDocument> target = document();
    const QPointer<GoToDlg> dialog =
        new GoToDlg(host->mainWindow(), editor->textCursor().blockNumber() + 1);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    int value = dialog ? dialog->getValue() : 0;
    delete dialog;
    if (!isAccepted || value < 1 || !target || target != document()) {
        return;
    }
    if (value > target->blockCount()) {
        const auto answer = Dialogs::instance()->question(
            ZorvTranslator::instance()->trText(GoToText),
            CodeWorkspace::tr("Invalid line! Do you want go to the last line?"),
            Dialogs::Yes | Dialogs::No, Dialogs::Yes);
        if (answer != Dialogs::Yes || !target || target != document()) {
            return;
        }
        value = target->blockCount();
    }
    editor->setCurrentLine(unsigned(value - 1), CodeEditor::TopLine);
    editor->setFocus();
}

void CodeWorkspacePrivate::jump(bool (*find)(MessageJump::Kind, QTextCursor*),
                                MessageJump::Kind kind)
{
    if (!isUsable()) {
        return;
    }
    QTextCursor cursor = editor->textCursor();
    if (find(kind, &cursor)) {
        editor->reveal(cursor.block());
        editor->setTextCursor(cursor);
    }
}

void CodeWorkspacePrivate::nextError()
{
    jump(&MessageJump::next, MessageJump::Errors);
}

void CodeWorkspacePrivate::prevError()
{
    jump(&MessageJump::previous, MessageJump::Errors);
}

void CodeWorkspacePrivate::nextDepr()
{
    jump(&MessageJump::next, MessageJump::Deprecations);
}

void CodeWorkspacePrivate::prevDepr()
{
    jump(&MessageJump::previous, MessageJump::Deprecations);
}

void CodeWorkspacePrivate::errorActivated(int row)
{
    const auto* list = qobject_cast<Messages*>(messages->model());
    if (!list || row < 0 || row >= list->rowCount() || !document()) {
        return;
    }
    const Message message = list->at(row);
    const QTextBlock block = document()->findBlockByNumber(message.line);
    if (!block.isValid()) {
        return;
    }
    editor->reveal(block);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + qBound(0, message.column, block.length() - 1));
    editor->setTextCursor(cursor);
    editor->setFocus();
}

void CodeWorkspacePrivate::comment()
{
    const EngineModel* engine = isUsable() ? engineModelOf(document()) : nullptr;
    if (engine) {
        QTextCursor cursor = editor->textCursor();
        CodeComment::toggle(&cursor, QLatin1Char(engine->commentChar()));
        editor->setTextCursor(cursor);
    }
}

void CodeWorkspacePrivate::foldAll()
{
    editor->foldAll();
}

void CodeWorkspacePrivate::unfoldAll()
{
    editor->unfoldAll();
}

}  // namespace Zorv
