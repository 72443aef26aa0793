#pragma once

#include "app/animations/animationcommands.h"
#include "app/code/codetexteditor.h"
#include "app/code/codeview.h"
#include "app/code/documenttabs.h"
#include "app/code/nodemodel.h"
#include "app/game/gametree.h"
#include "app/main/mainwindow.h"
#include "app/main/windowinterface.h"
#include "app/messages/messagepanel.h"
#include "app/messages/problemmodel.h"
#include "app/messages/problemwatch.h"
#include "app/session/gamesession.h"
#include "app/window/statusfields.h"
#include "family/assets/soundfile.h"
#include "family/assets/spritefile.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/project/familyproject.h"
#include "support/folders.h"
#include "support/planneddialogs.h"

#include <zorv/core/filesystemarchive.h>
#include <zorv/editors/code/codeeditor.h>
#include <zorv/editors/code/codeworkspace.h>
#include <zorv/editors/organizer/organizereditor.h>

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <memory>

/// Answers the dialog of images that come in, once it is there.
inline void answerImages(bool isAccepted, bool crops = false)
{
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog || dialog->objectName() != QLatin1String("images_dialog")) {
            return;
        }
        timer->deleteLater();
        timer->stop();
        dialog->findChild<QCheckBox*>()->setChecked(crops);
        const auto button = isAccepted ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
    });
    timer->start(5);
}

/// A game folder of two characters on disk.
class TemporaryGame
{
public:
    TemporaryGame()
    {
        write("characters/ryn/ryn.character", "[info]\r\n"
                                              "name = \"Ryn\"\r\n"
                                              "[files]\r\n"
                                              "code = \"moves.code\"\r\n"
                                              "animations = \"basic.anim\"\r\n"
                                              "[constants]\r\n"
                                              "life = 1000\r\n"
                                              "[.walk]\r\n"
                                              "forward = 2.5\r\n"
                                              "back = -2\r\n");
        write("characters/ryn/moves.code", "[move jab]\r\nanimation = 1\r\npriority = 2\r\n");
        write("characters/ryn/basic.anim", "animation 1 \"One\"\r\n"
                                           "body 0,0, 9,9\r\n"
                                           "frame 0,0 loop\r\n"
                                           "\r\n"
                                           "animation 2 \"Two\"\r\n"
                                           "frame 0,1 loop\r\n"
                                           "\r\n"
                                           "animation 3 \"Three\"\r\n"
                                           "frame 0,2 loop\r\n");
        write("characters/oda/oda.character", "[info]\r\n"
                                              "name = \"Oda\"\r\n"
                                              "[constants]\r\n"
                                              "life = full\r\n"
                                              "power = some\r\n"
                                              "[.walk]\r\n"
                                              "forward = 2\r\n"
                                              "back = 2\r\n");
    }

    /// Gives one of them sprites and sounds, none so far.
    void addAssets() const
    {
        write("characters/ryn/ryn.character",
              read("characters/ryn/ryn.character")
                  .replace("[files]\r\n", "[files]\r\n"
                                          "sprites = \"a.sprites\"\r\n"
                                          "sounds = \"a.sounds\"\r\n"));
        auto* disk = Zorv::FileSystemArchive::instance();
        QVERIFY(Family::SpriteFile().toFile(*disk, path("characters/ryn/a.sprites"), true));
        QVERIFY(Family::SoundFile().toFile(*disk, path("characters/ryn/a.sounds"), true));
    }

    QString root() const { return QDir(m_dir.path()).canonicalPath(); }
    QString path(const QString& name) const { return root() + QLatin1Char('/') + name; }
    QString ryn() const { return path("characters/ryn/ryn.character"); }
    QString animations() const { return path("characters/ryn/basic.anim"); }
    QString oda() const { return path("characters/oda/oda.character"); }

    void write(const QString& name, const QByteArray& data) const
    {
        QVERIFY(writeFile(path(name), data));
    }

    QByteArray read(const QString& name) const { return readFile(path(name)); }

private:
    QTemporaryDir m_dir;
};

/// The window on settings of its own, with dialogs that answer by plan.
class WindowFixture
{
public:
    /// The settings are those of the file, so that a second fixture sees what the first one kept;
    /// by default nobody else's.
    explicit WindowFixture(const QString& settingsFile = {})
        : settings(settingsFile.isEmpty() ? folder.filePath("settings.ini") : settingsFile,
                   QSettings::IniFormat),
          host(&settings)
    {
        Operations::startHost(&host);
        window = std::make_unique<App::MainWindow>();
        host.setWindow(window.get());
        window->show();
        window->activateWindow();  // a bare X server does not do it
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    QTemporaryDir folder;
    QSettings settings;
    App::WindowInterface host;
    PlannedDialogs dialogs;
    std::unique_ptr<App::MainWindow> window;

    /// Null while no text is open.
    Zorv::CodeEditor* edit() const { return window->currentEdit(); }
    QTreeView* tree() const { return window->textEditor()->tree(); }
    Family::FamilyDocument* document() const { return window->tabs()->currentDocument(); }
    App::TextPlace place() const { return window->tabs()->placeOf(document()); }
    void goTo(int line, int column = 0, int length = 0) const
    {
        window->textEditor()->goTo(line, column, length);
    }
    QAction* action(const char* name) const { return window->actionByName(name); }

    /// Opens the game and a file of it.
    void open(const TemporaryGame& game, const QString& mainFile, const QString& file = {})
    {
        QVERIFY(window->openPath(game.root()));
        QVERIFY(window->openFile(mainFile));
        QVERIFY(file.isEmpty() || window->openFile(file));
        QVERIFY(window->problems()->settle());
    }

    /// How many problems there are, when all that was done is checked.
    QString problemsShown() const
    {
        return window->problems()->settle() ? window->status()->problemText() : QString();
    }

    /// A key in the text in front, as the person presses it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(edit(), key, modifiers);
    }

    void type(const QString& text) const { QTest::keyClicks(edit(), text); }
};

/// A key in a widget that has the keyboard since a while. Ctrl does not stay down behind it, as it
/// does for lists after a key of QTest's.
inline void pressIn(QWidget* widget, const QKeySequence& key)
{
    widget->setFocus();
    QCoreApplication::processEvents();
    QTest::keyClick(widget, Qt::Key(key[0] & ~int(Qt::KeyboardModifierMask)),
                    Qt::KeyboardModifiers(key[0] & int(Qt::KeyboardModifierMask)));
    QTest::keyRelease(widget, Qt::Key_Control);
    QCoreApplication::processEvents();
}

/// A double click in the middle of a row.
inline void doubleClickRow(QAbstractItemView* view, const QModelIndex& index)
{
    QVERIFY(index.isValid());
    view->scrollTo(index);
    const QPoint place = view->visualRect(index).center();
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, place);
}
