#pragma once

#include "app/assets/spritepanel.h"
#include "app/stage/familyanimationeditor.h"
#include "app/stage/stagecommands.h"
#include "app/stage/stagerenderer.h"
#include "app/stage/stageview.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/nodes/animationnode.h"
#include "family/nodes/framenode.h"
#include "stillframe.h"
#include "windowfixture.h"

#include <zorv/animation/timeline/timelinewidget.h>
#include <zorv/code/codedoc/contactboxescode.h>
#include <zorv/core/filesystemarchive.h>
#include <zorv/graphics/graphicwork/graphicsworkspace.h>
#include <zorv/graphics/renderwidget.h>

#include <QAction>
#include <QMouseEvent>

/// The colours of the pixels of the sprites, by columns.
inline int colourOfColumn(int x)
{
    return 1 + x / 8 % 3;
}

/// A game with a few frames, and the window with its stage on it.
///
/// The sprites are 32 by 24 pixels, and stand to the left of their axis and above it. Boxes stand
/// to the right.
class StageFixture
{
public:
    static constexpr int SpriteX = -40;
    static constexpr int SpriteY = -30;

    StageFixture()
    {
        game.write("characters/ryn/ryn.character", "[info]\r\nname = \"Ryn\"\r\n[files]\r\n"
                                                   "sprites = \"ryn.sprites\"\r\n"
                                                   "animations = \"basic.anim\"\r\n");
        game.write("characters/ryn/basic.anim", "animation 1 \"One\"\r\n"
                                                "body 40,-40, 59,-11\r\n"
                                                "attack 70,-40, 89,-31\r\n"
                                                "frame 0,0 offset 5,-10 delay 4\r\n"
                                                "body -10,-70, 9,-51\r\n"
                                                "frame 0,1 delay 4 flip h\r\n"
                                                "frame 0,0 delay 4 scale 2,2\r\n"
                                                "\r\n"
                                                "animation 2 \"Two\"\r\n"
                                                "frame 0,1 delay 3\r\n"
                                                "frame 9,9 delay -1\r\n");
        QImage image(32, 24, QImage::Format_Indexed8);
        image.setColorTable({0x00000000, 0xffe02020, 0xff20c020, 0xff2020e0});
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                image.setPixel(x, y, uint(colourOfColumn(x)));
            }
        }
        Family::SpriteFile file;
        QVERIFY(file.insertSprite(-1, {0, 0}, {-SpriteX, -SpriteY}, image));
        QVERIFY(file.insertSprite(0, {0, 1}, {-SpriteX, -SpriteY}, image));
        QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(),
                            game.path("characters/ryn/ryn.sprites"), false));
        window()->resize(1100, 900);
        fixture.open(game, game.ryn(), game.animations());
        goTo(0);
    }

    App::MainWindow* window() const { return fixture.window.get(); }
    App::StageView* view() const { return window()->stage()->view(); }
    App::FamilyAnimationEditor* editor() const { return window()->stage()->editor(); }
    App::StageRenderer* stage() const { return window()->stage()->renderer(); }
    Zorv::RenderWidget* widget() const { return window()->stage()->workspace()->renderWidget(); }
    Zorv::TimeLineWidget* timeLine() const { return window()->stage()->workspace()->timeLine(); }
    Family::FamilyDocument* document() const { return fixture.document(); }
    void trigger(const char* action) const { fixture.action(action)->trigger(); }

    /// Brings the cursor of the text to a line, and the stage after it.
    void goTo(int line) const
    {
        fixture.goTo(line);
        QCoreApplication::processEvents();
    }

    QStringList lines() const { return document()->text().split(QLatin1Char('\n')); }
    int cursorLine() const { return fixture.edit()->textCursor().blockNumber(); }

    /// Where a point of the model stands on the widget.
    QPoint at(QPoint model) const
    {
        return stage()->origin() + QPoint(qRound(float(model.x()) * stage()->zoom()),
                                          qRound(float(model.y()) * stage()->zoom()));
    }

    void press(QPoint place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mousePress(widget(), Qt::LeftButton, modifiers, place);
    }
    void release(QPoint place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseRelease(widget(), Qt::LeftButton, modifiers, place);
    }
    void move(QPoint place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QMouseEvent event(QEvent::MouseMove, place, widget()->mapToGlobal(place), Qt::NoButton,
                          Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(widget(), &event);
    }
    void click(QPoint model, Qt::KeyboardModifiers modifiers = {}) const
    {
        press(at(model), modifiers);
        release(at(model), modifiers);
        QCoreApplication::processEvents();
    }

    /// From a point of the model to another, by way of one between.
    void drag(QPoint from, QPoint to) const
    {
        press(at(from));
        move(at((from + to) / 2));
        move(at(to));
        release(at(to));
        QCoreApplication::processEvents();
    }

    TemporaryGame game;
    QTemporaryDir folder;
    WindowFixture fixture{folder.filePath(QStringLiteral("settings.ini"))};
};
