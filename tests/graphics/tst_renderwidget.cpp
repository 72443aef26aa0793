#include "graphics/renderwidget.h"

#include "graphics/canvas.h"
#include "support/testtable.h"

#include <QOpenGLShaderProgram>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTabletEvent>
#include <QWheelEvent>

/// Input, shaders, and renderers and windows that come and go.
class TestRenderWidget : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void takesOtherShaders_data();
    void takesOtherShaders();
    void setsAnewWhatAListenerChanged();
    void passesInputOn();
    void penIsAMouse();
    void tellsWhatIsLost();
    void isGrabbedWhole();
    void showsWhatOthersSee();
    void partsAtAnyTime();
    void goesToAnotherWindow_data();
    void goesToAnotherWindow();
};

void TestRenderWidget::initTestCase()
{
    QVERIFY(isContextUsable());
}

void TestRenderWidget::init()
{
    s = std::make_unique<Fixture>();
    QVERIFY(QTest::qWaitForWindowExposed(&s->widget));
}

void TestRenderWidget::cleanup()
{
    s.reset();
}

void TestRenderWidget::takesOtherShaders_data()
{
    columns<bool, QByteArray, QRgb>("replaced", "source", "expected");
    const QByteArray tinted = "uniform highp float opacity;\n"
                              "uniform highp float tint;\n"
                              "void main() {\n"
                              "#if defined(LIGHTER)\n"
                              "    gl_FragColor = vec4(tint, 1.0, opacity, 1.0);\n"
                              "#else\n"
                              "    gl_FragColor = vec4(tint, 0.0, opacity, 1.0);\n"
                              "#endif\n"
                              "}\n";
    QTest::newRow("in place of those of the library") << true << tinted << qRgb(51, 255, 102);
    QTest::newRow("beside them") << false << tinted << Ground;
    QTest::newRow("with a fault") << true << QByteArray("void main() { no }\n") << Ground;
}

// A listener may leave GL as it likes.
void TestRenderWidget::takesOtherShaders()
{
    QFETCH(bool, replaced);
    QFETCH(QByteArray, source);
    QFETCH(QRgb, expected);
    const auto handler = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) {});  // faults of shaders
    if (replaced) {
        for (auto* program : s->widget.findChildren<QOpenGLShaderProgram*>()) {
            program->removeAllShaders();
        }
    }
    s->widget.setCustomPixelShader(source.constData(), source.constData());
    qInstallMessageHandler(handler);
    connect(&s->widget, &RenderWidget::setCustomShaderUniformValues,
            [](QOpenGLShaderProgram* program) {
                program->setUniformValue("tint", 0.2F);
                s->canvas.glActiveTexture(GL_TEXTURE3);
            });
    Texture image(inColor(indices(2, 2), palette(1)));
    s->canvas.draw = [&] {
        s->canvas.glDrawImage(placed({0, 0, 9, 9}), &image, nullptr, 0, 0.4F, true, 2);
        s->canvas.glDrawImage(placed({9, 0, 9, 9}), &image, nullptr, 0, 0.4F, true, 2);
    };
    const QImage actual = painted();
    QCOMPARE(QColor(actual.pixel(4, 4)), QColor(expected));
    QCOMPARE(QColor(actual.pixel(13, 4)), QColor(expected));
}

void TestRenderWidget::setsAnewWhatAListenerChanged()
{
    Texture image(indices(4, 4));
    Texture colors(palette(1).data());
    Texture other(palette(2).data());
    s->canvas.draw = [&] {
        for (int x : {0, 20, 40}) {
            s->canvas.glDrawImage(placed({x, 0, 8, 8}), &image, &colors, 0, 1, true, 0);
        }
    };
    const QImage expected = painted();
    int draws = 0;
    connect(&s->widget, &RenderWidget::setCustomShaderUniformValues,
            [&](QOpenGLShaderProgram* program) {
                if (draws++ == 0) {
                    for (const GLenum unit : {GL_TEXTURE0, GL_TEXTURE1}) {
                        s->canvas.glActiveTexture(unit);
                        s->canvas.glBindTexture(GL_TEXTURE_2D, other.id);
                    }
                    program->setUniformValue("mask", 0);
                    program->setUniformValue("opacity", 0.0F);
                    program->setUniformValue("matrix", placed({0, 20, 5, 5}));
                    s->canvas.glActiveTexture(GL_TEXTURE2);
                }
            });
    const QImage actual = painted();
    QCOMPARE(draws, 3);
    QCOMPARE(actual.copy(20, 0, 44, 48), expected.copy(20, 0, 44, 48));
}

void TestRenderWidget::passesInputOn()
{
    RenderWidget& widget = s->widget;
    QTest::keyClick(&widget, Qt::Key_A, Qt::KeypadModifier);
    QTest::mousePress(&widget, Qt::RightButton, Qt::NoModifier, QPoint(3, 4));
    QTest::mouseRelease(&widget, Qt::RightButton, Qt::NoModifier, QPoint(5, 6));
    QMouseEvent move(QEvent::MouseMove, QPointF(3.6, -2.4), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &move);
    QStringList expected = {QStringLiteral("press 65 %1").arg(int(Qt::KeypadModifier)),
                            "release 65", "down 3,4 2", "up 5,6", "move 4,-2"};
    for (QPoint angle :
         {QPoint(0, 120), QPoint(0, -240), QPoint(30, 15), QPoint(-5, 5), QPoint()}) {
        QWheelEvent wheel({5, 5}, {5, 5}, {}, angle, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&widget, &wheel);
        QT_WARNING_PUSH
        QT_WARNING_DISABLE_DEPRECATED
        expected += QStringLiteral("wheel %1").arg(wheel.delta());
        QT_WARNING_POP
    }
    s->canvas.events.removeAll("move 3,4");  // of the pointer that the test moves
    QCOMPARE(s->canvas.events.join("; "), expected.join("; "));
    QVERIFY(widget.hasMouseTracking());
}

// Down once, whatever is pressed on it meanwhile; without a second call as a mouse; and it may
// leave the widget on its way.
void TestRenderWidget::penIsAMouse()
{
    struct Step
    {
        QEvent::Type type;
        QPointF pos;
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
    };
    for (const Step& step :
         {Step{QEvent::TabletMove, {1.2, 2}, Qt::NoButton, {}},
          Step{QEvent::TabletPress, {3.6, 4}, Qt::LeftButton, Qt::LeftButton},
          Step{QEvent::TabletPress, {3, 4}, Qt::RightButton, Qt::LeftButton | Qt::RightButton},
          Step{QEvent::TabletRelease, {3, 4}, Qt::RightButton, Qt::LeftButton},
          Step{QEvent::TabletMove, {80, 5}, Qt::NoButton, Qt::LeftButton},
          Step{QEvent::Leave, {}, Qt::NoButton, {}},
          Step{QEvent::TabletRelease, {6, 7.3}, Qt::LeftButton, {}},
          Step{QEvent::TabletRelease, {6, 7}, Qt::LeftButton, {}},
          Step{QEvent::Leave, {}, Qt::NoButton, {}}}) {
        QTabletEvent pen(step.type, step.pos, step.pos, QTabletEvent::Stylus, QTabletEvent::Pen, 1,
                         0, 0, 0, 0, 0, Qt::NoModifier, 1, step.button, step.buttons);
        QEvent leave(QEvent::Leave);
        QEvent& event = step.type == QEvent::Leave ? leave : pen;
        QCoreApplication::sendEvent(&s->widget, &event);
        QVERIFY(event.isAccepted());
    }
    QCOMPARE(s->canvas.events.join("; "),
             QStringLiteral("move 1,2; down 4,4 1; move 80,5; up 6,7; left"));
    QCOMPARE(s->canvas.pointer, QPointF(6, 7.3));
}

void TestRenderWidget::tellsWhatIsLost()
{
    RenderWidget& widget = s->widget;
    const auto lost = [&] {
        QStringList events;
        std::swap(events, s->canvas.events);
        return events.filter(QStringLiteral("lost")).join("; ");
    };
    QFocusEvent focus(QEvent::FocusOut);
    QCoreApplication::sendEvent(&widget, &focus);
    QCOMPARE(lost(), QStringLiteral("focus lost"));
    widget.setEnabled(false);
    widget.setEnabled(true);
    QCOMPARE(lost(), QString());
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    widget.setEnabled(false);
    QCOMPARE(lost(), QStringLiteral("grab lost"));
    widget.setEnabled(true);
    QCOMPARE(lost(), QString());
    widget.hide();
    QCOMPARE(lost(), QStringLiteral("grab lost"));
}

// The widget by itself and in a window, as often as one likes, and painting goes on as before.
void TestRenderWidget::isGrabbedWhole()
{
    Texture image(inColor(indices(8, 8), palette(1)));
    s->canvas.underneath = [](QPainter& painter) {
        QLinearGradient gradient(0, 0, 30, 0);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::yellow);
        painter.fillRect(0, 0, 30, 20, gradient);
        painter.drawText(QRect(30, 0, 30, 20), QStringLiteral("text"));
    };
    s->canvas.draw = [&] {
        s->canvas.glDrawImage(placed({20, 10, 16, 16}), &image, nullptr, 0, 1, true, 0);
    };
    const QImage expected = painted();
    QCOMPARE(qRed(expected.pixel(2, 2)), 255);
    QVERIFY(qGreen(expected.pixel(2, 2)) < qGreen(expected.pixel(28, 2)));
    QWidget window;
    window.resize(Size + QSize(20, 20));
    s->widget.setParent(&window);
    const auto parting = qScopeGuard([] { s->widget.setParent(nullptr); });
    s->widget.move(10, 10);
    s->widget.resize(Size);
    s->widget.show();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(s->widget.grab().toImage().convertToFormat(QImage::Format_RGB32), expected);
        const QImage whole = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
        QCOMPARE(whole.copy(QRect(QPoint(10, 10), Size)), expected);
        QCOMPARE(painted(), expected);
    }
}

/// As the library counts it: greys to the byte, other colours but for rounding.
void TestRenderWidget::showsWhatOthersSee()
{
    QImage shown(Size, QImage::Format_RGB32);
    for (int i = 0; i < Size.width() * Size.height(); ++i) {
        const QRgb other = qRgb(i * 7 % 256, i / 5 % 256, i * 31 % 256);
        shown.setPixel(i % Size.width(), i / Size.width(), i < 256 ? qRgb(i, i, i) : other);
    }
    s->canvas.underneath = [&](QPainter& painter) { painter.drawImage(0, 0, shown); };
    for (const auto sight :
         {ColorBlindness::Protanopia, ColorBlindness::Deuteranopia, ColorBlindness::Tritanopia}) {
        s->widget.setColorSight(sight);
        const QImage seen = painted();
        const QImage expected = seenWith(sight, shown);
        for (int i = 0; i < Size.width() * Size.height(); ++i) {
            const QPoint at(i % Size.width(), i / Size.width());
            const QRgb is = seen.pixel(at);
            const QRgb wanted = expected.pixel(at);
            const int most =
                qMax(qMax(qAbs(qRed(is) - qRed(wanted)), qAbs(qGreen(is) - qGreen(wanted))),
                     qAbs(qBlue(is) - qBlue(wanted)));
            QVERIFY2(most <= (i < 256 ? 0 : 1), qPrintable(QColor(shown.pixel(at)).name()));
        }
    }
    s->widget.setColorSight({});
    QCOMPARE(painted(), shown);
}

void TestRenderWidget::partsAtAnyTime()
{
    RenderWidget& widget = s->widget;
    painted();
    QCOMPARE(s->canvas.size, Size);
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    widget.setRenderer(nullptr);
    QVERIFY(!s->canvas.widget());
    s->canvas.update();
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(8, 9));
    QVERIFY(s->canvas.events.contains("up 3,4"));
    QVERIFY(!s->canvas.events.contains("up 8,9"));
    QCOMPARE(painted(), ground());

    auto other = std::make_unique<Canvas>();
    other->underneath = [&](QPainter&) { widget.setRenderer(nullptr); };
    widget.setRenderer(other.get());
    painted();
    QVERIFY(!widget.renderer());

    // The one that dies leaves the other.
    widget.setRenderer(other.get());
    QTest::mousePress(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    other.reset();
    QTest::mouseRelease(&widget, Qt::LeftButton, Qt::NoModifier, QPoint(3, 4));
    QVERIFY(!widget.renderer());
    auto second = std::make_unique<RenderWidget>();
    widget.setRenderer(&s->canvas);
    second->setRenderer(&s->canvas);
    QVERIFY(!widget.renderer());
    QCOMPARE(s->canvas.widget(), second.get());
    second.reset();
    QVERIFY(!s->canvas.widget());

    widget.setRenderer(&s->canvas);
    widget.resize(1, 1);
    QCOMPARE(painted().size(), QSize(1, 1));
    QCOMPARE(painted().pixel(0, 0), Ground);
}

void TestRenderWidget::goesToAnotherWindow_data()
{
    QTest::addColumn<bool>("keepsContext");
    QTest::newRow("with its context") << true;
    QTest::newRow("with a new context") << false;
}

void TestRenderWidget::goesToAnotherWindow()
{
    QFETCH(bool, keepsContext);
    const QImage colors = inColor(indices(13, 9), palette(1));
    Texture texture(colors);
    s->canvas.draw = [&] {
        setAlphaBlending();
        s->canvas.glDrawImage(placed({3, 4, 13, 9}), &texture, nullptr, 0, 1, true, 0);
    };
    const QImage before = painted();
    QSignalSpy spy(&s->widget, &RenderWidget::initialize);
    const char* const tooLate =
        "Attribute Qt::AA_ShareOpenGLContexts must be set before QCoreApplication is created.";
    QTest::ignoreMessage(QtWarningMsg, tooLate);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts, keepsContext);
    QWidget window;
    window.resize(200, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    s->widget.setParent(&window);
    s->widget.show();
    const QImage after = painted();
    s->widget.setParent(nullptr);
    s->widget.show();
    const QImage back = painted();
    QTest::ignoreMessage(QtWarningMsg, tooLate);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    QCOMPARE(after, before);
    QCOMPARE(back, before);
    QCOMPARE(spy.size(), keepsContext ? 0 : 2);
    QCOMPARE(s->widget.findChildren<QOpenGLShaderProgram*>().size(), 8);
}

ZORV_GL_TEST_MAIN(TestRenderWidget)
#include "tst_renderwidget.moc"
