#include "app/main/mainwindow.h"

#include "app/actions/actionregistry.h"
#include "app/actions/actiontable.h"
#include "app/actions/shortcutguard.h"
#include "app/actions/windowactions.h"
#include "app/animations/animationcommands.h"
#include "app/assets/rowlist.h"
#include "app/assets/soundcommands.h"
#include "app/assets/soundpanel.h"
#include "app/assets/spritecommands.h"
#include "app/assets/spritelist.h"
#include "app/assets/spritepanel.h"
#include "app/code/codehelp.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/code/documenttabs.h"
#include "app/controls/controlplacer.h"
#include "app/find/findbar.h"
#include "app/game/gamecommands.h"
#include "app/game/gameopener.h"
#include "app/game/gametree.h"
#include "app/look/plaintexts.h"
#include "app/main/windowstate.h"
#include "app/messages/messagepanel.h"
#include "app/messages/messageroom.h"
#include "app/run/outputpanel.h"
#include "app/run/runcommands.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagecontroller.h"
#include "app/stage/stageview.h"
#include "app/window/statusfields.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/code/codedoc/framecode.h>
#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>
#include <zorv/editors/framework/editor.h>
#include <zorv/editors/framework/workspace.h>
#include <zorv/editors/organizer/organizereditor.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_session(new GameSession(this)), m_centre(new QStackedWidget(this)),
      m_hint(new QLabel), m_middle(new QSplitter(Qt::Vertical)), m_gameTree(new GameTree),
      m_animations(new AnimationCommands(this)), m_spritePanel(new SpritePanel),
      m_soundPanel(new SoundPanel), m_messagePanel(new MessagePanel),
      m_status(new StatusFields(statusBar())), m_opener(new GameOpener(this)),
      m_gameCommands(new GameCommands(this)), m_runCommands(new RunCommands(this)),
      m_spriteCommands(new SpriteCommands(this)), m_soundCommands(new SoundCommands(this)),
      m_actions(new WindowActions(this)), m_controls(new ControlPlacer(this, m_actions))
{
    new ShortcutGuard(this, registry());
    new PlainTexts(this);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setEnabled(false);
    m_hint->setWordWrap(true);
    m_centre->addWidget(m_hint);
    m_centre->addWidget(m_middle);
    m_middle->setChildrenCollapsible(false);
    setCentralWidget(m_centre);
    makeDocks();
}

void MainWindow::publishTools()
{
    makeCode();
    m_animations->publish();
    makeStage();
    resizeDocks({findChild<QDockWidget*>(QStringLiteral("projects")),
                 findChild<QDockWidget*>(QStringLiteral("nodes"))},
                {240, 280}, Qt::Horizontal);
    connectParts();
    connectPanels();
    connectCode();
    connectAssets();
    connectStage();
    retranslate();
    currentDocumentChanged(nullptr);
    WindowState::restoreShape(this);
    m_controls->updateVisibility();
}

void MainWindow::makeCode()
{
    m_code = new CodeView(this);
    m_middle->addWidget(m_code->widget());
    makeCodeHelp();
    for (const char* name : {"find", "find_next", "find_previous", "find_selection", "replace"}) {
        m_code->findBar()->addAction(actionByName(name));
    }
    m_code->workspace()->engineSwitched(true);
    m_code->reconfig();
}

void MainWindow::makeCodeHelp()
{
    JumpServices services;
    services.show = [this](FamilyDocument* document, int line, int column) {
        showPlace(document, line, column, 0);
    };
    services.open = [this](const QString& fileName) { return openFile(fileName); };
    services.tell = [this](const QString& text) { statusBarText(text); };
    m_codeHelp = new CodeHelp(m_code->editor(), services);
}

void MainWindow::makeStage()
{
    m_stage = new StageCommands(this);
    m_middle->insertWidget(0, m_stage->view());
}

// Views go before what they show.
MainWindow::~MainWindow()
{
    m_session->disconnect(this);
    m_stage->setDocument(nullptr);
    m_stage->setSprites(nullptr);
    m_status->setDocument(nullptr);
    m_animations->setDocument(nullptr);
    m_spritePanel->setSprites(nullptr);
    m_soundPanel->setSounds(nullptr);
    m_messagePanel->setMessages(nullptr);
    m_gameTree->setGame(nullptr);
    delete m_code;
    delete m_stage;
    delete m_session;
}

void MainWindow::makeDocks()
{
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    QDockWidget* projects = addDock(m_gameTree, "projects", Qt::LeftDockWidgetArea);
    QDockWidget* messages = addDock(m_messagePanel, "messages", Qt::BottomDockWidgetArea);
    QDockWidget* sprites = addDock(m_spritePanel, "sprites", Qt::LeftDockWidgetArea);
    tabifyDockWidget(sprites, addDock(m_soundPanel, "sounds", Qt::LeftDockWidgetArea));
    sprites->raise();
    QDockWidget* output = addDock(m_runCommands->panel(), "output", Qt::BottomDockWidgetArea);
    output->hide();
    resizeDocks({messages}, {100}, Qt::Vertical);
    new MessageRoom(this, messages, m_messagePanel);
    resizeDocks({projects, sprites}, {280, 480}, Qt::Vertical);
}

QDockWidget* MainWindow::addDock(QWidget* widget, const char* name, Qt::DockWidgetArea area)
{
    auto* dock = new QDockWidget(this);
    dock->setObjectName(QLatin1String(name));
    dock->setWidget(widget);
    addDockWidget(area, dock);
    m_actions->addSwitch(dock->toggleViewAction(), QLatin1String(name));
    return dock;
}

void MainWindow::connectParts()
{
    connect(m_session, &GameSession::folderOpened, this, [this] {
        m_gameTree->setGame(m_session->game());
        updateSoon();
    });
    connect(m_session, &GameSession::folderAboutToClose, this, [this] {
        m_gameTree->setGame(nullptr);
        updateSoon();
    });
    connect(m_session, &GameSession::projectOpened, this, &MainWindow::updateMessages);
    connect(m_session, &GameSession::projectAboutToClose, this, &MainWindow::forgetProject);
    connect(m_gameCommands, &GameCommands::gameChanged, this, &MainWindow::gameChanged);
    connect(m_runCommands, &RunCommands::stateChanged, this, &MainWindow::updateSoon);
}

void MainWindow::connectPanels()
{
    connect(m_gameTree, &GameTree::fileRequested, this, &MainWindow::openFile);
    connect(m_animations, &AnimationCommands::lineRequested, this,
            [this](int line, int column, int length) {
                showPlace(tabs()->currentDocument(), line, column, length);
            });
    connect(m_animations, &AnimationCommands::stateChanged, this, &MainWindow::updateSoon);
    connect(m_messagePanel, &MessagePanel::placeRequested, this,
            [this](Zorv::CodeDocument* document, int line, int column) {
                showPlace(document, line, column, 0);
            });
    connect(m_messagePanel, &MessagePanel::summaryChanged, this,
            [this] { m_status->setProblems(m_messagePanel->summary()); });
    connect(m_status, &StatusFields::problemsClicked, m_messagePanel, &MessagePanel::comeForward);
}

void MainWindow::connectCode()
{
    connect(tabs(), &DocumentTabs::currentDocumentChanged, this,
            &MainWindow::currentDocumentChanged);
    connect(tabs(), &DocumentTabs::closeRequested, this, &MainWindow::closeDocument);
    connect(m_code, &CodeView::cursorMoved, this, &MainWindow::followCursor);
    connect(m_code, &CodeView::lineChanged, this, &MainWindow::followLine);
    connect(m_code, &CodeView::stateChanged, this, &MainWindow::updateNow);
    connect(m_code->editor(), &Zorv::CodeEditor::markClicked, this, &MainWindow::showMessageOfLine);
    connect(m_status, &StatusFields::encodingClicked, this, &MainWindow::changeEncoding);
    connect(m_status, &StatusFields::placeClicked, m_code->workspace(),
            &Zorv::CodeWorkspace::goToLine);
}

void MainWindow::connectAssets()
{
    for (const char* name : {"sprite_add", "sprite_replace", "sprite_export", "sprite_remove",
                             "palette_open", "palette_save"}) {
        m_spritePanel->list()->addAction(actionByName(name));
    }
    for (const char* name : {"sound_add", "sound_export", "sound_remove"}) {
        m_soundPanel->list()->addAction(actionByName(name));
    }
    connect(m_spritePanel, &SpritePanel::changed, this, &MainWindow::updateSoon);
    connect(m_soundPanel, &SoundPanel::changed, this, &MainWindow::updateSoon);
}

void MainWindow::connectStage()
{
    connect(m_stage, &StageCommands::stateChanged, this, &MainWindow::updateSoon);
    connect(m_stage->controller(), &StageController::lineRequested, this, &MainWindow::followStage);
    // Rows change while lines are being parsed.
    connect(
        m_animations->organizer(), &Zorv::OrganizerEditor::currentRowChanged, m_stage,
        [this] { m_stage->controller()->showAnimation(m_animations->organizer()->currentRow()); },
        Qt::QueuedConnection);
}

bool MainWindow::openPath(const QString& path)
{
    return m_opener->openPath(path);
}

bool MainWindow::openFile(const QString& fileName)
{
    return m_opener->openFile(fileName);
}

void MainWindow::forgetProject(FamilyProject* project)
{
    const QList<FamilyDocument*> documents = project->documents();
    for (const FamilyDocument* document : documents) {
        tabs()->closeDocument(document);
    }
    if (m_messagePanel->messages() == project->messages()) {
        m_messagePanel->setMessages(nullptr);
    }
    if (m_spritePanel->sprites() && m_spritePanel->sprites()->project() == project) {
        m_spritePanel->setSprites(nullptr);
        m_stage->setSprites(nullptr);
    }
    if (m_soundPanel->sounds() && m_soundPanel->sounds()->project() == project) {
        m_soundPanel->setSounds(nullptr);
    }
    // The project itself goes after this: what is left is looked at then.
    QMetaObject::invokeMethod(this, &MainWindow::updateMessages, Qt::QueuedConnection);
}

void MainWindow::gameChanged()
{
    tabs()->updateTabs();
    m_status->setDocument(tabs()->currentDocument());
    updateMessages();
    updateSoon();
}

void MainWindow::currentDocumentChanged(FamilyDocument* document)
{
    m_centre->setCurrentIndex(document ? 1 : 0);
    m_animations->setDocument(document);
    m_stage->setDocument(document);
    m_status->setDocument(document);
    updateMessages();
    updateNow();
    if (document) {
        followCursor();
        followLine(currentEdit()->textCursor().blockNumber());
    }
}

void MainWindow::followCursor()
{
    m_animations->followCursor(m_code->editor()->textCursor().blockNumber());
    // A jump takes the cursor through other frames, to bring its line to the middle.
    if (!m_isFollowPending) {
        m_isFollowPending = true;
        QTimer::singleShot(0, this, &MainWindow::followFrame);
    }
}

/// The frame of the cursor is shown, and the sprite that its line names.
void MainWindow::followFrame()
{
    m_isFollowPending = false;
    if (const Zorv::CodeEditor* edit = currentEdit()) {
        const int line = edit->textCursor().blockNumber();
        m_stage->controller()->followLine(line);
        followSprite(line);
    }
}

/// The sprite that the line of the cursor names becomes the current one.
void MainWindow::followSprite(int line)
{
    const FamilyDocument* document = tabs()->currentDocument();
    if (m_spritePanel->visibleRegion().isEmpty() || !document || document->isCodeBeingChanged()) {
        return;
    }
    const Zorv::CodeNode* node = document->nodeInBlock(document->findBlockByNumber(line));
    if (node && node->type() == Zorv::CodeNode::Frame) {
        const auto* frame = static_cast<const Zorv::FrameCode*>(node);
        m_spritePanel->showSprite(frame->spriteGroup(), frame->spriteNumber());
    }
}

/// What is done on the stage is seen in the text; the keyboard stays on the stage.
void MainWindow::followStage(int line)
{
    Zorv::CodeEditor* edit = currentEdit();
    if (edit && edit->textCursor().blockNumber() != line) {
        edit->setTextCursor(QTextCursor(edit->document()->findBlockByNumber(line)));
    }
}

void MainWindow::followLine(int line)
{
    m_messagePanel->followCursor(tabs()->currentDocument(), line);
}

void MainWindow::showMessageOfLine(int line)
{
    if (m_messagePanel->followCursor(tabs()->currentDocument(), line)) {
        m_messagePanel->comeForward();
    }
}

void MainWindow::updateMessages()
{
    const FamilyProject* project = currentProject();
    m_messagePanel->setMessages(project ? project->messages() : nullptr);
    m_status->setProblems(m_messagePanel->summary());
    updateSoon();
}

void MainWindow::updateTitle()
{
    const FamilyDocument* document = tabs()->currentDocument();
    QString text =
        document ? m_session->shownPath(document->fileName()) + QLatin1String("[*]") : QString();
    const QString game = QDir(m_session->folder()).dirName();
    for (const QString& part : {m_session->game() ? game : QString(), QStringLiteral("Zorv")}) {
        text += !text.isEmpty() && !part.isEmpty() ? QLatin1String(" - ") + part : part;
    }
    setWindowTitle(text);
    setWindowModified(document && document->isModified());
}

/// A file that is read brings thousands of rows one by one.
void MainWindow::updateSoon()
{
    if (!m_isUpdatePending) {
        m_isUpdatePending = true;
        QTimer::singleShot(0, this, &MainWindow::updateNow);
    }
}

void MainWindow::updateNow()
{
    m_isUpdatePending = false;
    updateTitle();
    updateHint();
    updateAssets();
    m_stage->updateShown();
    updateActions();
}

/// A text can come to name another file.
void MainWindow::updateAssets()
{
    const FamilyProject* project = currentProject();
    const auto file = [project](Zorv::FileID::Type type) {
        return project ? project->file(type) : nullptr;
    };
    m_spritePanel->setSprites(dynamic_cast<Family::SpriteCollection*>(file(Zorv::FileID::Sprites)));
    m_soundPanel->setSounds(dynamic_cast<Family::SoundFile*>(file(Zorv::FileID::Sounds)));
    m_stage->setSprites(m_spritePanel->sprites());
}

void MainWindow::updateHint()
{
    m_hint->setText(m_session->game() ? tr("A double click in the tree of projects shows a text.")
                                      : tr("The menu File opens a game folder."));
}

void MainWindow::updateActions()
{
    registry()->setActiveAreas(activeAreas());
    m_actions->update(presentNeeds());
}

QSet<QString> MainWindow::activeAreas() const
{
    QSet<QString> areas;
    if (currentEdit()) {
        areas.insert(QStringLiteral("code"));
    }
    if (const Zorv::Editor* editor = Zorv::Interface::instance()->currentEditor()) {
        const QStringList names = editor->areas();
        areas.unite({names.begin(), names.end()});
    }
    return areas;
}

int MainWindow::presentNeeds() const
{
    const Zorv::CodeEditor* edit = currentEdit();
    const auto when = [](bool condition, Need need) { return condition ? int(need) : 0; };
    return when(m_session->game(), NeedsGame) | when(currentProject(), NeedsProject) |
           when(edit, NeedsText) | when(!m_session->modifiedFiles().isEmpty(), NeedsUnsaved) |
           when(edit && edit->document()->isUndoAvailable(), NeedsUndo) |
           when(edit && edit->document()->isRedoAvailable(), NeedsRedo) |
           when(edit && edit->textCursor().hasSelection(), NeedsSelection) |
           when(m_animations->hasCurrent(), NeedsAnimation) |
           when(m_runCommands->isRunning(), NeedsEngine) | m_spriteCommands->presentNeeds() |
           m_soundCommands->presentNeeds() | m_stage->presentNeeds() |
           when(!m_runCommands->isRunning(), NeedsNoEngine);
}

DocumentTabs* MainWindow::tabs() const
{
    return m_code->tabs();
}

CodeTextEditor* MainWindow::textEditor() const
{
    return m_code ? m_code->textEditor() : nullptr;
}

Zorv::CodeEditor* MainWindow::currentEdit() const
{
    return m_code ? tabs()->currentEdit() : nullptr;
}

void MainWindow::showText()
{
    if (Zorv::CodeEditor* edit = currentEdit()) {
        m_centre->setCurrentWidget(m_middle);
        edit->setFocus();
    }
}

FamilyProject* MainWindow::currentProject() const
{
    FamilyProject* project = m_code ? projectOf(tabs()->currentDocument()) : nullptr;
    return project || m_session->projects().isEmpty() ? project : m_session->projects().last();
}

QMenu* MainWindow::menuByName(const char* name) const
{
    return m_actions->menu(name);
}

QAction* MainWindow::actionByName(const char* name) const
{
    return registry()->action(QLatin1String(name));
}

ActionRegistry* MainWindow::registry() const
{
    return m_actions->registry();
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    const bool isTextShown = m_code && m_centre->currentWidget() == m_middle;
    if (isTextShown && event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        showText();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_runCommands->mayClose([this] { close(); }) ||
        !askAboutUnsaved(m_session->modifiedFiles())) {
        event->ignore();
        return;
    }
    WindowState::save(this);
    event->accept();
}

void MainWindow::restoreWork(const QString& otherwise)
{
    WindowState::restoreWork(this, otherwise);
}

}  // namespace App
