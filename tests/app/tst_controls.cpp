#include "windowfixture.h"

#include "app/actions/actionregistry.h"
#include "app/window/editorregistry.h"
#include "support/testtable.h"

#include <zorv/editors/framework/extraeditor.h>
#include <zorv/editors/framework/ownwidgetcontrol.h>
#include <zorv/editors/framework/toolbuttoncontrol.h>
#include <zorv/editors/framework/trwidgetcontrol.h>
#include <zorv/text/translator.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QPointer>
#include <QSlider>
#include <QSpinBox>
#include <QStringListModel>
#include <QToolBar>
#include <QToolButton>
#include <QTreeView>

using Zorv::WidgetControl;

namespace {

class Texts final : public Zorv::Translator
{
public:
    QString trText(unsigned id) const override { return QStringLiteral("Label %1 en").arg(id); }
    QString trToolTip(unsigned id) const override { return QStringLiteral("Tip %1 en").arg(id); }
};

const char* const everywhere[] = {"all", nullptr};
const char* const sprites[] = {"sprites", nullptr};

}  // namespace

/// Publishes tools and writes down what it is told.
class Publisher : public QObject
{
    Q_OBJECT

public:
    QVariantList told;

public slots:
    void numberChosen(int value) { told.append(value); }
    void realChosen(double value) { told.append(value); }
    void switched(bool isOn) { told.append(isOn); }
    void rowChosen(const QModelIndex& index) { told.append(index.row()); }
    void pressed() { told.append(QStringLiteral("pressed")); }

signals:
    void enabled(bool isEnabled);
    void setNumber(int value);
    void setReal(double value);
    void setOn(bool isOn);
    void setText(const QString& text);
};

/// A panel with a widget of its own.
class Panel : public Zorv::ExtraEditor
{
public:
    QString name() const override { return QStringLiteral("own"); }
    QString displayName() const override { return title; }
    QWidget* widget() const override { return m_widget; }

    QString title = QStringLiteral("Own");

private:
    QPointer<QWidget> m_widget = new QLabel;
};

Q_DECLARE_METATYPE(WidgetControl::Kind)

/// Tools that editors publish, as widgets of the window that are really used.
class TestControls : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void tellsAndTakesValues_data();
    void tellsAndTakesValues();
    void showsATextOnly();
    void choosesRows_data();
    void choosesRows();
    void enablesActions();
    void checksActions();
    void placesByName_data();
    void placesByName();
    void showsMenusOnDemand();
    void hidesAMenuWithItsTools();
    void bringsAnEditorForward();
    void staysSwitchedOff();
    void goesWithItsReceiver();
    void placesAFinishedWidget();
    void showsAPanel();
    void enablesInTheAreasOfAControl();
    void refusesWhatHasNoName();

private:
    QWidget* add(const char* name, const Zorv::Control& control)
    {
        return qobject_cast<QWidget*>(m->host.addControl(QLatin1String(name), control));
    }

    QAction* addAction(const char* name, const char* const* areas = everywhere)
    {
        return m->host.createAction(areas, QLatin1String(name), &m_texts, 1, nullptr,
                                    m_publisher.get(), SLOT(pressed()), SIGNAL(enabled(bool)),
                                    nullptr);
    }

    std::unique_ptr<QTemporaryDir> m_settings;
    std::unique_ptr<WindowFixture> m;
    std::unique_ptr<Publisher> m_publisher;
    Texts m_texts;
};

void TestControls::init()
{
    m_settings = std::make_unique<QTemporaryDir>();
    m = std::make_unique<WindowFixture>(m_settings->filePath(QStringLiteral("zorv.ini")));
    m_publisher = std::make_unique<Publisher>();
}

void TestControls::cleanup()
{
    m.reset();
    m_publisher.reset();
}

void TestControls::tellsAndTakesValues_data()
{
    columns<WidgetControl::Kind, QByteArray, QByteArray, QVariant>("kind", "slot", "signal",
                                                                   "told");
    const QByteArray number = SLOT(numberChosen(int));
    row("slider", WidgetControl::Slider, number, QByteArray(SIGNAL(setNumber(int))), QVariant(3));
    row("spin", WidgetControl::SpinEdit, number, QByteArray(SIGNAL(setNumber(int))), QVariant(3));
    row("combo", WidgetControl::ComboBox, number, QByteArray(SIGNAL(setNumber(int))), QVariant(3));
    row("real", WidgetControl::FloatEdit, QByteArray(SLOT(realChosen(double))),
        QByteArray(SIGNAL(setReal(double))), QVariant(3.0));
    row("check", WidgetControl::CheckBox, QByteArray(SLOT(switched(bool))),
        QByteArray(SIGNAL(setOn(bool))), QVariant(false));
}

void TestControls::tellsAndTakesValues()
{
    const auto [kind, slot, signal, told] =
        fetched<WidgetControl::Kind, QByteArray, QByteArray, QVariant>();
    QWidget* widget =
        add("test_value", Zorv::trWidgetControl(kind, 8, &m_texts, 4, m_publisher.get(),
                                                slot.constData(), signal.constData()));
    QVERIFY(widget);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        combo->addItems({"a", "b", "c", "d"});
    }
    QCOMPARE(m_publisher->told, QVariantList());
    emit m_publisher->setNumber(2);
    emit m_publisher->setReal(2);
    emit m_publisher->setOn(true);
    QCOMPARE(m_publisher->told, QVariantList());
    QTRY_VERIFY(widget->isVisible());
    if (auto* check = qobject_cast<QCheckBox*>(widget)) {
        QVERIFY(check->isChecked());
        QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(8, check->height() / 2));
    } else {
        const bool isUp = !qobject_cast<QComboBox*>(widget);
        QTest::keyClick(widget, isUp ? Qt::Key_Up : Qt::Key_Down);
    }
    QCOMPARE(m_publisher->told, QVariantList{told});
}

void TestControls::showsATextOnly()
{
    auto* label = qobject_cast<QLabel*>(
        add("test_lb", WidgetControl(WidgetControl::Label, 10, m_publisher.get(), nullptr,
                                     SIGNAL(setText(QString)))));
    QVERIFY(label);
    emit m_publisher->setText(QStringLiteral("<b>1 / 2</b>"));
    QCOMPARE(label->text(), QStringLiteral("<b>1 / 2</b>"));
    QCOMPARE(label->textFormat(), Qt::PlainText);
}

void TestControls::choosesRows_data()
{
    columns<WidgetControl::Kind, int, int>("kind", "flags", "afterOneClick");
    row("list", WidgetControl::ListView, int(WidgetControl::NoFlags), 0);
    row("tree", WidgetControl::TreeView, int(WidgetControl::NoFlags), 0);
    row("one click", WidgetControl::ListView, int(WidgetControl::SingleClick), 1);
}

void TestControls::choosesRows()
{
    const auto [kind, flags, afterOneClick] = fetched<WidgetControl::Kind, int, int>();
    QStringListModel model({"a", "b", "c"});
    auto* view = qobject_cast<QAbstractItemView*>(
        add("org_rows", WidgetControl(kind, 5, m_publisher.get(), SLOT(rowChosen(QModelIndex)),
                                      nullptr, nullptr, WidgetControl::Flags(flags))));
    QVERIFY(view);
    view->setModel(&model);
    QTRY_VERIFY(view->isVisible());
    const QPoint place = view->visualRect(model.index(1)).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QCOMPARE(m_publisher->told.size(), afterOneClick);
    m_publisher->told.clear();
    if (!afterOneClick) {
        QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(m_publisher->told, QVariantList{1});
        m_publisher->told.clear();
    }
    view->setCurrentIndex(model.index(2));
    QTest::keyClick(view, Qt::Key_Return);
    QCOMPARE(m_publisher->told, QVariantList{2});
}

void TestControls::enablesActions()
{
    QAction* action = addAction("other_thing", sprites);
    auto* button = qobject_cast<QToolButton*>(
        m->host.addControl(QStringLiteral("other_thing"), Zorv::ToolButtonControl(action)));
    QVERIFY(button);
    QTRY_VERIFY(button->isVisible());
    emit m_publisher->enabled(true);
    QVERIFY(!action->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_publisher->told, QVariantList());
    m->window->registry()->setActiveAreas({QStringLiteral("sprites")});
    QVERIFY(action->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(m_publisher->told, QVariantList{QStringLiteral("pressed")});
    // Hiding is not disabling.
    action->setVisible(false);
    action->setVisible(true);
    QVERIFY(action->isEnabled());
    action->setEnabled(false);
    m->window->registry()->setActiveAreas({});
    m->window->registry()->setActiveAreas({QStringLiteral("sprites")});
    QVERIFY(!action->isEnabled());
    emit m_publisher->enabled(false);
    QVERIFY(!action->isEnabled());
}

void TestControls::checksActions()
{
    QAction* action =
        m->host.createAction(everywhere, QStringLiteral("view_thing"), &m_texts, 1, "Ctrl+Alt+9",
                             m_publisher.get(), SLOT(switched(bool)), nullptr, SIGNAL(setOn(bool)));
    emit m_publisher->setOn(true);
    QVERIFY(action->isChecked());
    QCOMPARE(m_publisher->told, QVariantList());
    QTest::keyClick(m->window.get(), Qt::Key_9, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_publisher->told, QVariantList{false});
}

void TestControls::placesByName_data()
{
    columns<QString, QString>("bar", "menu");
    row("org_up", "organizer", "anim");
    row("anim_thing", "animation_bar", "anim");
    row("anim_frame_thing", "frame", "frame");
    row("spr_layer_add", "layers", "layers");
    row("spr_tool_pen", "sprite_tools_bar", "paint");
    row("pal_add", "palette", "pal");
    row("snd_thing", "sound_bar", "snd");
    row("other_thing", "other_bar", "edit");
}

void TestControls::placesByName()
{
    const auto [bar, menu] = fetched<QString, QString>();
    const TemporaryGame game;
    m->window->resize(3000, 900);  // bars have room for all of their tools
    m->open(game, game.ryn(), game.animations());
    const char* name = QTest::currentDataTag();
    const char* area = bar == QLatin1String("organizer") ? "all" : "sprites";
    m->host.setMenuEnabled("pal", "sprites", true);
    QAction* action = addAction(name);
    auto* button = qobject_cast<QWidget*>(
        m->host.addControl(QLatin1String(name), Zorv::ToolButtonControl(action)));
    QCoreApplication::processEvents();
    m->host.setMenuEnabled("snd", "sounds", true);
    m->window->registry()->setActiveAreas(
        {QStringLiteral("animations"), QStringLiteral("sounds"), QLatin1String(area)});
    QTRY_VERIFY(button->isVisible());
    const QWidget* place = button;
    while (place && place->objectName() != bar) {
        place = place->parentWidget();
    }
    QVERIFY(place);
    QVERIFY(m->host.menu(qPrintable(menu))->actions().contains(action));
    QVERIFY(m->window->registry()->isMenuVisible(QLatin1String(name)));
    QVERIFY(m->window->registry()->action(QStringLiteral("show_") + bar)->isVisible());
}

void TestControls::showsMenusOnDemand()
{
    for (const char* name : {"spr", "pal", "snd"}) {
        const QAction* entry = m->host.menu(name)->menuAction();
        m->host.setMenuEnabled(name, "sprites", true);
        QVERIFY(entry->isVisible());
        m->host.setMenuEnabled(name, "sprites", false);
        m->host.menu(name)->addAction(QStringLiteral("More"));
        QVERIFY(!entry->isVisible());
        m->host.setMenuEnabled(name, "sprites", true);
        QVERIFY(entry->isVisible());
    }
    QVERIFY(m->host.menu("anim") && m->host.menu("view"));
}

void TestControls::hidesAMenuWithItsTools()
{
    m->window->resize(3000, 900);
    QAction* action = addAction("snd_thing");
    emit m_publisher->enabled(true);
    auto* button = qobject_cast<QWidget*>(
        m->host.addControl(QStringLiteral("snd_thing"), Zorv::ToolButtonControl(action)));
    QCoreApplication::processEvents();
    m->window->registry()->setActiveAreas({QStringLiteral("sounds")});
    m->host.setMenuEnabled("snd", "sounds", true);
    QTRY_VERIFY(button->isVisible());
    m->host.setMenuEnabled("snd", "sounds", false);
    QVERIFY(!button->isVisible());
    QVERIFY(!m->window->registry()->isMenuVisible(QStringLiteral("snd_thing")));
    // Its keys are gone with it.
    m->window->registry()->setShortcut(QStringLiteral("snd_thing"), QKeySequence("Ctrl+Alt+9"));
    QTest::keyClick(m->window.get(), Qt::Key_9, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_publisher->told, QVariantList());
    m->host.setMenuEnabled("snd", "sounds", true);
    QVERIFY(button->isVisible());
    QTest::keyClick(m->window.get(), Qt::Key_9, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_publisher->told.size(), 1);
    // What comes later is hidden as well.
    m->host.setMenuEnabled("pal", "sprites", false);
    const auto* late = add("pal_sel", WidgetControl(WidgetControl::Slider, 0, m_publisher.get()));
    QTest::qWait(1);
    QVERIFY(!late->isVisible());
}

void TestControls::bringsAnEditorForward()
{
    const TemporaryGame game;
    m->open(game, game.ryn());
    QAction* action = m->window->textEditor()->action();
    QAction* other = m->host.createEditorAction(QStringLiteral("editor_none"), &m_texts, 5);
    QCOMPARE(other->text(), QStringLiteral("Label 5 en"));
    const auto* bar = m->window->findChild<QToolBar*>(QStringLiteral("editors_bar"));
    QTRY_VERIFY(bar->isVisible());
    m->window->gameTree()->setFocus();
    QTest::mouseClick(bar->widgetForAction(action), Qt::LeftButton);
    QVERIFY(m->edit()->hasFocus());
    other->trigger();
    QVERIFY(m->edit()->hasFocus());
}

void TestControls::staysSwitchedOff()
{
    m->host.setMenuEnabled("pal", "sprites", true);
    const auto publish = [this] {
        add("pal_sel", WidgetControl(WidgetControl::Slider, 0, m_publisher.get()));
        add("snd_other", WidgetControl(WidgetControl::Slider, 0, m_publisher.get()));
        m->host.setMenuEnabled("snd", "sounds", true);
        QTest::qWait(1);
    };
    const auto isShown = [this](const char* name) {
        m->window->registry()->setActiveAreas(
            {QStringLiteral("sprites"), QStringLiteral("sounds")});
        return m->window->findChild<QWidget*>(QLatin1String(name))->isVisible();
    };
    publish();
    QTRY_VERIFY(isShown("palette") && isShown("sound_bar"));
    m->window->findChild<QDockWidget*>(QStringLiteral("palette"))->close();
    m->window->registry()->action(QStringLiteral("show_sound_bar"))->trigger();
    QTRY_VERIFY(!isShown("palette") && !isShown("sound_bar"));
    QVERIFY(m->window->close());
    m.reset();
    m = std::make_unique<WindowFixture>(m_settings->filePath(QStringLiteral("zorv.ini")));
    publish();
    QVERIFY(!isShown("palette") && !isShown("sound_bar"));
    m->window->registry()->action(QStringLiteral("show_palette"))->trigger();
    m->window->registry()->action(QStringLiteral("show_sound_bar"))->trigger();
    QTRY_VERIFY(isShown("palette") && isShown("sound_bar"));
}

void TestControls::goesWithItsReceiver()
{
    const QPointer<QAction> action = addAction("other_add");
    emit m_publisher->enabled(true);
    const QPointer<QObject> button =
        m->host.addControl(QStringLiteral("other_add"), Zorv::ToolButtonControl(action));
    const QPointer<QWidget> list = add(
        "other_list", WidgetControl(WidgetControl::ListView, 3, m_publisher.get(),
                                    SLOT(rowChosen(QModelIndex)), nullptr, SIGNAL(enabled(bool))));
    const QPointer<QWidget> slider =
        add("more_sel", WidgetControl(WidgetControl::Slider, 3, m_publisher.get(),
                                      SLOT(numberChosen(int)), SIGNAL(setNumber(int))));
    const auto* panel = m->window->findChild<QToolBar*>(QStringLiteral("other_bar"));
    const auto* bar = m->window->findChild<QToolBar*>(QStringLiteral("more_bar"));
    QTRY_VERIFY(panel->isVisible() && bar->isVisible());
    m_publisher.reset();
    QVERIFY(!action || !action->isEnabled());
    QTRY_VERIFY(!action && !button && !list && !slider);
    QVERIFY(!m->window->registry()->action(QStringLiteral("other_add")));
    // Nothing is left in them.
    QTRY_VERIFY(!panel->isVisible() && !bar->isVisible());
    // And a new publisher takes the place.
    m_publisher = std::make_unique<Publisher>();
    QVERIFY(addAction("other_add"));
    QVERIFY(m->window->registry()->action(QStringLiteral("other_add")));
}

void TestControls::placesAFinishedWidget()
{
    QPointer<QListView> grid = new QListView;
    Zorv::OwnWidgetControl control(grid, m_publisher.get(), SIGNAL(enabled(bool)));
    control.setAreas(sprites);
    QCOMPARE(add("other_view", control), grid.data());
    const auto* panel = m->window->findChild<QToolBar*>(QStringLiteral("other_bar"));
    QVERIFY(panel->isAncestorOf(grid));
    QTRY_VERIFY(panel->isVisible());
    m->window->registry()->setActiveAreas({QStringLiteral("sprites")});
    QVERIFY(!grid->isEnabled());
    emit m_publisher->enabled(true);
    QVERIFY(grid->isEnabled());
    m->window->registry()->setActiveAreas({});
    QVERIFY(!grid->isEnabled());
    // Another one takes the place, and goes first or with its publisher.
    QPointer<QLabel> well = new QLabel;
    add("other_view", Zorv::OwnWidgetControl(well, m_publisher.get()));
    QTRY_VERIFY(!grid);
    QPointer<QLabel> second = new QLabel;
    add("snd_foreground", Zorv::OwnWidgetControl(second));
    delete second.data();
    m_publisher.reset();
    QTRY_VERIFY(!well);
    QTRY_VERIFY(!panel->isVisible());
    QTRY_VERIFY(!m->window->findChild<QToolBar*>(QStringLiteral("sound_bar"))->isVisible());
}

void TestControls::showsAPanel()
{
    auto panel = std::make_unique<Panel>();
    m->window->editors()->addPanel(panel.get());
    const auto* dock = m->window->findChild<QDockWidget*>(QStringLiteral("own"));
    QVERIFY(dock->isAncestorOf(panel->widget()));
    m->host.showExtraEditor(panel.get());
    QTRY_VERIFY(dock->isVisible() && panel->isActive());
    const auto changeLanguage = [this] {
        QEvent change(QEvent::LanguageChange);
        QCoreApplication::sendEvent(m->window.get(), &change);
    };
    panel->title = QStringLiteral("Eigenes");
    changeLanguage();
    QTRY_COMPARE(dock->windowTitle(), QStringLiteral("Eigenes"));
    // It may go before the window.
    panel.reset();
    changeLanguage();
    QTRY_COMPARE(dock->windowTitle(), QString());
}

/// The place of the name says "animations"; what the control says counts.
void TestControls::enablesInTheAreasOfAControl()
{
    WidgetControl box(WidgetControl::CheckBox, 0, m_publisher.get(), SLOT(switched(bool)));
    box.setAreas(sprites);
    Zorv::OwnWidgetControl own(new QLabel, m_publisher.get());
    own.setAreas(sprites);
    for (const QWidget* widget : {add("anim_thing", box), add("anim_label", own)}) {
        for (const char* area : {"sprites", "animations"}) {
            m->window->registry()->setActiveAreas({QLatin1String(area)});
            QCOMPARE(widget->isEnabled(), QLatin1String(area) == QLatin1String("sprites"));
        }
    }
}

void TestControls::refusesWhatHasNoName()
{
    const int before = m->window->findChildren<QAction*>().size();
    QVERIFY(!addAction(""));
    QLabel label;
    QVERIFY(!add("", Zorv::OwnWidgetControl(&label)));
    QVERIFY(!add("", WidgetControl(WidgetControl::CheckBox, 0, nullptr)));
    QVERIFY(!add("pal_view", Zorv::OwnWidgetControl(nullptr)));
    QCOMPARE(m->window->findChildren<QAction*>().size(), before);
}

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
