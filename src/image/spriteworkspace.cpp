#include "image/spriteworkspace.h"

#include "graphics/graphicsrendererbase.h"
#include "graphics/renderplace_p.h"
#include "graphics/renderwidget.h"

#include <QPointer>

namespace Zorv {

class SpriteWorkspacePrivate
{
public:
    ~SpriteWorkspacePrivate()
    {
        if (place && !place->parentWidget()) {
            delete place;
        }
    }

    void attach() const
    {
        if (place && place->widget()) {
            place->widget()->setRenderer(renderer);
        }
    }

    QPointer<RenderPlace> place = new RenderPlace(QStringLiteral("canvas"));
    GraphicsRendererBase* renderer = nullptr;
};

SpriteWorkspace::SpriteWorkspace(QObject* parent)
    : Workspace(parent), d(std::make_unique<SpriteWorkspacePrivate>())
{
    connect(d->place, &RenderPlace::widgetMade, this, [this] {
        d->place->setFocusProxy(renderWidget());
        renderWidget()->setMouseTracking(true);
        d->attach();
        retranslate();
        emit renderWidgetMade();
    });
}

SpriteWorkspace::~SpriteWorkspace()
{
    setRenderer(nullptr);
}

QString SpriteWorkspace::name() const
{
    return QStringLiteral("image");
}

QWidget* SpriteWorkspace::widget() const
{
    return d->place;
}

RenderWidget* SpriteWorkspace::renderWidget() const
{
    return d->place ? d->place->widget() : nullptr;
}

void SpriteWorkspace::setRenderer(GraphicsRendererBase* renderer)
{
    d->renderer = renderer;
    d->attach();
}

void SpriteWorkspace::setNotice(const QString& text)
{
    if (d->place) {
        d->place->setNotice(text);
    }
}

void SpriteWorkspace::setUnusableText(const QString& text)
{
    if (d->place) {
        d->place->setUnusableText(text);
    }
}

void SpriteWorkspace::retranslate()
{
    if (RenderWidget* shown = renderWidget()) {
        shown->setAccessibleName(tr("Canvas"));
    }
}

void SpriteWorkspace::zoomActual()
{
    if (d->renderer) {
        d->renderer->zoomActual();
    }
}

void SpriteWorkspace::zoomIn()
{
    if (d->renderer) {
        d->renderer->addZoom();
    }
}

void SpriteWorkspace::zoomOut()
{
    if (d->renderer) {
        d->renderer->subZoom();
    }
}

}  // namespace Zorv
