#include "app/stage/stagecommands.h"

#include "app/actions/actionregistry.h"
#include "app/look/icon.h"
#include "app/look/language.h"
#include "app/session/gamesession.h"
#include "app/stage/onioncontrols.h"
#include "app/stage/stagecontroller.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stageroom.h"
#include "app/stage/stagesettings.h"
#include "app/stage/stageview.h"
#include "app/window/jumps.h"
#include "app/window/partlist.h"
#include "app/window/statusfields.h"
#include "app/window/windowservices.h"
#include "family/assets/spritecollection.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/nodepath.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "family/project/familyproject.h"
#include "family/stage/framecomposer.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/core/interface.h>

#include <QAction>
#include <QActionGroup>
#include <QEvent>
#include <QLocale>
#include <QMenu>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QWidgetAction>

namespace App {

using Family::FamilyDocument;
using Zorv::ContactBoxCode;
using Zorv::GraphicsRenderer;

namespace {

const QString ShownKey = QStringLiteral("show_stage");

// The tool bar, in its order; null for a gap.
const char* const barActions[] = {
    "stage_prev_frame",
    "stage_play",
    "stage_stop",
    "stage_next_frame",
    nullptr,
    "stage_draw_attack",
    "stage_draw_body",
    "stage_remove_boxes",
    "stage_capture",
    nullptr,
    "stage_main_cross",
    "stage_secondary_cross",
    "stage_extra_cross",
    "stage_rulers",
    "stage_guide_lines",
    "stage_attack_box",
    "stage_collision_box",
    nullptr,
    "stage_onion_skin",
    nullptr,
    "stage_center_origin",
};

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

bool hasAnimations(const FamilyDocument* document)
{
    return document && (document->kind() == Family::FileKind::Animations ||
                        document->animations()->count() > 0);
}

bool hasFrames(const FamilyDocument* document)
{
    const Family::FamilyAnimations* animations = document ? document->animations() : nullptr;
    for (int row = 0; animations && row < animations->count(); ++row) {
        if (animations->animation(row)->childCount() > 0) {
            return true;
        }
    }
    return false;
}

/// Empty if the project does not tell.
QSize screenOf(const Family::FamilyProject* project)
{
    QString error;
    const QString text = project ? Family::getValue(project->mainDocument(),
                                                    QStringLiteral("info.resolution"), &error)
                                 : QString();
    return {text.section(QLatin1Char(','), 0, 0).toInt(),
            text.section(QLatin1Char(','), 1).toInt()};
}

}  // namespace

StageCommands::StageCommands(const WindowServices& services, QSplitter* page,
                             Zorv::CodeEditor* text)
    : QObject(services.window), m_services(services), m_view(new StageView),
      m_controller(new StageController(m_view->renderer(), m_view->timeLine(), this)),
      m_settings(std::make_unique<StageSettings>(m_view->renderer())),
      m_room(new StageRoom(page, m_view, text, this)), m_onion(new OnionControls),
      m_modes(new QActionGroup(this))
{
    page->insertWidget(0, m_view);
    services.window->installEventFilter(this);
}

StageCommands::~StageCommands() = default;

QVector<ActionRow> StageCommands::actions()
{
    const Members<StageCommands> on(this);
    const auto hasFrame = on(&StageCommands::hasFrame);
    const auto hasShownFrame = on(&StageCommands::hasShownFrame);
    const auto takeMode = on(&StageCommands::takeMode);
    const auto takeVisibility = on(&StageCommands::takeVisibility);
    const std::function<bool()> always;
    const auto isSwitch = ActionRow::Switch;
    // clang-format off
    return {
        {"stage_play",            "anim.play",  QT_TRANSLATE_NOOP("App::Actions", "&Play"),                  "F9",           on(&StageCommands::play),              hasFrame,                    nullptr, isSwitch,          "anim_play"},
        {"stage_stop",            "anim.play",  QT_TRANSLATE_NOOP("App::Actions", "&Stop"),                  "Shift+F9",     on(&StageCommands::stop),              hasFrame,                    nullptr, isSwitch,          "anim_stop"},
        {"stage_prev_frame",      "anim.play",  QT_TRANSLATE_NOOP("App::Actions", "Pre&vious frame"),        "Alt+PgUp",     on(&StageCommands::showPreviousFrame), hasFrame,                    nullptr, ActionRow::Button, "anim_prev_frame"},
        {"stage_next_frame",      "anim.play",  QT_TRANSLATE_NOOP("App::Actions", "&Next frame"),            "Alt+PgDown",   on(&StageCommands::showNextFrame),     hasFrame,                    nullptr, ActionRow::Button, "anim_next_frame"},
        {"stage_onion_skin",      "anim.play",  QT_TRANSLATE_NOOP("App::Actions", "&Onion skin"),            "Ctrl+Shift+O", on(&StageCommands::takeOnionSkin),     hasFrame,                    nullptr, isSwitch,          "anim_onion_skin"},
        {"stage_draw_attack",     "anim.boxes", QT_TRANSLATE_NOOP("App::Actions", "Draw a&ttack boxes"),     "Ctrl+1",       takeMode,                              hasShownFrame,               nullptr, isSwitch,          "anim_box_add_attack"},
        {"stage_draw_body",       "anim.boxes", QT_TRANSLATE_NOOP("App::Actions", "Draw &body boxes"),       "Ctrl+2",       takeMode,                              hasShownFrame,               nullptr, isSwitch,          "anim_box_add_collision"},
        {"stage_remove_boxes",    "anim.boxes", QT_TRANSLATE_NOOP("App::Actions", "Remove se&lected boxes"), {},             on(&StageCommands::removeBoxes),       on(&StageCommands::hasBox),  nullptr, ActionRow::Button, "anim_box_del"},
        {"stage_capture",         "anim.boxes", QT_TRANSLATE_NOOP("App::Actions", "Pick &colour"),           "Ctrl+Shift+K", takeMode,                              hasShownFrame,               nullptr, isSwitch},

        {"view_stage",            "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Sta&ge"),                 "F7",           on(&StageCommands::showStage),         always,                      nullptr, isSwitch},
        {"stage_center_origin",   "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Centre the &origin"),     {},             on(&StageCommands::centerOrigin),      on(&StageCommands::isShown), nullptr, ActionRow::Button, "view_center_origin"},
        {"stage_main_cross",      "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Ax&is of the animation"), {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_main_cross"},
        {"stage_secondary_cross", "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Axis of the spri&te"),    {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_secondary_cross"},
        {"stage_extra_cross",     "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Extr&a cross"),           {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_extra_cross"},
        {"stage_rulers",          "view.stage", QT_TRANSLATE_NOOP("App::Actions", "&Rulers"),                {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_rulers"},
        {"stage_guide_lines",     "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Gui&des"),                {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_guide_lines"},
        {"stage_attack_box",      "view.stage", QT_TRANSLATE_NOOP("App::Actions", "Attac&k boxes"),          {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_attack_box"},
        {"stage_collision_box",   "view.stage", QT_TRANSLATE_NOOP("App::Actions", "&Body boxes"),            {},             takeVisibility,                        always,                      nullptr, isSwitch,          "view_collision_box"},
    };
    // clang-format on
}

void StageCommands::actionsMade()
{
    setUpModes();
    setUpSwitches();
    fillBar();
    connectStage();
    m_settings->apply({});
    followLanguage(this, [this] { giveTexts(); });
}

void StageCommands::connectStage()
{
    const StageRenderer* stage = m_view->renderer();
    StatusFields* status = m_services.status;
    connect(m_view, &StageView::placed, this, [this](QSize size) {
        m_isPlaced = true;
        const StageSettings::Place place = m_settings->restorePlace(size, shownFile());
        m_view->placeOrigin(place.origin, place.size);
        m_controller->placeTaken(place.isKept);
    });
    connect(m_view, &StageView::pointerLeft, status, [status] { status->setStagePlace({}); });
    connect(stage, &GraphicsRenderer::cursorChanged, status, [status](QPoint place) {
        status->setStagePlace(
            tr("Stage: %1, %2").arg(QString::number(place.x()), QString::number(place.y())));
    });
    connect(stage, &GraphicsRenderer::contactDrawingExit, this, &StageCommands::leaveMode);
    connect(stage, &GraphicsRenderer::colorCaptured, this, &StageCommands::colorCaptured);
    connect(stage, &StageRenderer::escapePressed, this, &StageCommands::leaveModeOrStage);
    connect(stage, &StageRenderer::frameKeyPressed, m_controller, &StageController::stepFrame);
    connect(stage, &StageRenderer::playKeyPressed, this,
            [this] { m_controller->isPlaying() ? stop() : play(); });
    connect(m_controller, &StageController::stateChanged, this, &StageCommands::followState);
    connect(m_controller, &StageController::lineRequested, this,
            [this](int line) { m_services.jumps->moveCursor(line); });
    connect(m_onion, &OnionControls::changed, this, &StageCommands::followOnion);
    connect(m_onion, &OnionControls::switched, action("stage_onion_skin"), &QAction::setChecked);
}

void StageCommands::setUpModes()
{
    m_modes->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    for (const char* name : {"stage_draw_attack", "stage_draw_body", "stage_capture"}) {
        m_modes->addAction(action(name));
    }
}

void StageCommands::setUpSwitches()
{
    for (int i = 0; i < StageSettings::PartCount; ++i) {
        const auto part = StageSettings::Part(i);
        action(StageSettings::actionName(part))->setChecked(m_settings->isShown(part));
    }
    const QVariant isShown = Zorv::Interface::instance()->option(ShownKey);
    action("view_stage")->setChecked(!isShown.isValid() || isShown.toBool());
    action("stage_stop")->setChecked(true);
}

void StageCommands::fillBar()
{
    QToolBar* bar = m_view->bar();
    for (const char* name : barActions) {
        name ? bar->addAction(action(name)) : void(bar->addSeparator());
    }
    auto* onion = qobject_cast<QToolButton*>(bar->widgetForAction(action("stage_onion_skin")));
    auto* menu = new QMenu(onion);
    auto* content = new QWidgetAction(menu);
    content->setDefaultWidget(m_onion);
    menu->addAction(content);
    onion->setMenu(menu);
    onion->setPopupMode(QToolButton::MenuButtonPopup);
    addZoomButtons();
}

void StageCommands::addZoomButtons()
{
    for (const auto& row : zoomButtons) {
        auto* button = new QToolButton;
        button->setObjectName(QLatin1String(row.name));
        button->setIcon(icon(QStringLiteral(":/icons/icons/%1.png").arg(QLatin1String(row.icon))));
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::NoFocus);
        connect(button, &QToolButton::clicked, m_view->renderer(), row.zoom);
        m_view->bar()->addWidget(button);
    }
}

void StageCommands::giveTexts()
{
    for (const auto& row : zoomButtons) {
        auto* button = m_view->bar()->findChild<QToolButton*>(QLatin1String(row.name));
        button->setToolTip(tr(row.text));
        button->setAccessibleName(tr(row.text));
    }
    followState();
}

void StageCommands::showDocument(FamilyDocument* document)
{
    m_document = document;
    m_controller->setDocument(document);
    if (document) {
        m_settings->apply(screenOf(projectOf(document)));
    }
    updateState();
    followState();
}

/// A text can come to name another file.
void StageCommands::showProject(Family::FamilyProject* project)
{
    m_controller->setSprites(dynamic_cast<Family::SpriteCollection*>(
        project ? project->file(Zorv::FileID::Sprites) : nullptr));
}

void StageCommands::followRest(int line)
{
    m_controller->followLine(line);
}

QVector<PanelPlace> StageCommands::places()
{
    StageRenderer* stage = m_view->renderer();
    return {{m_view->focusTarget(),
             m_view,
             {{Command::Delete, [this] { m_controller->removeSelectedBoxes(); },
               [this] { return hasBox(); }},
              {Command::ZoomIn, [stage] { stage->addZoom(); }},
              {Command::ZoomOut, [stage] { stage->subZoom(); }},
              {Command::ZoomActual, [stage] { stage->zoomActual(); }}}}};
}

void StageCommands::updateState()
{
    const bool isWanted = action("view_stage")->isChecked() && hasAnimations(m_document);
    if (m_view->isHidden() == isWanted) {
        m_view->setVisible(isWanted);
        m_controller->breakOff();
        takeRoom();
    }
}

StageCommands::Conditions StageCommands::conditions() const
{
    Conditions met;
    met.setFlag(Frame, hasFrame());
    met.setFlag(Shown, isShown());
    met.setFlag(Box, hasBox());
    return met;
}

bool StageCommands::hasFrame() const
{
    return m_controller->frameIndex() >= 0;
}

bool StageCommands::isShown() const
{
    return m_view->isUsable() && !m_view->isHidden() && !m_view->isEmpty();
}

bool StageCommands::hasShownFrame() const
{
    return hasFrame() && isShown();
}

bool StageCommands::hasBox() const
{
    return m_controller->hasSelectedBoxes();
}

void StageCommands::reconfig()
{
    m_settings->apply(screenOf(m_services.parts->project()));
    m_onion->reconfig();
}

void StageCommands::keepPlace() const
{
    if (m_isPlaced) {
        m_settings->keepPlace(m_view->stageSize(), shownFile());
    }
    m_room->keep();
}

void StageCommands::showStage()
{
    Zorv::Interface::instance()->setOption(ShownKey, action("view_stage")->isChecked());
    updateState();
}

void StageCommands::play()
{
    m_controller->play();
    followState();
}

void StageCommands::stop()
{
    m_controller->stop();
    followState();
}

void StageCommands::showPreviousFrame()
{
    m_controller->stepFrame(-1);
}

void StageCommands::showNextFrame()
{
    m_controller->stepFrame(1);
}

void StageCommands::takeMode()
{
    StageRenderer* stage = m_view->renderer();
    if (action("stage_draw_attack")->isChecked()) {
        stage->setDrawContactBoxMode(ContactBoxCode::Attack);
    } else if (action("stage_draw_body")->isChecked()) {
        stage->setDrawContactBoxMode(ContactBoxCode::Collision);
    } else if (action("stage_capture")->isChecked()) {
        stage->setCaptureMode();
    } else {
        stage->setPositioningMode();
    }
    m_controller->breakOff();
    m_controller->followSelection();
    stage->Renderer::update();
    m_view->focusTarget()->setFocus();
}

void StageCommands::leaveMode()
{
    if (QAction* mode = m_modes->checkedAction()) {
        mode->setChecked(false);
    }
    m_view->renderer()->setPositioningMode();
    m_controller->followSelection();
    m_view->renderer()->Renderer::update();
}

void StageCommands::leaveModeOrStage(bool isFree)
{
    isFree ? m_services.jumps->showMiddle() : leaveMode();
}

void StageCommands::removeBoxes()
{
    m_controller->removeSelectedBoxes();
}

void StageCommands::takeOnionSkin()
{
    m_onion->setOn(action("stage_onion_skin")->isChecked());
}

void StageCommands::takeVisibility()
{
    for (int i = 0; i < StageSettings::PartCount; ++i) {
        const auto part = StageSettings::Part(i);
        m_settings->setShown(part, action(StageSettings::actionName(part))->isChecked());
    }
}

void StageCommands::centerOrigin()
{
    m_view->renderer()->centralize();
    m_view->renderer()->Renderer::update();
}

/// The sprite may be turned or mirrored: what is seen is looked for in its pose.
void StageCommands::colorCaptured()
{
    const Family::FrameNode* frame = m_controller->frame();
    const Family::FamilySprite* sprite = m_controller->sprite();
    const StageRenderer* stage = m_view->renderer();
    if (!frame || !sprite) {
        return;
    }
    const int color = Family::FrameComposer::colorAt(
        sprite->image(), m_controller->pose(), stage->zoom(), stage->pointer() - stage->origin());
    if (color >= 0) {
        emit colourPicked(frame->spriteGroup(), frame->spriteNumber(), color);
        m_services.status->showPassing(tr("Colour %1 of the palette").arg(color));
    }
}

void StageCommands::followState()
{
    const bool isPlaying = m_controller->isPlaying();
    action("stage_play")->setChecked(isPlaying);
    action("stage_stop")->setChecked(!isPlaying);
    m_view->setHint(hint());
    takeRoom();
    m_view->setInfo(info());
    followOnion();
    if (m_conditions != conditions()) {
        m_conditions = conditions();
        m_services.parts->updateSoon();
    }
}

void StageCommands::followOnion()
{
    m_view->renderer()->setOnionSkin(m_onion->isOn(), m_onion->effect(), m_onion->opacity());
    m_controller->setOnionFrame(m_onion->isOn() ? m_onion->otherFrame(m_controller->frameIndex(),
                                                                      m_controller->frameCount())
                                                : -1);
}

QString StageCommands::shownFile() const
{
    return m_document ? m_document->fileName() : QString();
}

/// An animation without frames among others leaves the stage as it is: the text would jump under
/// the hands of who types one.
void StageCommands::takeRoom()
{
    m_view->setEmpty(m_controller->frameCount() == 0 && !hasFrames(m_document));
    m_room->update();
}

QString StageCommands::hint() const
{
    if (!m_controller->animation()) {
        return tr("The frames of animations are shown here. A line such as \"animation 0\" begins "
                  "one.");
    }
    return m_controller->frameCount() > 0
               ? QString()
               : tr("This animation has no frames yet. A line such as \"frame 0,0 delay 4\" "
                    "makes one.");
}

QString StageCommands::info() const
{
    const int index = m_controller->frameIndex();
    if (index < 0) {
        return {};
    }
    const QString place =
        tr("%1 / %2").arg(QString::number(index + 1), QString::number(m_controller->frameCount()));
    if (m_controller->isPlaying()) {
        return place + QLatin1String(" - ") +
               tr("%1 FPS").arg(QLocale().toString(m_view->timeLine()->currentFPS(), 'f', 1));
    }
    if (!m_controller->sprite()) {
        const Family::FrameNode* frame = m_controller->frame();
        return place + QLatin1String(" - ") +
               tr("no sprite %1,%2")
                   .arg(QString::number(frame->spriteGroup()),
                        QString::number(frame->spriteNumber()));
    }
    const int ticks = m_controller->ticks().total();
    return place + QLatin1String(" - ") +
           (ticks < 0 ? tr("endless") : tr("%n tick(s)", nullptr, ticks));
}

/// A dialog comes up: nothing moves behind it.
bool StageCommands::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) {
        m_controller->breakOff();
    }
    return QObject::eventFilter(watched, event);
}

QAction* StageCommands::action(const char* name) const
{
    return m_services.actions->action(QLatin1String(name));
}

}  // namespace App
