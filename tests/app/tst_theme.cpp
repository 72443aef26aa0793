#include "app/look/icon.h"
#include "app/look/theme.h"
#include "app/main/application.h"
#include "support/testtable.h"
#include "windowfixture.h"

#include <QApplication>
#include <QComboBox>
#include <QDirIterator>
#include <QImage>

#include <cmath>

using App::Theme;
using Zorv::CodeParserSyntax;

namespace {

// Of the guidelines for accessible content of the W3C: texts, and pictures that mean something.
constexpr double TextContrast = 4.5;
constexpr double PictureContrast = 3;

double linear(double part)
{
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour)
{
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& first, const QColor& second)
{
    const double a = luminance(first);
    const double b = luminance(second);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// Everything that code can stand on. The ranges around the innermost one are its colour, made
/// lighter or darker by up to this.
QVector<QColor> groundsOfCode(Theme::Kind kind)
{
    const QColor range = Theme::colour(kind, Theme::BlockRange);
    QVector<QColor> grounds{Theme::palette(kind).color(QPalette::Base),
                            Theme::colour(kind, Theme::CurrentLine),
                            Theme::colour(kind, Theme::ParenRange), range};
    for (const int change : {range.value() <= 128 ? 40 : -30, range.value() <= 128 ? 20 : -15}) {
        const auto changed = [change](int part) { return qBound(0, part + change, 255); };
        grounds.append(QColor(changed(range.red()), changed(range.green()), changed(range.blue())));
    }
    return grounds;
}

bool isBright(const QImage& picture)
{
    int bright = 0;
    int all = 0;
    for (int y = 0; y < picture.height(); y += 3) {
        for (int x = 0; x < picture.width(); x += 3) {
            ++all;
            bright += qGray(picture.pixel(x, y)) > 127 ? 1 : 0;
        }
    }
    return bright * 4 > all * 3;
}

}  // namespace

/// Light and dark: can everything be read, and does all of the window change?
class TestTheme : public QObject
{
    Q_OBJECT

private slots:
    void textsCanBeRead_data();
    void textsCanBeRead();
    void iconsStandOut_data();
    void iconsStandOut();
    void changesWhileRunning();
};

void TestTheme::textsCanBeRead_data()
{
    columns<QColor, QColor>("text", "ground");
    using P = QPalette;
    const std::pair<P::ColorRole, P::ColorRole> pairs[] = {
        {P::WindowText, P::Window},
        {P::Text, P::Base},
        {P::Text, P::AlternateBase},
        {P::ButtonText, P::Button},
        {P::PlaceholderText, P::Base},
        {P::ToolTipText, P::ToolTipBase},
        {P::HighlightedText, P::Highlight},
        {P::BrightText, P::Window},
        {P::Link, P::Window},
        {P::Link, P::Base},
        {P::LinkVisited, P::Window},
        {P::LinkVisited, P::Base},
    };
    for (const auto kind : {Theme::Light, Theme::Dark}) {
        const char* name = kind == Theme::Light ? "light" : "dark";
        const QPalette palette = Theme::palette(kind);
        for (const auto group : {P::Active, P::Inactive}) {
            for (const auto& [text, ground] : pairs) {
                QTest::addRow("%s, group %d: role %d on %d", name, group, text, ground)
                    << palette.color(group, text) << palette.color(group, ground);
            }
        }
        const QVector<QColor> grounds = groundsOfCode(kind);
        for (int i = 0; i < CodeParserSyntax::TokenTypeCount; ++i) {
            const QColor token = Theme::token(kind, CodeParserSyntax::TokenType(i));
            for (const QColor& ground : grounds) {
                QTest::addRow("%s: token %d on %s", name, i, qPrintable(ground.name()))
                    << token << ground;
            }
        }
        QTest::addRow("%s: matching brackets", name)
            << Theme::colour(kind, Theme::ParenText) << Theme::colour(kind, Theme::ParenGround);
        for (const auto text :
             {Theme::ErrorText, Theme::AddedText, Theme::RemovedText, Theme::PlaceText}) {
            for (const auto ground : {P::Window, P::Base}) {
                QTest::addRow("%s: colour %d on role %d", name, text, ground)
                    << Theme::colour(kind, text) << palette.color(ground);
            }
        }
    }
}

void TestTheme::textsCanBeRead()
{
    const auto [text, ground] = fetched<QColor, QColor>();
    const double ratio = contrast(text, ground);
    QVERIFY2(ratio >= TextContrast,
             qPrintable(QStringLiteral("%1 on %2: %3").arg(text.name(), ground.name()).arg(ratio)));
}

void TestTheme::iconsStandOut_data()
{
    QTest::addColumn<QString>("file");
    const App::WindowInterface host;  // brings the resources in
    for (const char* folder : {":/icons/icons", ":/zorvl_icons/icons"}) {
        QDirIterator files(QLatin1String(folder), {QStringLiteral("*@2x.png")});
        while (files.hasNext()) {
            const QString file = files.next();
            QTest::newRow(qPrintable(file)) << file;
        }
    }
}

/// A quarter of what is drawn stands out from either ground.
void TestTheme::iconsStandOut()
{
    QFETCH(QString, file);
    const QImage image = QImage(file).convertToFormat(QImage::Format_ARGB32);
    for (const auto kind : {Theme::Light, Theme::Dark}) {
        const QColor ground = Theme::palette(kind).color(QPalette::Window);
        int drawn = 0;
        int seen = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                if (pixel.alpha() > 200) {
                    ++drawn;
                    seen += contrast(pixel, ground) >= PictureContrast ? 1 : 0;
                }
            }
        }
        QVERIFY(drawn > 0);
        QVERIFY2(
            seen * 4 >= drawn,
            qPrintable(
                QStringLiteral("%1 of %2 pixels, kind %3").arg(seen).arg(drawn).arg(int(kind))));
    }
}

/// A window with a text that is open already changes as a whole, and back to the last pixel.
void TestTheme::changesWhileRunning()
{
    const TemporaryGame game;
    WindowFixture fixture;
    fixture.open(game, game.oda());
    const auto look = [&](const char* theme) {
        fixture.host.setOption(QStringLiteral("theme"), QLatin1String(theme));
        fixture.window->reconfig();
        QTest::qWait(400);  // panels follow a little later
        return fixture.window->grab().toImage();
    };
    const auto colours = [&] {
        QSet<QRgb> found;
        for (QTextBlock block = fixture.document()->begin(); block.isValid();
             block = block.next()) {
            const auto formats = block.layout()->formats();
            for (const QTextLayout::FormatRange& range : formats) {
                found.insert(range.format.foreground().color().rgb());
            }
        }
        return found;
    };
    fixture.edit()->setCursorWidth(0);
    const QImage light = look("light");
    const QSet<QRgb> lightColours = colours();
    QVERIFY(isBright(light));
    const QImage dark = look("dark");
    const QSet<QRgb> darkColours = colours();
    QVERIFY(!isBright(dark));
    QVERIFY(lightColours.size() > 2);
    QVERIFY(!lightColours.intersects(darkColours));
    const QPalette darkPalette = Theme::palette(Theme::Dark);
    for (const auto* box : fixture.window->findChildren<QComboBox*>()) {
        const QColor base = box->palette().color(QPalette::Base);
        QVERIFY2(base == darkPalette.color(QPalette::Base), qPrintable(box->objectName()));
    }
    fixture.host.setOption(QStringLiteral("theme"), QStringLiteral("light"));
    fixture.window->reconfig();
    QTRY_COMPARE(fixture.window->grab().toImage(), light);
}

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
