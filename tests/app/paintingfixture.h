#pragma once

#include "windowfixture.h"

#include "app/assets/spritecommands.h"
#include "app/assets/spritepanel.h"
#include "app/paint/paintcommands.h"
#include "family/assets/spritefile.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/editors/palette/colorpalette.h>
#include <zorv/graphics/renderwidget.h>
#include <zorv/image/canvas/imagecanvas.h>
#include <zorv/image/canvas/imagelayer.h>
#include <zorv/image/canvas/imagelayers.h>
#include <zorv/image/imagerenderer.h>
#include <zorv/image/spriteeditor.h>
#include <zorv/image/spriteworkspace.h>
#include <zorv/image/tools/imagetool.h>

#include <QAction>
#include <QMouseEvent>

inline const QVector<QRgb> Colours{0x00000000, 0xffe02020, 0xff20c020, 0xff2020e0};
inline const char SpritePath[] = "characters/ryn/ryn.sprites";

inline QImage picture(int seed)
{
    QImage image(16, 12, QImage::Format_Indexed8);
    image.setColorTable(Colours);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.setPixel(x, y, uint((x / 3 + y / 2 + seed) % 4));
        }
    }
    return image;
}

/// The places at which two pictures of a size differ.
inline QVector<QPoint> differences(const QImage& a, const QImage& b)
{
    QVector<QPoint> places;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            if (a.pixelIndex(x, y) != b.pixelIndex(x, y)) {
                places.append({x, y});
            }
        }
    }
    return places;
}

/// A window with sprites in it, with real keys and a real mouse.
class PaintingTest : public QObject
{
protected:
    void begin(int count = 2);

    Zorv::SpriteEditor* editor() const { return m->window->paint()->editor(); }
    Zorv::ImageCanvas* canvas() const { return editor()->renderer()->canvas(); }
    QWidget* widget() const { return editor()->spriteWorkspace()->renderWidget(); }
    Family::SpriteCollection* sprites() const { return m->window->spritePanel()->sprites(); }
    QImage layer() const { return canvas()->activeLayer()->image(); }
    void trigger(const char* name) const
    {
        QCoreApplication::processEvents();
        QVERIFY2(m->action(name)->isEnabled(), name);
        m->action(name)->trigger();
        QCoreApplication::processEvents();
    }

    void openFirst() const
    {
        doubleClickRow(m->window->spritePanel()->list(), sprites()->index(0));
        QTRY_VERIFY(widget() && widget()->isVisible() && editor()->isActive());
        QTRY_VERIFY(widget()->hasFocus());
        const auto* bar = m->window->findChild<QWidget*>(QStringLiteral("sprites_bar"));
        QTRY_VERIFY(bar->isVisible());  // the canvas has its place by then
        QCoreApplication::processEvents();
    }

    QPoint at(QPoint pixel) const
    {
        const double zoom = canvas()->zoomLevel();
        return editor()->renderer()->zoomedRect().topLeft() +
               QPoint(int((pixel.x() + 0.5) * zoom), int((pixel.y() + 0.5) * zoom));
    }

    void dragTo(QPoint to) const
    {
        QMouseEvent move(QEvent::MouseMove, at(to), widget()->mapToGlobal(at(to)), Qt::NoButton,
                         Qt::LeftButton, {});
        QCoreApplication::sendEvent(widget(), &move);
    }

    void stroke(QPoint from, QPoint to) const
    {
        QTest::mousePress(widget(), Qt::LeftButton, {}, at(from));
        dragTo(to);
        QTest::mouseRelease(widget(), Qt::LeftButton, {}, at(to));
        QCoreApplication::processEvents();
    }

    std::unique_ptr<TemporaryGame> m_game;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<WindowFixture> m;
};

inline void PaintingTest::begin(int count)
{
    m_game = std::make_unique<TemporaryGame>();
    m_game->write("characters/ryn/ryn.character",
                  "[info]\r\nname = \"Ryn\"\r\n[files]\r\nsprites = \"ryn.sprites\"\r\n"
                  "animations = \"basic.anim\"\r\n");
    Family::SpriteFile file;
    for (int i = 0; i < count; ++i) {
        QVERIFY(file.insertSprite(i - 1, {quint16(i / 3), quint16(i % 3)}, {8, 11}, picture(i)));
    }
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), m_game->path(SpritePath), false));
    m_folder = std::make_unique<QTemporaryDir>();
    m = std::make_unique<WindowFixture>(m_folder->filePath(QStringLiteral("zorv.ini")));
    m->window->resize(1200, 900);
    m->open(*m_game, m_game->ryn(), m_game->animations());
}
