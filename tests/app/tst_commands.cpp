#include "stagefixture.h"

#include "app/sounds/soundpanel.h"
#include "app/window/panelplace.h"
#include "family/assets/soundfile.h"
#include "support/testsounds.h"
#include "support/testtable.h"

#include <zorv/animation/thumbnails/spritelist.h>
#include <zorv/editors/framework/rowlist.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>

using Family::SoundFile;
using Family::SpriteCollection;

namespace {

const QString Clipboard = QStringLiteral("from elsewhere");

}  // namespace

/// Keys of undo, clipboard, saving and zoom act on what has the keyboard, and on nothing else.
class TestCommands : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void goesToThePanel_data();
    void goesToThePanel();
    void tellsWhatIsUndone_data();
    void tellsWhatIsUndone();
    void fieldsKeepTheirKeys();

private:
    App::MainWindow* window() const { return m->window(); }
    SpriteCollection* sprites() const { return window()->spritePanel()->sprites(); }
    SoundFile* sounds() const { return window()->soundPanel()->sounds(); }
    QWidget* panel(const QString& name) const;
    QString state() const;

    std::unique_ptr<StageFixture> m;
    QString m_before;
};

/// A game in which text, sprites and sounds have a step that can be undone, and one that was.
void TestCommands::init()
{
    m = std::make_unique<StageFixture>();
    m->game.write("characters/ryn/ryn.character", "[info]\r\nname = \"Ryn\"\r\n[files]\r\n"
                                                  "sprites = \"ryn.sprites\"\r\n"
                                                  "sounds = \"ryn.sounds\"\r\n"
                                                  "animations = \"basic.anim\"\r\n");
    SoundFile file;
    for (int i = 0; i < 3; ++i) {
        QVERIFY(file.add(i, QStringLiteral("0,%1").arg(i), soundOf(QByteArray(4, 1))));
    }
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(),
                        m->game.path("characters/ryn/ryn.sounds"), false));
    m->fixture.action("close_folder")->trigger();
    m->fixture.open(m->game, m->game.ryn(), m->game.animations());
    m->goTo(3);
    for (int row : {1, 0}) {
        sprites()->beginChange(QStringLiteral("Sprite step %1").arg(row));
        sprites()->removeSprites({row});
        sprites()->endChange();
        sounds()->beginChange(QStringLiteral("Sound step %1").arg(row));
        sounds()->remove(unsigned(row));
        sounds()->endChange();
        m->document()->beginChange(QStringLiteral("Text step %1").arg(row));
        m->document()->insert(QStringLiteral("# %1\n").arg(row));
        m->document()->endChange();
    }
    sprites()->undo();
    sounds()->undo();
    m->document()->undo();
    window()->spritePanel()->setCurrentRow(0);
    window()->soundPanel()->setCurrentRow(0);
    QApplication::clipboard()->setText(Clipboard);
    m->fixture.goTo(0, 0, 9);
    QCoreApplication::processEvents();
    m_before = state();
}

QWidget* TestCommands::panel(const QString& name) const
{
    const QHash<QString, QWidget*> panels{
        {QStringLiteral("text"), m->fixture.edit()},
        {QStringLiteral("stage"), m->view()->focusTarget()},
        {QStringLiteral("sprites"), window()->spritePanel()->list()},
        {QStringLiteral("sounds"), window()->soundPanel()->list()},
        {QStringLiteral("organizer"), window()->animations()->list()},
        {QStringLiteral("nodes"), m->fixture.tree()},
        {QStringLiteral("projects"), window()->gameTree()},
        {QStringLiteral("messages"), window()->messagePanel()}};
    App::bringForward(panels.value(name));
    QCoreApplication::processEvents();
    return panels.value(name);
}

/// All that a command can change: "text", "sprites" and "sounds" with a mark for unsaved ones.
QString TestCommands::state() const
{
    const auto mark = [](const Zorv::ProjectFile* file) { return file->isModified() ? '*' : ' '; };
    return QStringLiteral("%1%2|%3%4|%5%6|%7")
        .arg(m->document()->text(), QString(mark(m->document())))
        .arg(sprites()->count())
        .arg(mark(sprites()))
        .arg(sounds()->count())
        .arg(mark(sounds()))
        .arg(QApplication::clipboard()->text());
}

/// What each key changes with the keyboard in each panel: "t", "s", "n" for text, sprites, sounds,
/// "c" for the clipboard, nothing for nothing. A row that is copied is so as a text.
void TestCommands::goesToThePanel_data()
{
    columns<QString, QKeySequence, QString>("where", "key", "changed");
    const QVector<QPair<QString, QKeySequence>> keys{{QStringLiteral("undo"), QKeySequence::Undo},
                                                     {QStringLiteral("redo"), QKeySequence::Redo},
                                                     {QStringLiteral("cut"), QKeySequence::Cut},
                                                     {QStringLiteral("copy"), QKeySequence::Copy},
                                                     {QStringLiteral("paste"), QKeySequence::Paste},
                                                     {QStringLiteral("delete"), Qt::Key_Delete},
                                                     {QStringLiteral("save"), QKeySequence::Save}};
    const struct
    {
        const char* where;
        QStringList changed;
    } rows[] = {
        {"text", {"t", "t", "tc", "c", "t", "t", "t"}},
        {"stage", {"t", "t", "", "", "", "", "t"}},
        {"sprites", {"s", "s", "", "c", "", "s", "s"}},
        {"sounds", {"n", "n", "", "c", "", "n", "n"}},
        {"organizer", {"t", "t", "", "c", "", "t", "t"}},
        {"nodes", {"t", "t", "", "c", "", "", "t"}},
        {"projects", {"t", "t", "", "c", "", "", "t"}},
        {"messages", {"t", "t", "", "c", "", "", "t"}},
    };
    for (const auto& row : rows) {
        for (int i = 0; i < keys.size(); ++i) {
            QTest::addRow("%s: %s", row.where, qPrintable(keys[i].first))
                << QString::fromLatin1(row.where) << keys[i].second << row.changed[i];
        }
    }
}

void TestCommands::goesToThePanel()
{
    QFETCH(const QString, where);
    QFETCH(const QKeySequence, key);
    QFETCH(const QString, changed);
    m->fixture.dialogs.buttonAnswers = {Zorv::Dialogs::Yes};  // a sprite in use may go
    pressIn(panel(where), key);
    const QStringList before = m_before.split('|');
    const QStringList after = state().split('|');
    QString found;
    for (int i = 0; i < 4; ++i) {
        found += before[i] != after[i] ? QString(QStringLiteral("tsnc")[i]) : QString();
    }
    QCOMPARE(found, changed);
    // Select all and delete, in a row: what is selected is of the same panel.
    pressIn(panel(where), QKeySequence::SelectAll);
    const QString selected = m->fixture.edit()->textCursor().selectedText();
    QCOMPARE(selected.size() == m->document()->text().size(), where == QLatin1String("text"));
}

void TestCommands::tellsWhatIsUndone_data()
{
    columns<QString, QString, QString>("where", "undo", "redo");
    for (const char* where : {"text", "stage", "organizer", "nodes", "projects", "messages"}) {
        QTest::addRow("%s", where) << where << "&Undo: Text step 1"
                                   << "&Redo: Text step 0";
    }
    QTest::addRow("sprites") << "sprites"
                             << "&Undo: Sprite step 1"
                             << "&Redo: Sprite step 0";
    QTest::addRow("sounds") << "sounds"
                            << "&Undo: Sound step 1"
                            << "&Redo: Sound step 0";
}

void TestCommands::tellsWhatIsUndone()
{
    QFETCH(const QString, where);
    QFETCH(const QString, undo);
    QFETCH(const QString, redo);
    panel(where)->setFocus();
    QTRY_COMPARE(m->fixture.action("undo")->text(), undo);
    QCOMPARE(m->fixture.action("redo")->text(), redo);
    // An open menu has the keyboard, and is for the panel all the same.
    QMenu* menu = window()->menuByName("edit");
    menu->popup({});
    QCoreApplication::processEvents();
    QCOMPARE(m->fixture.action("undo")->text(), undo);
    menu->close();
    m->fixture.action("undo")->trigger();
    QTRY_COMPARE(m->fixture.action("undo")->text(), QStringLiteral("&Undo"));
    QCOMPARE(m->fixture.action("redo")->text(), QString(undo).replace("Undo", "Redo"));
}

/// Keys and menu are for the field.
void TestCommands::fieldsKeepTheirKeys()
{
    m->fixture.action("find")->trigger();
    auto* field = QApplication::focusWidget()->findChild<QLineEdit*>();
    QVERIFY(field);
    m_before = state();
    field->setText(QStringLiteral("abc"));
    pressIn(field, QKeySequence::SelectAll);
    QCOMPARE(field->selectedText(), QStringLiteral("abc"));
    pressIn(field, QKeySequence::Paste);
    QCOMPARE(field->text(), Clipboard);
    pressIn(field, QKeySequence::Undo);
    QCOMPARE(field->text(), QStringLiteral("abc"));
    m->fixture.action("select_all")->trigger();
    m->fixture.action("delete")->trigger();
    QCOMPARE(field->text(), QString());
    QCOMPARE(state(), m_before);
}

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
