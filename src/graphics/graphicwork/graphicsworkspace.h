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

/// The workspace of what is drawn: the stage, with a time line below it, and the tools that tell
/// what of it is seen.
///
/// There is one for the process. Editors attach their renderer while they are in front. It
/// publishes "view_center_origin" and the checkable "view_main_cross", "view_secondary_cross",
/// "view_extra_cross", "view_rulers", "view_guide_lines", "view_attack_box" and
/// "view_collision_box". What they show, the origin and the zoom are kept in the settings when they
/// change; until there is an origin in them, it is put into the middle of the stage. Numbers of
/// the settings that are out of range become the nearest that is not. What the settings say of the
/// stage's look is handed to all stages.
///
/// The stage is made when the widget is shown first and has no notice: whoever has nothing to draw
/// pays for no GL. On a display whose GL does not work none is ever made, a text stands in its
/// place, and all else works. Main thread only.
class ZORV_EXPORT GraphicsWorkspace : public Workspace
{
    Q_OBJECT

public:
    /// The crosses, as the stage numbers them.
    enum Cross { MainCross = 0, SecondaryCross = 1, ExtraCross = 2 };

    /// Takes the installed host, which must outlive the workspace.
    explicit GraphicsWorkspace(QObject* parent = nullptr);
    ~GraphicsWorkspace() override;

    /// "graphics".
    QString name() const override;

    /// Stage and time line. A host that does not put it into a window leaves it to the workspace.
    QWidget* widget() const override;

    /// Null without usable GL, and until `renderWidgetMade()`.
    RenderWidget* renderWidget() const;
    TimeLineWidget* timeLine() const;

    /// Null until one is attached.
    GraphicsRendererBase* renderer() const;

    /// Shows a renderer, which is not owned and has to be taken off, by null, before it goes. It
    /// gets the zoom of the one before. Zoom levels, crosses and the look are those of a
    /// `GraphicsRenderer`; another kind of renderer is shown, and told of nothing. A press that the
    /// one before has under way ends as if the button had been released.
    void setRenderer(GraphicsRendererBase* renderer);

    /// Enables the tool of a cross, as it is at first. A cross whose tool is disabled is not shown.
    void enableCross(Cross cross, bool isEnabled);

    /// Tells the fields of the extra cross where it stands, in model units. They do not tell back.
    void setExtraAxis(QPoint position);

    /// Shows a text in place of the stage; an empty one shows the stage.
    void setNotice(const QString& text);

    /// What stands there on a display whose GL does not work, in plain words.
    void setUnusableText(const QString& text);

    void activate() override;

    /// Takes the renderer off.
    void deactivate() override;

    /// Takes the look of the stage anew.
    void reconfig() override;
    void retranslate() override;

    /// Emits `statusBarClicked()`.
    void statusClicked() override;

    /// Of the renderer.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

public slots:
    /// Repaints stage and time line.
    void update();

    /// Fits the picture of the ground to the screen of the project in front. Nothing without a
    /// project, or with one that tells no scale.
    void fitBackground();

signals:
    void statusBarClicked();

    /// The person has typed another place of the extra cross, which stands there now.
    void extraAxisChanged(QPoint pos);

    /// There is a `renderWidget()` now.
    void renderWidgetMade();

private:
    std::unique_ptr<GraphicsWorkspacePrivate> d;
};

}  // namespace Zorv
