#include "graphics/graphicwork/graphicsworkspace.h"

#include "animation/timeline/timelinewidget.h"
#include "core/interface.h"
#include "editors/framework/editortools_p.h"
#include "graphics/graphicwork/graphicsworkspace_p.h"
#include "graphics/renderwidget.h"
#include "graphics/stage/graphicsrenderer.h"
#include "text/zorvtranslator.h"

#include <QAction>

namespace Zorv {

namespace {

constexpr int StoreDelay = 200;  // milliseconds; so a drag is saved once, at its end
constexpr unsigned CenterText = 2;

const char* const areas[] = {"all", nullptr};

const struct
{
    const char* name;
    unsigned textId;
    const char* key;
    const char* enableSignal;
    bool isCheckedAtFirst;
} parts[GraphicsWorkspacePrivate::PartCount] = {
    {"view_main_cross", 3, "show_cross0", SIGNAL(mainCrossEnabled(bool)), true},
    {"view_secondary_cross", 4, "show_cross1", SIGNAL(secondaryCrossEnabled(bool)), false},
    {"view_extra_cross", 5, "show_cross2", SIGNAL(extraCrossEnabled(bool)), false},
    {"view_rulers", 6, "show_rulers", nullptr, false},
    {"view_guide_lines", 7, "show_guides", nullptr, false},
    {"view_attack_box", 8, "show_attack_box", nullptr, false},
    {"view_collision_box", 9, "show_collision_box", nullptr, false},
};

}  // namespace

GraphicsWorkspacePrivate::GraphicsWorkspacePrivate(GraphicsWorkspace* workspace)
    : q(workspace), host(Interface::instance()), place(new StagePlace)
{
    publish();
    storeTimer.setSingleShot(true);
    storeTimer.setInterval(StoreDelay);
    connect(&storeTimer, &QTimer::timeout, this, &GraphicsWorkspacePrivate::storePlace);
    connect(place, &StagePlace::stageMade, this, [this] {
        attach();
        emit q->renderWidgetMade();
    });
    connect(place, &StagePlace::stageResized, this, &GraphicsWorkspacePrivate::centerFirstOrigin);
}

GraphicsWorkspacePrivate::~GraphicsWorkspacePrivate()
{
    delete extraAxis;
    if (place && !place->parentWidget()) {
        delete place;
    }
}

void GraphicsWorkspacePrivate::publish()
{
    EditorTools tools(this);
    tools.publish(
        {"view_center_origin", ToolKind::Action, CenterText, nullptr, SLOT(centerOrigin())}, areas);
    for (int part = 0; part < PartCount; ++part) {
        const auto& row = parts[part];
        tools.publish({row.name, ToolKind::CheckAction, row.textId, row.enableSignal, nullptr},
                      areas);
        QAction* action = tools.action(row.name);
        const QVariant stored = host->option(QLatin1String(row.key));
        action->setChecked(stored.isValid() ? stored.toBool() : row.isCheckedAtFirst);
        // Saved whoever toggles it: the user, or the extra-cross dialog when it closes.
        connect(action, &QAction::toggled, this, [this, key = row.key](bool isChecked) {
            store(key, isChecked);
            visibilityChanged();
        });
        actions[size_t(part)] = action;
    }
    emit mainCrossEnabled(true);
    emit secondaryCrossEnabled(true);
    emit extraCrossEnabled(true);
}

GraphicsRenderer* GraphicsWorkspacePrivate::stage() const
{
    return dynamic_cast<GraphicsRenderer*>(renderer);
}

void GraphicsWorkspacePrivate::visibilityChanged()
{
    GraphicsRenderer* const shown = stage();
    if (!shown) {
        return;
    }
    const auto isOn = [this](Part part) {
        const QAction* action = actions[size_t(part)];
        return action && action->isChecked() && (part > ExtraCross || action->isEnabled());
    };
    shown->setVisibility(isOn(MainCross), isOn(SecondaryCross), isOn(ExtraCross), isOn(AttackBoxes),
                         isOn(CollisionBoxes), isOn(Rulers), isOn(Guides));
    const QAction* extra = actions[ExtraCross];
    showExtraAxis(extra && extra->isChecked(),
                  shown->itemPosition(GraphicsRenderer::ExtraCross, 0));
}

void GraphicsWorkspacePrivate::hideExtraAxis()
{
    if (extraAxis && extraAxis->isVisible()) {
        extraAxisPlace = extraAxis->pos();
        extraAxis->hide();
    }
}

void GraphicsWorkspacePrivate::showExtraAxis(bool isShown, QPoint position)
{
    if (!isShown) {
        hideExtraAxis();
    } else if (!dialog()->isVisible()) {
        if (!extraAxisPlace.isNull()) {
            extraAxis->move(extraAxisPlace);
        }
        extraAxis->display(position);
    }
}

ExAxisDlg* GraphicsWorkspacePrivate::dialog()
{
    if (!extraAxis) {
        extraAxis = new ExAxisDlg(host->mainWindow());
        connect(extraAxis, &ExAxisDlg::extraAxisClosed, this,
                &GraphicsWorkspacePrivate::extraAxisClosed);
        connect(extraAxis, &ExAxisDlg::changeAxis, this, [this](QPoint position) {
            if (GraphicsRenderer* const shown = stage()) {
                shown->setItemPosition(GraphicsRenderer::ExtraCross, position, 0);
            }
            emit q->extraAxisChanged(position);
        });
    }
    return extraAxis;
}

void GraphicsWorkspacePrivate::extraAxisClosed()
{
    extraAxisPlace = extraAxis->pos();
    if (QAction* action = actions[ExtraCross]) {
        action->setChecked(false);
    }
}

void GraphicsWorkspacePrivate::centerOrigin()
{
    if (renderer) {
        renderer->centralize();
        renderer->update();
    }
}

void GraphicsWorkspacePrivate::attach()
{
    if (place && place->stage()) {
        place->stage()->setRenderer(renderer);
    }
}

GraphicsWorkspace::GraphicsWorkspace(QObject* parent)
    : Workspace(parent), d(std::make_unique<GraphicsWorkspacePrivate>(this))
{
    reconfig();
    retranslate();
}

GraphicsWorkspace::~GraphicsWorkspace()
{
    setRenderer(nullptr);
}

QString GraphicsWorkspace::name() const
{
    return QStringLiteral("graphics");
}

QWidget* GraphicsWorkspace::widget() const
{
    return d->place;
}

RenderWidget* GraphicsWorkspace::renderWidget() const
{
    return d->place ? d->place->stage() : nullptr;
}

TimeLineWidget* GraphicsWorkspace::timeLine() const
{
    return d->place ? d->place->timeLine() : nullptr;
}

GraphicsRendererBase* GraphicsWorkspace::renderer() const
{
    return d->renderer;
}

void GraphicsWorkspace::setRenderer(GraphicsRendererBase* renderer)
{
    if (GraphicsRenderer* const old = d->stage()) {
        disconnect(old, nullptr, d.get(), nullptr);
        d->storePlace();
    }
    if (!renderer) {
        d->hideExtraAxis();
    }
    d->renderer = renderer;
    d->attach();
    d->visibilityChanged();
    GraphicsRenderer* const stage = d->stage();
    if (!stage) {
        return;
    }
    stage->setGroundFitted(true);
    d->restoreZoom();
    fitBackground();
    connect(stage, &GraphicsRenderer::viewChanged, d.get(), [this] { d->storeTimer.start(); });
    connect(stage, &QObject::destroyed, d.get(), [this] { d->renderer = nullptr; });
}

void GraphicsWorkspace::enableCross(Cross cross, bool isEnabled)
{
    switch (cross) {
    case MainCross:
        emit d->mainCrossEnabled(isEnabled);
        break;
    case SecondaryCross:
        emit d->secondaryCrossEnabled(isEnabled);
        break;
    case ExtraCross:
        emit d->extraCrossEnabled(isEnabled);
        break;
    }
    d->visibilityChanged();
}

void GraphicsWorkspace::setExtraAxis(QPoint position)
{
    if (d->extraAxis) {
        d->extraAxis->setPosition(position);
    }
}

void GraphicsWorkspace::setNotice(const QString& text)
{
    if (d->place) {
        d->place->setNotice(text);
    }
}

void GraphicsWorkspace::setUnusableText(const QString& text)
{
    if (d->place) {
        d->place->setUnusableText(text);
    }
}

void GraphicsWorkspace::activate()
{
    d->isActive = true;
    d->visibilityChanged();
    if (d->storeTimer.isActive()) {
        d->storePlace();
    }
    d->restoreOrigin();
}

void GraphicsWorkspace::deactivate()
{
    setRenderer(nullptr);
    d->storePlace();
    d->isActive = false;
}

void GraphicsWorkspace::reconfig()
{
    d->applySettings();
}

void GraphicsWorkspace::retranslate()
{
    if (d->place) {
        d->place->retranslate();
    }
}

void GraphicsWorkspace::statusClicked()
{
    emit statusBarClicked();
}

void GraphicsWorkspace::zoomActual()
{
    if (d->renderer) {
        d->renderer->zoomActual();
    }
}

void GraphicsWorkspace::zoomIn()
{
    if (d->renderer) {
        d->renderer->addZoom();
    }
}

void GraphicsWorkspace::zoomOut()
{
    if (d->renderer) {
        d->renderer->subZoom();
    }
}

void GraphicsWorkspace::update()
{
    if (d->renderer) {
        d->renderer->update();
    }
    if (TimeLineWidget* const strip = timeLine()) {
        strip->update();
    }
}

void GraphicsWorkspace::fitBackground()
{
    const int type = d->host->option(QStringLiteral("background_type")).toInt();
    const QSize screen = d->screenOfProject();
    if (type == GraphicsRenderer::ResolutionBackground && d->stage() && screen.isValid()) {
        d->applyBackground(screen);
    }
}

}  // namespace Zorv
