#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QOpenGLWidget>

#include <memory>

class QOpenGLShaderProgram;

namespace Zorv {

class Renderer;
struct RenderWidgetPrivate;

/// The widget that shows the stage. It forwards input and painting to the attached `Renderer`. A
/// tablet pen counts as a mouse.
///
/// Needs a display with working GL (`isContextUsable()`). A screenshot of it (`grab()`), or of a
/// window around it, contains everything the renderer draws, with GL and with its painter. Main
/// thread only.
class ZORV_EXPORT RenderWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit RenderWidget(QWidget* parent = nullptr);
    ~RenderWidget() override;

    /// Null until one is attached.
    Renderer* renderer() const;

    /// Attaches a renderer; null detaches. Not owned. A renderer can be attached to one widget at a
    /// time. Without one, the widget clears to its last colour and ignores input. The previous
    /// renderer first gets a release of every button still held.
    void setRenderer(Renderer* renderer);

    /// Replaces the fragment shaders, one for images with a palette and one for true colour; null
    /// keeps the library's. Each is compiled four times, with GRAYSCALE, LIGHTER, DARKER or none of
    /// them defined. A shader that does not compile draws nothing. Ignored before `initialize()`.
    ///
    /// Shaders already in a program stay there, and a program with two `main()` draws nothing. To
    /// replace the library's shaders, first call `removeAllShaders()` on each
    /// `QOpenGLShaderProgram` child of the widget.
    void setCustomPixelShader(const char* indexedSource, const char* rgbaSource);

    /// Simulates a colour vision deficiency for everything the renderer draws, screenshots
    /// included.
    void setColorSight(const ColorSight& sight);

signals:
    /// GL is ready: for the first time, or again after the widget got a new context.
    void initialize();

    /// Emitted in every draw, after all uniforms of the library are set. A slot may set uniforms
    /// and bind textures; the next draw sets everything again.
    void setCustomShaderUniformValues(QOpenGLShaderProgram* program);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void tabletEvent(QTabletEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool event(QEvent* event) override;

private:
    friend class Renderer;

    void passPress(QPointF pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void passRelease(QPointF pos, Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
    void passMove(QPointF pos, Qt::KeyboardModifiers modifiers);
    void freePrograms();
    void releaseButtons();

    std::unique_ptr<RenderWidgetPrivate> d;
};

}  // namespace Zorv
