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
/// The canvas is made when the workspace is shown first and has no notice. On a display whose GL
/// does not work none is ever made, and a text stands in its place. Main thread only.
class ZORV_EXPORT SpriteWorkspace : public Workspace
{
    Q_OBJECT

public:
    explicit SpriteWorkspace(QObject* parent = nullptr);
    ~SpriteWorkspace() override;

    /// "image".
    QString name() const override;

    /// A host that does not put it into a window leaves it to the workspace.
    QWidget* widget() const override;

    /// Null without usable GL, and until `renderWidgetMade()`.
    RenderWidget* renderWidget() const;

    /// Shows a renderer, which is not owned and has to be taken off, by null, before it goes.
    void setRenderer(GraphicsRendererBase* renderer);

    /// Shows a text in place of the canvas; an empty one shows the canvas.
    void setNotice(const QString& text);

    /// What stands there on a display whose GL does not work, in plain words.
    void setUnusableText(const QString& text);

    void retranslate() override;

    /// Of the renderer.
    void zoomActual() override;
    void zoomIn() override;
    void zoomOut() override;

signals:
    void renderWidgetMade();

private:
    std::unique_ptr<SpriteWorkspacePrivate> d;
};

}  // namespace Zorv
