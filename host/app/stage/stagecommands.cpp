#include "app/stage/stagecommands.h"

#include "app/actions/actionregistry.h"
#include "app/look/icon.h"
#include "app/look/language.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stageroom.h"
#include "app/stage/stagesight.h"
#include "app/stage/stageview.h"
#include "app/window/editorregistry.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/familysprite.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/stage/framecomposer.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/core/interface.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/graphics/renderwidget.h>

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QSplitter>
#include <QTextBlock>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

// The stage has three exclusive modes: positioning, drawing boxes and picking a colour. The drawing
// actions belong to the library, picking to this class, so each switches the other off. Escape
// leaves a mode, and in positioning mode the stage.
//
// Texts with animations open with the stage or without it; the user's last choice of either editor,
// or of the action "view_stage", decides (`choose()`). The stage keeps its height while an
// animation is empty, unless no animation of the text has frames.

namespace App {

using Family::FamilyDocument;
using Zorv::GraphicsRenderer;

namespace {

const QString ShownKey = QStringLiteral("show_stage");
const QString TextKey = QStringLiteral("origin_text");

const char* const drawings[] = {"anim_box_add_attack", "anim_box_add_collision"};

const struct
{
    const char* name;
    const char* icon;
    const char* text;
    void (GraphicsRenderer::*zoom)();
} zoomButtons[] = {
    {"stage_zoom_out", "zoom_out", QT_TRANSLATE_NOOP("App::StageCommands", "Smaller (-)"),
     &GraphicsRenderer::subZoom},
    {"stage_zoom_actual", "zoom_actual",
     QT_TRANSLATE_NOOP("App::StageCommands", "One pixel for each of the game (0)"),
     &GraphicsRenderer::zoomActual},
    {"stage_zoom_in", "zoom_in", QT_TRANSLATE_NOOP("App::StageCommands", "Larger (+)"),
     &GraphicsRenderer::addZoom},
};

bool hasFrames(const FamilyDocument* document)
{
    const Family::FamilyAnimations* animations = document ? document->animations() : nullptr;
    for (int row = 0; animations && row < animations->count(); ++row) {
        if (animations->animation(row)->frameCount() > 0) {
            return true;
        }
    }
    return false;
}

}  // namespace

StageCommands::StageCommands(const WindowServices& services, QSplitter* page,
                             Zorv::CodeWorkspace* code, QToolBar* bar, QWidget* onion)
    : QObject(services.window), m_services(services),
      m_workspace(new Zorv::GraphicsWorkspace(this)), m_renderer(new StageRenderer(this)),
      m_editor(new FamilyAnimationEditor(code, m_workspace, m_renderer, this)),
      m_view(new StageView(m_workspace, m_renderer, bar)),
      m_room(new StageRoom(page, m_view, code->editor(), this)),
      m_sight(new StageSight(m_editor, m_renderer, m_room, this)), m_onion(onion)
{
    page->insertWidget(0, m_view);
    m_view->hide();
    const QVariant isShown = Zorv::Interface::instance()->option(ShownKey);
    m_editor->setWanted(!isShown.isValid() || isShown.toBool());
    m_editor->setRemovalCheck(services.mayRemove);
    services.window->installEventFilter(this);
}

// The editor must release the workspace, and the workspace the renderer, while all of them exist.
StageCommands::~StageCommands()
{
    m_editor->setText(nullptr);
    delete m_view;
    delete m_editor;
    delete m_workspace;
}

QVector<ActionRow> StageCommands::actions()
{
    const Members<StageCommands> on(this);
    const std::function<bool()> always;
    const auto isSwitch = ActionRow::Switch;
    // clang-format off
    return {
        {"stage_capture", "anim.parts", QT_TRANSLATE_NOOP("App::Actions", "Pick &colour"), "Ctrl+Shift+K", on(&StageCommands::takeCapture), on(&StageCommands::hasShownFrame), nullptr, isSwitch},
        {"view_stage",    "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Sta&ge"),       "F7",           on(&StageCommands::showStage),   always,                             nullptr, isSwitch},
    };
    // clang-format on
}

void StageCommands::actionsMade()
{
    action("view_stage")->setChecked(m_editor->isWanted());
    connectStage();
    followLanguage(this, [this] { giveTexts(); });
}

void StageCommands::connectStage()
{
    StatusFields* status = m_services.status;
    connect(m_view, &StageView::placed, this, [this] {
        // As the user left it in the last session.
        m_sight->keepPlaceOf(Zorv::Interface::instance()->option(TextKey).toString());
        m_sight->bringSoon();
    });
    connect(m_view, &StageView::pointerLeft, status, [status] { status->setStagePlace({}); });
    connect(m_renderer, &GraphicsRenderer::contactDrawingExit, this, &StageCommands::leaveMode);
    connect(m_renderer, &GraphicsRenderer::colorCaptured, this, &StageCommands::colorCaptured);
    connect(m_renderer, &StageRenderer::escapePressed, this, &StageCommands::leaveModeOrStage);
    connect(m_renderer, &StageRenderer::frameKeyPressed, this,
            [this](int step) { trigger(step < 0 ? "anim_prev_frame" : "anim_next_frame"); });
    connect(m_renderer, &StageRenderer::playKeyPressed, this,
            [this] { m_editor->isPlaying() ? m_editor->stopPlaying() : m_editor->play(); });
    connect(m_editor, &Zorv::AnimationEditor::shownChanged, this, &StageCommands::followState);
    connect(m_editor->action(), &QAction::triggered, this, [this] { choose(true); });
    const Zorv::Editor* code = m_services.editors->byName(QStringLiteral("code"));
    connect(code->action(), &QAction::triggered, this, [this] {
        if (hasAnimations(document())) {
            choose(false);
        }
    });
    connect(m_renderer, &GraphicsRenderer::inputTaken, this, &StageCommands::followState);
    connect(m_workspace->timeLine(), &Zorv::TimeLineWidget::tickChanged, this,
            &StageCommands::leadText);
    for (const char* name : drawings) {
        connect(action(name), &QAction::triggered, this, [this](bool isOn) {
            action("stage_capture")->setChecked(false);
            if (isOn) {
                m_view->focusTarget()->setFocus();
            }
            followState();
        });
    }
}

/// After the library's tools, which were added meanwhile.
void StageCommands::giveTexts()
{
    if (!m_view->bar()->findChild<QToolButton*>(QLatin1String(zoomButtons[0].name))) {
        addOnionMenu();
        addZoomButtons();
    }
    for (const auto& row : zoomButtons) {
        auto* button = m_view->bar()->findChild<QToolButton*>(QLatin1String(row.name));
        button->setToolTip(tr(row.text));
        button->setAccessibleName(tr(row.text));
    }
    followState();
}

void StageCommands::addOnionMenu()
{
    QAction* skin = action("anim_onion_skin");
    if (!m_view->bar()->actions().contains(skin)) {
        m_view->bar()->addAction(skin);
    }
    auto* button = qobject_cast<QToolButton*>(m_view->bar()->widgetForAction(skin));
    auto* menu = new QMenu(m_view);
    auto* content = new QWidgetAction(menu);
    content->setDefaultWidget(m_onion);
    content->setVisible(true);  // the page was hidden until now
    menu->addAction(content);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

void StageCommands::addZoomButtons()
{
    for (const auto& row : zoomButtons) {
        auto* button = new QToolButton;
        button->setObjectName(QLatin1String(row.name));
        button->setIcon(icon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(row.icon))));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, m_renderer, row.zoom);
        m_view->bar()->addWidget(button);
    }
}

void StageCommands::showDocument(FamilyDocument*)
{
    m_workspace->fitBackground();
    updateState();
    followState();
}

void StageCommands::followRest(int line)
{
    if (m_editor->isActive()) {
        m_editor->cursorRests(line);
    }
}

void StageCommands::showAnimation(int index)
{
    if (m_editor->isActive() && !m_editor->isPlaying() && index >= 0 &&
        index != m_editor->animationIndex()) {
        m_editor->selectAnimation(index);
    }
}

QVector<PanelPlace> StageCommands::places()
{
    const auto copy = [this] { trigger("anim_box_copy"); };
    const auto remove = [this] { trigger("anim_box_del"); };
    const auto cut = [copy, remove] {
        copy();
        remove();
    };
    const auto hasBoxes = [this] { return hasBox(); };
    const auto hasFrame = [this] { return hasShownFrame(); };
    return {{m_view->focusTarget(),
             m_view,
             {{Command::Cut, cut, hasBoxes},
              {Command::Copy, copy, hasFrame},
              {Command::Paste, [this] { trigger("anim_box_paste"); }, hasFrame},
              {Command::Delete, remove, hasBoxes},
              {Command::ZoomIn, [this] { m_renderer->addZoom(); }},
              {Command::ZoomOut, [this] { m_renderer->subZoom(); }},
              {Command::ZoomActual, [this] { m_renderer->zoomActual(); }}}}};
}

void StageCommands::updateState()
{
    m_editor->updateAction();
    const bool isInFront = m_editor->isActive();
    if (m_view->isHidden() == isInFront) {
        m_view->setVisible(isInFront);
        takeRoom();
    }
}

bool StageCommands::isShown() const
{
    return m_workspace->renderWidget() && !m_view->isHidden() && !m_view->isEmpty();
}

bool StageCommands::hasShownFrame() const
{
    return isShown() && m_editor->frame();
}

bool StageCommands::hasBox() const
{
    return !m_renderer->selectedContactBoxes().isEmpty();
}

void StageCommands::keepPlace() const
{
    if (m_workspace->renderWidget()) {
        Zorv::Interface::instance()->setOption(TextKey, shownFile());
    }
    m_room->keep();
}

void StageCommands::showStage()
{
    choose(action("view_stage")->isChecked());
}

/// From now on, texts with animations appear with the stage, or without it.
void StageCommands::choose(bool isStage)
{
    action("view_stage")->setChecked(isStage);
    m_editor->setWanted(isStage);
    Zorv::Interface::instance()->setOption(ShownKey, isStage);
    m_services.parts->update();
}

void StageCommands::takeCapture()
{
    if (action("stage_capture")->isChecked()) {
        for (const char* name : drawings) {
            if (action(name)->isChecked()) {
                trigger(name);
            }
        }
        action("stage_capture")->setChecked(true);
        m_renderer->setCaptureMode();
        m_editor->stopPlaying();
    } else {
        m_renderer->setPositioningMode();
    }
    m_renderer->Renderer::update();
    m_view->focusTarget()->setFocus();
    followState();
}

void StageCommands::leaveMode()
{
    for (const char* name : drawings) {
        if (action(name)->isChecked()) {
            trigger(name);
        }
    }
    action("stage_capture")->setChecked(false);
    m_renderer->setPositioningMode();
    m_renderer->Renderer::update();
    followState();
}

void StageCommands::leaveModeOrStage(bool isFree)
{
    isFree ? m_services.jumps->showMiddle() : leaveMode();
}

/// The sprite may be rotated or mirrored, so the pixel is looked up in its pose.
void StageCommands::colorCaptured()
{
    const Family::FrameNode* frame = m_editor->frame();
    const Family::FamilySprite* sprite = m_editor->sprite();
    if (!frame || !sprite) {
        return;
    }
    const int color =
        Family::FrameComposer::colorAt(sprite->image(), m_editor->pose(), m_renderer->zoom(),
                                       m_renderer->pointer() - m_renderer->origin());
    if (color >= 0) {
        emit colourPicked(frame->spriteGroup(), frame->spriteNumber(), color);
        m_services.status->showPassing(tr("Colour %1 of the palette").arg(color));
    }
}

void StageCommands::followState()
{
    m_view->setHint(hint());
    takeRoom();
    m_view->setFault(fault());
    if (m_hasShownFrame != hasShownFrame() || m_hasBox != hasBox()) {
        m_hasShownFrame = hasShownFrame();
        m_hasBox = hasBox();
        m_services.parts->updateSoon();
    }
}

/// The user moves the tick, and the text follows.
void StageCommands::leadText()
{
    const Family::FrameNode* frame = m_editor->frame();
    if (!frame || !m_editor->isEditCodeMode() || m_editor->isPlaying() ||
        !m_workspace->timeLine()->hasFocus()) {
        return;
    }
    const int line = m_editor->codeWorkspace()->editor()->textCursor().blockNumber();
    if (line < frame->firstLine() || line > frame->block().blockNumber()) {
        m_services.jumps->moveCursor(frame->block().blockNumber());
    }
}

/// The editor's document: it is set before the other parts are notified.
FamilyDocument* StageCommands::document() const
{
    return static_cast<FamilyDocument*>(m_editor->document());
}

QString StageCommands::shownFile() const
{
    return document() ? document()->fileName() : QString();
}

/// An empty animation among others does not hide the stage: the text would jump while the user
/// types the first frame.
void StageCommands::takeRoom()
{
    m_view->setEmpty(!m_editor->frame() && !hasFrames(document()));
    m_room->update();
}

QString StageCommands::hint() const
{
    if (!m_editor->currentAnimation()) {
        return tr("The frames of animations are shown here. A line such as \"animation 0\" begins "
                  "one.");
    }
    return m_editor->frame()
               ? QString()
               : tr("This animation has no frames yet. A line such as \"frame 0,0 delay 4\" "
                    "makes one.");
}

QString StageCommands::fault() const
{
    const Family::FrameNode* frame = m_editor->frame();
    return frame && !m_editor->sprite() ? tr("no sprite %1,%2")
                                              .arg(QString::number(frame->spriteGroup()),
                                                   QString::number(frame->spriteNumber()))
                                        : QString();
}

/// Stops playing when a dialog opens.
bool StageCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked && m_editor->isPlaying()) {
        m_editor->stopPlaying();
    }
    return QObject::eventFilter(watched, event);
}

QAction* StageCommands::action(const char* name) const
{
    return m_services.actions->action(QLatin1String(name));
}

void StageCommands::trigger(const char* name) const
{
    if (QAction* found = action(name)) {
        found->trigger();
    }
}

}  // namespace App
