#pragma once

#include "editors/framework/workspace.h"
#include "zorv_export.h"

#include <QPoint>

#include <memory>

namespace Zorv {

class GraphicsRendererBase;
class GraphicsWorkspacePrivate;
class RenderWidget;
class TimeLineWidget;

/// The graphics workspace: the stage with a time line below it, and the tools that show and hide
/// parts of the stage.
///
/// There is one per process. An editor attaches its renderer while it is in front. The workspace
/// publishes "view_center_origin" and the checkable "view_main_cross", "view_secondary_cross",
/// "view_extra_cross", "view_rulers", "view_guide_lines", "view_attack_box" and
/// "view_collision_box". Their states, the origin and the zoom are saved to the settings on change.
/// While the settings contain no origin, it is placed in the middle of the stage. Numbers in the
/// settings that are out of range are clamped. The settings for the look of the stage are applied
/// to all stages.
///
/// The stage is created when the widget is first shown without a notice, so GL is not started for
/// users who draw nothing. If GL does not work on the display, no stage is created: a text takes
/// its place and everything else works. Main thread only.
class ZORV_EXPORT GraphicsWorkspace : public Workspace
{
    Q_OBJECT

public:
    /// The crosses, numbered like those of the stage.
    enum Cross { MainCross = 0, SecondaryCross = 1, ExtraCross = 2 };

    /// Uses the installed host, which must outlive the workspace.
    explicit GraphicsWorkspace(QObject* parent = nullptr);
    ~GraphicsWorkspace() override;

    /// "graphics".
    QString name() const override;

    /// The stage and the time line. If the host does not put the widget into a window, the
    /// workspace keeps ownership.
    QWidget* widget() const override;

    /// Null without working GL, and until `renderWidgetMade()`.
    RenderWidget* renderWidget() const;
    TimeLineWidget* timeLine() const;

    /// Null until one is attached.
    GraphicsRendererBase* renderer() const;

    /// Shows a renderer and gives it the zoom of the previous one. Not owned: set null before it is
    /// destroyed. Zoom levels, crosses and look apply only to a `GraphicsRenderer`; any other
    /// renderer is shown without them. If the previous renderer has a drag in progress, it ends as
    /// if the button had been released.
    void setRenderer(GraphicsRendererBase* renderer);

    /// Enables or disables the tool of a cross; tools are enabled at first. A cross whose tool is
    /// disabled is hidden.
    void enableCross(Cross cross, bool isEnabled);

    /// Shows the position of the extra cross, in model units, in its input fields. Emits nothing.
    void setExtraAxis(QPoint position);

    /// Shows a text instead of the stage; an empty text shows the stage.
    void setNotice(const QString& text);

    /// The text shown instead of the stage if GL does not work, in plain words.
    void setUnusableText(const QString& text);

    void activate() override;

    /// Detaches the renderer.
    void deactivate() override;

    /// Applies the settings for the look of the stage again.
    void reconfig() override;
    void retranslate() override;

    /// Emits `statusBarClicked()`.
    void statusClicked() override;

    /// Forwarded to the renderer.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

public slots:
    /// Repaints the stage and the time line.
    void update();

    /// Chooses the background picture for the screen size of the current project. Does nothing
    /// without a project, or if the project has no scale.
    void fitBackground();

signals:
    void statusBarClicked();

    /// The user has typed a new position of the extra cross; the cross is already there.
    void extraAxisChanged(QPoint pos);

    /// `renderWidget()` has been created.
    void renderWidgetMade();

private:
    std::unique_ptr<GraphicsWorkspacePrivate> d;
};

}  // namespace Zorv
