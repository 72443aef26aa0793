#pragma once

#include "editors/framework/workspace.h"
#include "zorv_export.h"

#include <memory>

namespace Zorv {

class GraphicsRendererBase;
class RenderWidget;
class SpriteWorkspacePrivate;

/// The workspace in which a picture is painted: a canvas, or a text while there is none.
///
/// The render widget is created when the workspace is first shown without a notice. On a display
/// without working GL it is never created, and a text is shown instead. Main thread only.
class ZORV_EXPORT SpriteWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit SpriteWorkspace(QObject* parent = nullptr);
    ~SpriteWorkspace() override;

    /// "image".
    QString name() const override;

    /// Owned by the workspace unless the host puts it into a window.
    QWidget* widget() const override;

    /// Null without working GL, and before `renderWidgetMade()`.
    RenderWidget* renderWidget() const;

    /// Shows a renderer. It is not owned: set null before deleting it.
    void setRenderer(GraphicsRendererBase* renderer);

    /// Shows a text instead of the canvas; an empty text shows the canvas.
    void setNotice(const QString& text);

    /// The text shown on a display without working GL, in plain words.
    void setUnusableText(const QString& text);

    void retranslate() override;

    /// These go to the renderer.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

signals:
    void renderWidgetMade();

private:
    std::unique_ptr<SpriteWorkspacePrivate> d;
};

}  // namespace Zorv
