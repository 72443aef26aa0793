#include "app/main/mainwindow.h"

#include "app/actions/actionregistry.h"
#include "app/actions/shortcutguard.h"
#include "app/actions/windowactions.h"
#include "app/animations/animationcommands.h"
#include "app/assets/addimages.h"
#include "app/assets/spritecommands.h"
#include "app/assets/spritepanel.h"
#include "app/assets/thumbnailcommands.h"
#include "app/changes/filestates.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/code/documenttabs.h"
#include "app/controls/controlplacer.h"
#include "app/game/gamecommands.h"
#include "app/game/gameopener.h"
#include "app/game/gametree.h"
#include "app/game/newcommands.h"
#include "app/game/recentmenu.h"
#include "app/look/look.h"
#include "app/look/plaintexts.h"
#include "app/main/contextmenus.h"
#include "app/main/windowcommands.h"
#include "app/main/windowstate.h"
#include "app/messages/messagepanel.h"
#include "app/messages/messageroom.h"
#include "app/messages/problemwatch.h"
#include "app/messages/quickfixes.h"
#include "app/paint/paintcommands.h"
#include "app/palettes/familypaletteeditor.h"
#include "app/palettes/palettecommands.h"
#include "app/palettes/sightswitches.h"
#include "app/references/referencecommands.h"
#include "app/references/referencepanel.h"
#include "app/run/outputpanel.h"
#include "app/run/runcommands.h"
#include "app/search/findinfiles.h"
#include "app/session/gamesession.h"
#include "app/session/unsavedwork.h"
#include "app/sounds/hearing.h"
#include "app/sounds/soundpanel.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/start/startcommands.h"
#include "app/start/startpage.h"
#include "app/window/commandrouter.h"
#include "app/window/editorregistry.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritecollection.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"

#include <zorv/animation/thumbnails/thumbnailseditor.h>
#include <zorv/core/fileid.h>
#include <zorv/core/fileinput.h>
#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>
#include <zorv/editors/organizer/organizereditor.h>
#include <zorv/editors/sound/soundeditor.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/image/palettepreviews.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

// The window is created in two stages, because the parts that publish tools need a host that
// already knows the window. The constructor creates the services and all other parts.
// `publishTools()` creates the rest, registers all parts, and connects those that do not know each
// other. The last step restores the saved geometry, when all panels exist.
//
// The destructor first clears all parts, then destroys the editors in reverse order, and the
// session last: everything else points into it.

namespace App {

using Family::FamilyDocument;
using Family::FamilyProject;
using Zorv::FileInput;

namespace {

// Qt's placeholder in a title for "modified".
const QLatin1String Modified("[*]");

const QString SeenKey = QStringLiteral("panels_seen");

// Heights of these panels when they are first shown.
constexpr int RoomOfLayers = 200;
constexpr int RoomOfPalette = 300;

constexpr int RoomOfCostumes = 200;
constexpr int RoomOfReferences = 160;

struct PanelTitle
{
    const char* name;
    const char* title;
};

const PanelTitle panelTitles[] = {
    {"projects", QT_TRANSLATE_NOOP("App::MainWindow", "Projects")},
    {"sprites", QT_TRANSLATE_NOOP("App::MainWindow", "Sprites")},
    {"sounds", QT_TRANSLATE_NOOP("App::MainWindow", "Sounds")},
    {"costumes", QT_TRANSLATE_NOOP("App::MainWindow", "Costumes")},
    {"messages", QT_TRANSLATE_NOOP("App::MainWindow", "Messages")},
    {"references", QT_TRANSLATE_NOOP("App::MainWindow", "References")},
    {"output", QT_TRANSLATE_NOOP("App::MainWindow", "Engine output")},
    {"find_files", QT_TRANSLATE_NOOP("App::MainWindow", "Find in files")},
};

/// Qt gives these buttons the same accessible name in all docks, and only once, in the current
/// language.
void nameButton(const QDockWidget* dock, const char* button, const QString& name)
{
    if (auto* found = dock->findChild<QAbstractButton*>(QLatin1String(button))) {
        found->setAccessibleName(name);
    }
}

void keepKeysTo(QWidget* widget, const QList<QAction*>& actions)
{
    for (QAction* action : actions) {
        if (widget && action) {
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            widget->addAction(action);
        }
    }
}

}  // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), m_centre(new QStackedWidget(this)), m_empty(new QStackedWidget),
      m_hint(new QLabel), m_middle(new QSplitter(Qt::Vertical)), m_actions(new WindowActions(this)),
      m_controls(new ControlPlacer(this, m_actions))
{
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setEnabled(false);
    m_hint->setWordWrap(true);
    m_centre->addWidget(m_empty);
    m_centre->addWidget(m_middle);
    m_middle->setChildrenCollapsible(false);
    setCentralWidget(m_centre);

    m_services.window = this;
    m_services.jumps = this;
    m_services.session = new GameSession(this);
    m_services.status = new StatusFields(statusBar());
    m_services.actions = m_actions->registry();
    m_services.editors = new EditorRegistry(m_centre, m_controls, this);
    m_services.parts = new PartList(m_services.session, m_actions, this);
    new ShortcutGuard(this, registry());
    new PlainTexts(this);

    m_gameTree = new GameTree(m_services);
    m_opener = new GameOpener(m_services, m_gameTree);
    m_start = new StartPage(m_services);
    m_empty->addWidget(m_start);
    m_empty->addWidget(m_hint);
    m_startCommands = new StartCommands(m_services);
    m_newCommands = new NewCommands(m_services, m_gameTree);
    m_gameCommands = new GameCommands(m_services, m_gameTree);
    m_runCommands = new RunCommands(m_services);
    m_sprites = new SpriteCommands(m_services);
    m_problems = new ProblemWatch(m_services);
    m_services.mayRemove = [this](const auto& removal) { return m_problems->mayRemove(removal); };
    m_services.findUses = [this](const auto& what, QStringList* places) {
        return m_problems->findUses(what, places);
    };
    m_services.addImages = [this](auto* into, const QStringList& files) {
        App::addImages(m_services, into, files);
    };
    m_messagePanel = new MessagePanel(m_services, m_problems);
    m_findInFiles = new FindInFiles(m_services);
    m_router = new CommandRouter(m_services);
    m_commands = new WindowCommands(this);
    makeDocks();
}

void MainWindow::publishTools()
{
    m_code = new CodeView(m_services, m_middle);
    m_references = new ReferenceCommands(m_services, m_code->editor());
    m_animations = new AnimationCommands(m_services);
    m_thumbnails = new ThumbnailCommands(m_services);
    m_stage = new StageCommands(m_services, m_middle, m_code->workspace(),
                                static_cast<QToolBar*>(m_controls->page("stage")),
                                m_controls->page("onion"));
    m_stage->editor()->shareTree(m_code->textEditor());
    m_code->addEditor(m_stage->editor());
    editors()->add(m_stage->editor(), Zorv::FileID::Animations,
                   {m_middle, m_code->commands(), m_code->editor(), m_code->workspace()});
    m_palettes = new PaletteCommands(m_services);
    m_paint = new PaintCommands(m_services, m_palettes->editor());
    editors()->add(m_paint->editor(), Zorv::FileID::Sprites, {nullptr, m_paint->commands()});
    m_hearing = new Hearing(m_services);
    editors()->add(m_hearing->editor(), Zorv::FileID::Sounds, {nullptr, m_hearing->commands()});
    arrangeTools();
    m_fixes = new QuickFixes(m_services, m_problems, m_messagePanel, m_code->editor());
    addParts();
    connectParts();
    m_services.parts->begin();
    m_actions->place((new RecentMenu(this, this))->menuAction(), "file.open");
    m_controls->fillBars();
    // Both pairs share their shortcuts, so each only works while its widget has the focus.
    keepKeysTo(m_code->editor(), {actionByName("code_line_up"), actionByName("code_line_down")});
    keepKeysTo(m_animations->list(), {actionByName("org_up"), actionByName("org_down")});
    new ContextMenus(this);
    retranslate();
    WindowState::restoreShape(this);
    m_controls->updateVisibility();
}

/// Raises the frame panels above the node tree.
void MainWindow::arrangeTools()
{
    auto* nodes = findChild<QDockWidget*>(QStringLiteral("nodes"));
    tabifyDockWidget(nodes, findChild<QDockWidget*>(QStringLiteral("frame")));
    m_controls->bringForward("frame");
    tabifyDockWidget(findChild<QDockWidget*>(QStringLiteral("organizer")),
                     findChild<QDockWidget*>(QStringLiteral("layers")));
    auto* sprites = findChild<QDockWidget*>(QStringLiteral("sprites"));
    QDockWidget* sounds = addDock(m_hearing->panel(), "sounds", Qt::LeftDockWidgetArea);
    tabifyDockWidget(sprites, sounds);
    tabifyDockWidget(sounds, findChild<QDockWidget*>(QStringLiteral("thumbnails")));
    sprites->raise();
    QDockWidget* references =
        addDock(m_references->panel(), "references", Qt::BottomDockWidgetArea);
    tabifyDockWidget(findChild<QDockWidget*>(QStringLiteral("messages")), references);
    references->hide();
    QDockWidget* costumes = addDock(m_paint->costumes(), "costumes", Qt::BottomDockWidgetArea);
    tabifyDockWidget(findChild<QDockWidget*>(QStringLiteral("messages")), costumes);
    costumes->hide();
    auto* palette = findChild<QDockWidget*>(QStringLiteral("palette"));
    giveRoomAtFirst(palette, {findChild<QDockWidget*>(QStringLiteral("layers")), palette},
                    {RoomOfLayers, RoomOfPalette});
    giveRoomAtFirst(costumes, {costumes}, {RoomOfCostumes});
    giveRoomAtFirst(references, {references}, {RoomOfReferences});
}

/// Hidden panels have no height to set, so wait until they are shown. After that the height is the
/// user's.
void MainWindow::giveRoomAtFirst(QDockWidget* comes, const QList<QDockWidget*>& docks,
                                 const QList<int>& heights)
{
    connect(comes, &QDockWidget::visibilityChanged, this, [=](bool isVisible) {
        auto* host = Zorv::Interface::instance();
        QStringList seen = host->option(SeenKey).toStringList();
        if (isVisible && !seen.contains(comes->objectName())) {
            host->setOption(SeenKey, seen << comes->objectName());
            QTimer::singleShot(0, this, [=] { resizeDocks(docks, heights, Qt::Vertical); });
        }
    });
}

/// The order in which the panel-switching key visits the parts, and in which menu sections are
/// filled.
void MainWindow::addParts()
{
    for (Part* part : std::initializer_list<Part*>{
             m_router,     m_newCommands,   m_opener,           m_gameCommands, m_gameTree,
             m_start,      m_startCommands, m_services.editors, m_sprites,      m_hearing,
             m_stage,      m_paint,         m_palettes,         m_code,         m_references,
             m_animations, m_thumbnails,    m_problems,         m_messagePanel, m_findInFiles,
             m_fixes,      m_runCommands,   m_services.status,  m_commands}) {
        m_services.parts->add(part);
    }
}

// Destroy views before their models.
MainWindow::~MainWindow()
{
    m_services.parts->end();
    delete m_hearing;
    delete m_paint;
    delete m_palettes;
    delete m_stage;
    delete m_code;
    delete m_services.session;
}

void MainWindow::makeDocks()
{
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    m_controls->page("tool");  // created first: beside the tools, above the other panels
    addDock(m_gameTree, "projects", Qt::LeftDockWidgetArea);
    QDockWidget* messages = addDock(m_messagePanel, "messages", Qt::BottomDockWidgetArea);
    addDock(m_sprites->panel(), "sprites", Qt::LeftDockWidgetArea);
    QDockWidget* output = addDock(m_runCommands->panel(), "output", Qt::BottomDockWidgetArea);
    output->hide();
    QDockWidget* found = addDock(m_findInFiles, "find_files", Qt::BottomDockWidgetArea);
    tabifyDockWidget(messages, found);
    found->hide();
    new MessageRoom(this, messages, m_messagePanel);
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

/// Connections between parts that do not know each other.
void MainWindow::connectParts()
{
    PartList* parts = m_services.parts;
    connect(parts, &PartList::updated, this, [this] {
        registry()->setActiveAreas(editors()->areas());
        updateTitle();
    });
    connect(editors(), &EditorRegistry::currentChanged, parts, &PartList::update);
    connect(editors(), &EditorRegistry::modified, parts, &PartList::updateSoon);
    auto* states = new FileStates(session());
    connect(states, &FileStates::changed, parts, &PartList::gameChanged);
    connect(editors(), &EditorRegistry::modified, states, &FileStates::inputChanged);
    connect(m_code->editor(), &Zorv::CodeEditor::markClicked, m_messagePanel,
            &MessagePanel::showMessageOfLine);
    connect(m_services.status, &StatusFields::problemsClicked, m_messagePanel,
            &MessagePanel::comeForward);
    m_paint->editor()->takeDropsOn(m_sprites->panel());
    connect(m_stage, &StageCommands::colourPicked, m_palettes->editor(),
            &FamilyPaletteEditor::selectColour);
    // Render widgets are created on first show; then they need the colour simulation too.
    const SightSwitches* sight = m_palettes->sight();
    connect(m_paint->editor()->spriteWorkspace(), &Zorv::SpriteWorkspace::renderWidgetMade, sight,
            &SightSwitches::apply);
    connect(m_stage->workspace(), &Zorv::GraphicsWorkspace::renderWidgetMade, sight,
            &SightSwitches::apply);
    connect(m_sprites->panel(), &SpritePanel::spriteActivated, m_paint,
            [this](int row) { m_paint->showSprite(m_sprites->panel()->sprites(), row); });
    connect(m_thumbnails->panel(), &Zorv::ThumbnailsEditor::spriteActivated, m_paint,
            [this](int row) { m_paint->showSprite(m_sprites->panel()->sprites(), row); });
    // Queued, because rows change while lines are being parsed.
    const Zorv::OrganizerEditor* organizer = m_animations->organizer();
    connect(
        organizer, &Zorv::OrganizerEditor::currentRowChanged, m_stage,
        [this, organizer] {
            // The text controls both lists, unless the user is in the list.
            if (m_animations->hasList() && m_animations->list() &&
                m_animations->list()->hasFocus()) {
                m_stage->showAnimation(organizer->currentRow());
            }
        },
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

void MainWindow::showDocument(FamilyDocument* document)
{
    m_code->openText(document);
}

void MainWindow::showPlace(FamilyDocument* document, int line, int column, int length)
{
    m_code->showPlace(document, line, column, length);
}

void MainWindow::showSound(int row)
{
    m_hearing->showSound(row);
}

void MainWindow::moveCursor(int line)
{
    m_code->moveCursor(line);
}

void MainWindow::showMiddle()
{
    editors()->focusWorkspace();
}

bool MainWindow::mayClose(const FamilyProject* project, const std::function<void()>& then)
{
    const QList<Zorv::ProjectFile*> files = session()->unkeptFiles(project);
    return (project || m_services.parts->mayEnd(then)) && askAboutUnsaved(files) &&
           editors()->canDiscard(project, files);
}

void MainWindow::updateTitle()
{
    const FamilyDocument* document = tabs()->currentDocument();
    QStringList parts{document ? session()->shownPath(document->fileName()) : QString(),
                      session()->game() ? QDir(session()->folder()).dirName() : QString(),
                      QStringLiteral("Zorv")};
    parts.removeAll(QString());
    if (parts.size() > 1) {
        parts.first() += Modified;
    }
    setWindowTitle(parts.join(QLatin1String(" - ")));
    const FamilyProject* project = m_services.parts->project();
    const bool areSprites = project && FileInput::isUnsaved(project->sprites());
    const bool areSounds = project && FileInput::isUnsaved(project->sounds());
    setWindowModified(FileInput::isUnsaved(document) || areSprites || areSounds);
    m_sprites->panel()->parentWidget()->setWindowModified(areSprites);
    m_hearing->panel()->parentWidget()->setWindowModified(areSounds);
    m_hint->setText(tr("A double click in the tree of projects shows a text."));
    m_empty->setCurrentWidget(session()->game() ? static_cast<QWidget*>(m_hint) : m_start);
}

void MainWindow::retranslate()
{
    for (const PanelTitle& row : panelTitles) {
        if (auto* dock = findChild<QDockWidget*>(QLatin1String(row.name))) {
            dock->setWindowTitle(tr(row.title) + Modified);
        }
    }
    m_actions->retranslate();
    m_controls->retranslate();
    const QList<QDockWidget*> docks = findChildren<QDockWidget*>();
    for (const QDockWidget* dock : docks) {
        nameButton(dock, "qt_dockwidget_closebutton",
                   tr("Close panel %1").arg(dock->windowTitle().remove(Modified)));
        nameButton(dock, "qt_dockwidget_floatbutton",
                   tr("Detach panel %1").arg(dock->windowTitle().remove(Modified)));
    }
    m_services.parts->retranslate();
    updateTitle();
}

/// Parses all texts again: their colours and messages keep the old theme and language.
void MainWindow::parseAgain()
{
    for (const FamilyProject* project : session()->projects()) {
        const QList<FamilyDocument*> documents = project->documents();
        for (FamilyDocument* document : documents) {
            document->rehighlight();
        }
    }
}

void MainWindow::reconfig()
{
    applyLook();
    m_controls->updateVisibility();
    parseAgain();
    m_services.parts->reconfig();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_code) {
        retranslate();
        parseAgain();
    }
}

void MainWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        showMiddle();
    } else {
        QMainWindow::keyPressEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!mayClose(nullptr, [this] { close(); })) {
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

SpritePanel* MainWindow::spritePanel() const
{
    return m_sprites->panel();
}

SoundPanel* MainWindow::soundPanel() const
{
    return m_hearing->panel();
}

FamilyProject* MainWindow::currentProject() const
{
    return m_services.parts->project();
}

QMenu* MainWindow::menuByName(const char* name) const
{
    return m_actions->menu(name);
}

QAction* MainWindow::actionByName(const char* name) const
{
    return registry()->action(QLatin1String(name));
}

}  // namespace App
