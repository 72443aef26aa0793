#pragma once

#include "media/tools/colorblindness.h"
#include "zorv_export.h"

#include <QOpenGLWidget>

#include <memory>

class QOpenGLShaderProgram;

namespace Zorv {

class Renderer;
struct RenderWidgetPrivate;

/// The widget that the stage is on. It hands input and painting to the `Renderer` attached to it.
/// The pen of a tablet counts as a mouse.
///
/// Needs a display whose GL works (`isContextUsable()`). A picture of it (`grab()`), or of a window
/// around it, has all that the renderer draws, by GL and by its painter. Main thread only.
class ZORV_EXPORT RenderWidget : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit RenderWidget(QWidget* parent = nullptr);
    ~RenderWidget() override;

    /// Null until one is attached.
    Renderer* renderer() const;

    /// Attaches a renderer, which is not owned and may be attached to one widget at a time; null
    /// detaches. Without one the widget clears to its last colour and ignores input. To the one
    /// that was there a button that is held is released first.
    void setRenderer(Renderer* renderer);

    /// Takes other fragment shaders, for images with a palette and for true colour; null is that
    /// of the library. Either is compiled four times, with GRAYSCALE, LIGHTER, DARKER and none of
    /// them defined. One that does not compile draws nothing. Ignored until `initialize()`.
    ///
    /// What a program has already stays in it, and two `main()` draw nothing: to replace the
    /// library's, call `removeAllShaders()` of each `QOpenGLShaderProgram` child of the widget
    /// first.
    void setCustomPixelShader(const char* indexedSource, const char* rgbaSource);

    /// Shows all that the renderer draws as somebody else sees it, in pictures of the widget, too.
    void setColorSight(const ColorSight& sight);

signals:
    /// GL is ready for the first time, or again after the widget got another context.
    void initialize();

    /// Comes in every draw, when all uniforms of the library are set. A slot may set uniforms and
    /// bind textures; the next draw sets all anew.
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
