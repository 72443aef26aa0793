#include "editors/palette/paletteeditor.h"

#include "cache/paletteuses.h"
#include "core/dialogs/itemsdialog.h"
#include "core/fileinput.h"
#include "core/filesystemarchive.h"
#include "editors/palette/palettewidget.h"
#include "editors/palette/remapdlg.h"
#include "family/assets/remapmodel.h"
#include "family/assets/spritefile.h"
#include "media/palettefile.h"
#include "media/paletteobject.h"
#include "operations/media/paletteedits.h"
#include "support/faultrows.h"
#include "support/folders.h"
#include "support/planneddialogs.h"
#include "support/testinterface.h"
#include "support/testtable.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSlider>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using Family::PaletteColors;
using Family::SpriteFile;
using Zorv::Dialogs;
using Zorv::RGBA;

namespace {

constexpr quint32 Seed = 20261122;
constexpr int SpriteCount = 6;
constexpr int PaletteCount = 4;

class Editor : public Zorv::PaletteEditor
{
public:
    bool paletteIdentifier(QVariant* id) override
    {
        *id = identifier;
        return id->isValid();
    }
    void paletteIdentifiers(const QStringList& files, QList<QVariant>* ids, bool*) override
    {
        for (int i = 0; i < files.size() - missing; ++i) {
            ids->append(QStringLiteral("7,%1").arg(i));
        }
    }
    void reorderColors(const QVector<int>& rows, const Zorv::PaletteOrder& order) override
    {
        auto* sprites = static_cast<Family::SpriteCollection*>(palettes()->sprites());
        Operations::reorderPalettes(sprites, rows, order);
    }
    void remapChanged() override
    {
        ++remaps;
        PaletteEditor::remapChanged();
    }

    QVariant identifier;
    int missing = 0;
    int remaps = 0;
};

QImage picture(int kind, const PaletteColors& colors)
{
    QImage image(9, 7, QImage::Format_Indexed8);
    image.setColorTable(Family::tableOfColors(colors));
    for (int i = 0; i < 63; ++i) {
        image.setPixel(i % 9, i / 9, uint(i * (kind + 1) * 5) & 255);
    }
    return image;
}

/// The second and the third palette are alike.
PaletteColors someColors(int kind)
{
    PaletteColors colors;
    for (size_t i = 0; i < colors.size(); ++i) {
        colors[i] = {quint8(i * 3), quint8(255 - i), quint8(qMin(kind, 1) * 90 + kind / 3), 255};
    }
    return colors;
}

/// A window with the tools, and a collection of palettes that sprites use.
struct Desk
{
    Desk()
    {
        QDir().mkpath(folder.path());
        for (int i = 0; i < PaletteCount; ++i) {
            sprites->palettes()->addPalette(asArray(someColors(i)), QStringLiteral("1,%1").arg(i),
                                            false);
        }
        for (int i = 0; i < SpriteCount; ++i) {
            auto* sprite =
                sprites->insertSprite(i - 1, sprites->freeId({}), {}, picture(i, someColors(0)));
            sprite->setPalette(sprites->palettes()->palette(i % 3));
        }
        save();
        // Without the history of that.
        sprites->fromFile(*Zorv::FileSystemArchive::instance(), folder.filePath("all.sprites"),
                          false);
        host.options["confirm_delete"] = true;
        editor = std::make_unique<Editor>();
        editor->activate();
        editor->setPalettes(sprites->palettes());
    }
    ~Desk()
    {
        editor.reset();
        if (sprites) {
            sprites->release();
        }
    }

    static const RGBA (&asArray(const PaletteColors& colors))[256]
    {
        return *reinterpret_cast<const RGBA(*)[256]>(colors.data());
    }

    QByteArray save()
    {
        const QString name = folder.filePath("all.sprites");
        QFile file(name);
        return sprites->toFile(*Zorv::FileSystemArchive::instance(), name, false) &&
                       file.open(QIODevice::ReadOnly)
                   ? file.readAll()
                   : QByteArray();
    }

    QVector<QImage> pictures() const
    {
        QVector<QImage> images;
        for (unsigned i = 0; i < sprites->count(); ++i) {
            images.append(sprites->sprite(int(i))->image().convertToFormat(QImage::Format_ARGB32));
        }
        return images;
    }

    QString fileOf(const char* name, const PaletteColors& colors) const
    {
        QString error;
        const QString path = folder.filePath(name);
        Zorv::savePaletteFile(path, asArray(colors), &error);
        return path;
    }

    Family::PaletteList* palettes() const { return sprites->palettes(); }
    void run(const QString& name) { host.actions.value(name)->trigger(); }
    QString position() const
    {
        return qobject_cast<QLabel*>(host.controls.value("pal_sel_lb"))->text();
    }

    void drag(int from, int to) const
    {
        QWidget* grid = editor->view();
        const auto place = [](int slot) { return QPoint(slot % 16 * 12 + 5, slot / 16 * 12 + 5); };
        QTest::mousePress(grid, Qt::LeftButton, {}, place(from));
        QTest::mouseMove(grid, place(to));
        QMouseEvent move(QEvent::MouseMove, place(to), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(grid, &move);
        QTest::mouseRelease(grid, Qt::LeftButton, {}, place(to));
    }

    TestInterface host;
    PlannedDialogs dialogs;
    QTemporaryDir folder;
    QPointer<SpriteFile> sprites = new SpriteFile;
    std::unique_ptr<Editor> editor;
};

/// A painted sprite that is not in the file yet.
class Painting : public Zorv::FileInput
{
public:
    explicit Painting(Zorv::Sprites* sprites) : m_sprites(sprites) {}
    Zorv::ProjectFile* inputFile() const override { return m_sprites; }
    bool takeInput(QString*) override
    {
        m_sprites->beginChange(QStringLiteral("Save"));
        m_sprites->sprite(0)->setImage(m_sprites->sprite(0)->image().mirrored());
        m_sprites->endChange();
        m_sprites = nullptr;
        return true;
    }
    void dropInput() override { m_sprites = nullptr; }

private:
    Zorv::Sprites* m_sprites;
};

/// Answers the list that opens next: all of its rows, or none of it.
void answerItems(bool isAccepted, const std::function<void()>& whileOpen = {})
{
    QTimer::singleShot(0, [=] {
        auto* dialog = qobject_cast<ItemsDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        if (whileOpen) {
            whileOpen();
        }
        if (dialog->isVisible()) {
            dialog->findChild<QPushButton*>("selectAllButton")->click();
            isAccepted ? dialog->accept() : dialog->reject();
        }
    });
}

}  // namespace

class TestPaletteEditor : public QObject
{
    Q_OBJECT

private slots:
    void init() { m = std::make_unique<Desk>(); }
    void cleanup() { m.reset(); }

    void toolsArePublished()
    {
        // Name, text and whether it waits for a palette.
        const std::tuple<const char*, const char*, bool> tools[] = {
            {"pal_clear", "Clear", false},
            {"pal_clear_unused", "Clear all unused", false},
            {"pal_add", "Add", false},
            {"pal_delete", "Delete", true},
            {"pal_delete_duplicates", "Remove all duplicates", true},
            {"pal_open", "Change...", true},
            {"pal_save", "Save as...", true},
            {"pal_remap", "Remap", true},
            {"pal_undo", "Undo", true},
            {"pal_redo", "Redo", true},
            {"pal_switch_color", "Exchange position of selected colors", true},
            {"pal_set_color", "Sets the color of the selected slots", true},
            {"pal_apply_sprite", "Apply to the sprites", true},
            {"pal_sel", nullptr, false},
            {"pal_sel_lb", nullptr, false},
            {"pal_prev", "Previous palette", true},
            {"pal_next", "Next palette", true},
            {"pal_view", nullptr, false},
        };
        const QStringList published = m->host.calls.filter("addControl(pal_");
        m->palettes()->clear();
        int place = 0;
        for (const auto& [name, text, waits] : tools) {
            QCOMPARE(published.value(place++), QStringLiteral("addControl(%1)").arg(name));
            const QAction* action = m->host.actions.value(name);
            QCOMPARE(action != nullptr, text != nullptr);
            if (action) {
                QCOMPARE(action->text(), QString(text));
                QCOMPARE(action->isEnabled(), !waits);
                QVERIFY(m->host.areasOf.value(name).contains("sprites"));
                QVERIFY(m->editor->view()->actions().contains(m->host.actions.value(name)));
            }
        }
        QCOMPARE(published.size(), place);
        QCOMPARE(m->host.controls.value("pal_view").data(), m->editor->widget());
        QCOMPARE(m->host.calls.filter("setMenuEnabled").last(),
                 QString("setMenuEnabled(pal, sprites, true)"));
        m->editor->setPalettes(nullptr);
        QCOMPARE(m->host.calls.filter("setMenuEnabled").last(),
                 QString("setMenuEnabled(pal, sprites, false)"));
    }

    void positions()
    {
        QCOMPARE(m->position(), QString("1 / 4"));
        m->run("pal_prev");
        QCOMPARE(m->position(), QString("1 / 4"));
        for (int i = 0; i < 9; ++i) {
            m->run("pal_next");
        }
        QCOMPARE(m->position(), QString("4 / 4"));
        QCOMPARE(qobject_cast<QSlider*>(m->host.controls.value("pal_sel"))->value(), 3);
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        m->run("pal_add");  // without a file
        QCOMPARE(m->position(), QString("0 / 0"));
        QVERIFY(!m->editor->currentPalette());
        QCOMPARE(m->editor->view()->palette()->color(9), (RGBA{0, 0, 0, 255}));
        m->run("pal_prev");
        QCOMPARE(m->position(), QString("4 / 4"));
        m->run("pal_delete");
        QCOMPARE(m->position(), QString("4 / 4"));  // the question was closed
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        m->run("pal_delete");
        QCOMPARE(m->position(), QString("3 / 3"));
        qobject_cast<QSlider*>(m->host.controls.value("pal_sel"))->setValue(1);
        QCOMPARE(m->editor->currentPalette(), m->palettes()->palette(1));
        m->editor->setPalettes(nullptr);
        QVERIFY(!m->editor->currentPalette() && !m->editor->palettes());
        QCOMPARE(m->position(), QString("0 / 0"));
    }

    void questions_data()
    {
        // What is asked, what is answered, the palettes then, the sprites without one.
        columns<QString, int, int, int>("action", "answer", "palettes", "without");
        row("clear", QString("pal_clear"), int(Dialogs::Yes), 0, SpriteCount);
        row("clear, no", QString("pal_clear"), int(Dialogs::No), PaletteCount, 0);
        row("duplicates", QString("pal_delete_duplicates"), int(Dialogs::Yes), 3, 0);
        row("duplicates, no", QString("pal_delete_duplicates"), int(Dialogs::No), PaletteCount, 0);
        row("delete", QString("pal_delete"), int(Dialogs::Yes), 3, 2);
        row("delete, no", QString("pal_delete"), int(Dialogs::No), PaletteCount, 0);
    }
    void questions()
    {
        const auto [action, answer, count, without] = fetched<QString, int, int, int>();
        const QByteArray before = m->save();
        const QVector<QImage> pictures = m->pictures();
        m->dialogs.buttonAnswers = {Dialogs::Button(answer)};
        m->run(action);
        QCOMPARE(m->dialogs.count("question"), 1);
        QCOMPARE(m->palettes()->count(), count);
        const QVector<int> uses = Zorv::paletteUses(*m->palettes());
        QCOMPARE(std::accumulate(uses.begin(), uses.end(), 0), SpriteCount - without);
        if (action == "pal_delete_duplicates") {
            QCOMPARE(m->pictures(), pictures);
        }
        m->sprites->undo();
        QVERIFY(!m->sprites->canUndo());
        QCOMPARE(m->save(), before);
        m->run("pal_clear_unused");
        QCOMPARE(m->dialogs.count("question"), 1);
    }

    void newPalettes_data()
    {
        columns<int, int, bool>("choice", "count", "copy");
        row("copy", 0, PaletteCount + 1, true);
        row("empty", 1, PaletteCount + 1, false);
        row("given up", -1, PaletteCount, false);
    }
    void newPalettes()
    {
        const auto [choice, count, isCopy] = fetched<int, int, bool>();
        m->dialogs.buttonAnswers = {Dialogs::No};
        m->dialogs.choiceAnswers = {choice};
        m->run("pal_next");
        m->run("pal_add");
        QCOMPARE(m->palettes()->count(), count);
        const PaletteColors colors = m->palettes()->palette(choice < 0 ? 1 : 2)->state.colors;
        QCOMPARE(colors == someColors(1), isCopy || choice < 0);
        QCOMPARE(colors == PaletteColors{}, choice == 1);
        QCOMPARE(m->position(), choice < 0 ? QString("2 / 4") : QString("3 / 5"));
    }

    void filesAreAdded()
    {
        const QByteArray before = m->save();
        const QString bad = m->folder.filePath("bad.act");
        QFile(m->fileOf("bad.act", someColors(5))).resize(767);
        m->dialogs.fileAnswers = {
            {m->fileOf("a.act", someColors(7)), bad, m->fileOf("b.act", someColors(9))}};
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        m->run("pal_add");
        QCOMPARE(m->palettes()->count(), PaletteCount + 2);
        QCOMPARE(m->position(), QString("3 / 6"));
        PaletteColors read = someColors(9);
        read[0].a = 0;
        QVERIFY(m->palettes()->palette(2)->state.colors == read);
        QCOMPARE(m->dialogs.texts("error").value(0).count("bad.act"), 1);
        QCOMPARE(m->dialogs.count("error"), 1);
        m->run("pal_undo");
        QVERIFY(!m->sprites->canUndo());
        QCOMPARE(m->save(), before);

        // A host that gives another number of names adds none, and leaves no step open.
        m->editor->missing = 1;
        m->dialogs.fileAnswers = {{m->folder.filePath("a.act"), m->folder.filePath("b.act")}};
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        m->run("pal_add");
        QCOMPARE(m->palettes()->count(), PaletteCount);
        QVERIFY(!m->sprites->editHistory().isOpen());
    }

    /// Every format, cut at every place that is left of it: all or nothing.
    void filesCutShort()
    {
        const QString path = m->fileOf("cut.act", someColors(8));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray act = file.readAll();
        const QByteArray jasc = "JASC-PAL\r\n0100\r\n1\r\n9 8 7\r\n";
        const QByteArray forms[] = {act, jasc, "RIFF" + act, "ASEF" + act,
                                    QByteArray("\0\1\0\2", 4)};
        const char* const suffixes[] = {"act", "pal", "pal", "ase", "aco"};
        for (int form = 0; form < 5; ++form) {
            for (int size = 0; size < forms[form].size(); size += 1 + size / 8) {
                const QString name = m->folder.filePath(QString("cut.") + suffixes[form]);
                QFile cut(name);
                QVERIFY(cut.open(QIODevice::WriteOnly));
                cut.write(forms[form].left(size));
                cut.close();
                const PaletteColors before = m->palettes()->palette(0)->state.colors;
                const int errors = m->dialogs.count("error");
                m->dialogs.fileAnswers = {{name}};
                m->run("pal_open");
                const bool isNamed = m->dialogs.count("error") > errors;
                QVERIFY(isNamed != m->sprites->canUndo());
                m->sprites->undo();
                QVERIFY(m->palettes()->palette(0)->state.colors == before);
            }
        }
    }

    void saves()
    {
        // Of several the file has the identifier, and nothing is replaced unasked.
        const auto save = [this](bool isAll) {
            const QString chosen = m->folder.filePath("my.pal.act");
            m->dialogs.fileAnswers = {{chosen}};
            QTimer::singleShot(0, [isAll] {
                auto* dialog = qobject_cast<ItemsDialog*>(QApplication::activeModalWidget());
                if (isAll) {
                    dialog->findChild<QPushButton*>("selectAllButton")->click();
                }
                dialog->accept();
            });
            m->run("pal_save");
        };
        const auto names = [this] {
            return QDir(m->folder.path()).entryList({"my*"}, QDir::Files, QDir::Name);
        };
        save(false);
        QCOMPARE(names(), QStringList{"my.pal.act"});
        save(true);
        const QStringList all{"my.pal.act", "my.pal_1-0.act", "my.pal_1-1.act", "my.pal_1-2.act",
                              "my.pal_1-3.act"};
        QCOMPARE(names(), all);
        RGBA colors[256];
        QString error;
        QVERIFY(Zorv::loadPaletteFile(m->folder.filePath(all.last()), colors, &error));
        QCOMPARE(colors[77], someColors(3)[77]);
        QCOMPARE(m->dialogs.count(), 2);
        QFile(m->folder.filePath(all.last())).resize(0);
        save(true);
        QCOMPARE(m->dialogs.count("question"), 1);
        QCOMPARE(QFileInfo(m->folder.filePath(all.last())).size(), 0);
        QFile::remove(m->folder.filePath(all.last()));
        QDir(m->folder.path()).mkdir(all.last());
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        save(true);
        QCOMPARE(m->dialogs.texts("error").value(0).count(all.last()), 1);
    }

    void failedSavesLoseNothing_data()
    {
        columns<int, int>("call", "error");
        faultRows();
    }
    /// Of all palettes one cannot be written.
    void failedSavesLoseNothing()
    {
        const auto [call, error] = fetched<int, int>();
        const QString old = m->folder.filePath("my_1-2.act");
        QVERIFY(writeFile(old, "mine"));
        m->dialogs.fileAnswers = {{m->folder.filePath("my.act")}};
        m->dialogs.buttonAnswers = {Dialogs::Yes};
        answerItems(true, [call = call, error = error] {
            faultArm("my_1-2", FaultCall(call), 1, error, call == FaultWrite);
        });
        m->run("pal_save");
        faultArm("", FaultOpen, 0, 0, 0);
        const QString told = m->dialogs.texts("error").join('\n');
        QVERIFY2(told.contains(old) && told.contains(qt_error_string(error)), qPrintable(told));
        QCOMPARE(readFile(old), QByteArray("mine"));
        QCOMPARE(QDir(m->folder.path()).entryList({"my*"}, QDir::Files).size(), PaletteCount);
        RGBA colors[256];
        QString problem;
        QVERIFY(Zorv::loadPaletteFile(m->folder.filePath("my_1-3.act"), colors, &problem));
        QCOMPARE(colors[77], someColors(3)[77]);
    }

    void moves_data()
    {
        columns<int, bool, bool>("answer", "own", "others");
        row("pictures in all palettes", 0, true, true);
        row("pictures in one palette", 1, true, true);
        row("slots", 2, false, true);
        row("given up", -1, true, true);
    }
    void moves()
    {
        const auto [answer, own, others] = fetched<int, bool, bool>();
        const QVector<QImage> before = m->pictures();
        const QByteArray bytes = m->save();
        m->dialogs.choiceAnswers = {answer};
        emit m->editor->view()->colorMoved(40, 40);  // back to its own slot
        QCOMPARE(m->dialogs.count(), 0);
        m->drag(40, 3);
        const QVector<QImage> after = m->pictures();
        for (int i = 0; i < SpriteCount; ++i) {
            QCOMPARE(after[i] == before[i], i % 3 == 0 ? own : others);
        }
        const bool isMoved = answer >= 0;
        RGBA first = someColors(0)[isMoved ? 40 : 3];
        QCOMPARE(m->palettes()->palette(0)->state.colors[3], first);
        QCOMPARE(m->editor->view()->palette()->color(3), first);
        QCOMPARE(m->palettes()->palette(3)->state.colors[3], someColors(3)[answer == 0 ? 40 : 3]);
        m->drag(40, 3);  // asked once
        QCOMPARE(m->dialogs.count("choose"), isMoved ? 1 : 2);
        while (m->sprites->canUndo()) {
            m->run("pal_undo");
        }
        QCOMPARE(m->save(), bytes);
    }

    void moveIsOneStep_data()
    {
        columns<int, QString>("cancelAfter", "title");
        row("done", -1, QString("Move color"));
        row("given up", 0, QString("Save"));
    }
    /// With what was painted. It does not promise what was given up: what was painted stays in the
    /// file, for undone with the step it would be gone from sight.
    void moveIsOneStep()
    {
        const auto [cancelAfter, title] = fetched<int, QString>();
        const QByteArray bytes = m->save();
        const QImage painted = m->sprites->sprite(0)->image().mirrored();
        const Painting painting(m->sprites);
        m->dialogs.choiceAnswers = {0};
        m->host.cancelAfter = cancelAfter;
        m->drag(40, 3);
        const bool isMoved = cancelAfter < 0;
        QCOMPARE(m->palettes()->palette(0)->state.colors[3], someColors(0)[isMoved ? 40 : 3]);
        QCOMPARE(m->editor->view()->palette()->color(3), someColors(0)[isMoved ? 40 : 3]);
        QCOMPARE(m->pictures().first(), painted.convertToFormat(QImage::Format_ARGB32));
        QCOMPARE(m->sprites->undoTitle(), title);
        m->sprites->undo();
        QVERIFY(!m->sprites->canUndo());
        QCOMPARE(m->save(), bytes);
    }

    /// An edit in a panel that is hidden is neither lost nor unseen.
    void editsActivateThePanel()
    {
        m->editor->deactivate();
        m->editor->view()->palette()->setColor(9, {1, 2, 3, 4});
        QCOMPARE(m->host.panel, m->editor.get());
        QVERIFY(m->editor->isActive());
        QCOMPARE(m->palettes()->palette(0)->state.colors[9], (RGBA{1, 2, 3, 4}));
        m->sprites->undo();
        QCOMPARE(m->editor->view()->palette()->color(9), someColors(0)[9]);
    }

    void colorsOfNoPaletteAreNotEdited()
    {
        const QByteArray before = m->save();
        m->editor->showColors(Desk::asArray(someColors(9)));
        m->drag(40, 3);
        m->editor->view()->palette()->setColor(9, {1, 2, 3, 4});
        m->run("pal_switch_color");
        QCOMPARE(m->save(), before);
        QCOMPARE(m->dialogs.count(), 0);
        m->run("pal_prev");
        QCOMPARE(m->position(), QString("4 / 4"));
    }

    void remapTable()
    {
        const QByteArray before = m->save();
        auto* dialog = QApplication::topLevelWidgets().isEmpty() ? nullptr : remapDialog();
        QVERIFY(dialog);
        m->run("pal_remap");
        QVERIFY(dialog->isVisible());
        const auto click = [dialog](const char* name) {
            QTest::mouseClick(dialog->findChild<QPushButton*>(name), Qt::LeftButton);
        };
        for (int i = 0; i < 5; ++i) {
            click("addButton");
        }
        QAbstractItemModel* model = m->palettes()->remapModel();
        for (int i = 0; i < 5; ++i) {
            model->setData(model->index(i, 1), QStringLiteral("3,%1").arg(i));
        }
        auto* table = dialog->findChild<QTableView*>();
        table->clearSelection();
        for (int row : {0, 3, 4}) {
            table->selectionModel()->select(model->index(row, 0), QItemSelectionModel::Select |
                                                                      QItemSelectionModel::Rows);
        }
        const int told = m->editor->remaps;
        click("deleteButton");
        QCOMPARE(m->editor->remaps, told + 1);
        QCOMPARE(model->rowCount(), 2);
        QCOMPARE(model->index(1, 1).data().toString(), QString("3,2"));
        m->sprites->undo();
        QCOMPARE(model->rowCount(), 5);
        click("clearButton");
        QCOMPARE(model->rowCount(), 0);
        while (m->sprites->canUndo()) {
            m->sprites->undo();
        }
        QCOMPARE(m->save(), before);
        m->editor->setPalettes(nullptr);
        click("addButton");
        click("deleteButton");
        click("clearButton");
    }

    void collectionGoes_data()
    {
        columns<QString, bool>("action", "isList");
        for (const char* name : {"pal_add", "pal_clear", "pal_delete", "pal_delete_duplicates",
                                 "pal_open", "pal_set_color"}) {
            row(name, QString(name), false);
        }
        row("pal_save", QString("pal_save"), true);
        row("pal_apply_sprite", QString("pal_apply_sprite"), true);
    }
    void collectionGoes()
    {
        const auto [action, isList] = fetched<QString, bool>();
        const auto end = [this] {
            if (m->sprites) {
                m->sprites->release();
            }
        };
        m->editor->view()->selection[4] = true;
        m->dialogs.buttonAnswers = {Dialogs::Yes, Dialogs::Yes};
        m->dialogs.colorAnswers = {Qt::red};
        m->dialogs.fileAnswers = {{m->fileOf("a.act", someColors(7))}};
        if (isList) {
            answerItems(true, end);
        } else {
            m->dialogs.whileOpen = [end](const auto&) { end(); };
        }
        m->run(action);
        QVERIFY(!m->sprites);
        QVERIFY(!m->editor->palettes() && !m->editor->currentPalette());
        QCOMPARE(m->position(), QString("0 / 0"));
    }

    /// Whatever is done, undo leads back to the first bytes.
    void undoLeadsBack()
    {
        const QByteArray before = m->save();
        QRandomGenerator random(Seed);
        qInfo("seed %u", Seed);
        const char* const actions[] = {
            "pal_clear",        "pal_clear_unused", "pal_add",
            "pal_add",          "pal_add",          "pal_delete",
            "pal_open",         "pal_set_color",    "pal_switch_color",
            "pal_apply_sprite", "pal_next",         "pal_prev",
            "pal_undo",         "pal_redo",         "pal_delete_duplicates"};
        for (int i = 0; i < 200; ++i) {
            for (bool& isSelected : m->editor->view()->selection) {
                isSelected = random.bounded(20) == 0;
            }
            m->dialogs.buttonAnswers = {random.bounded(3) ? Dialogs::Yes : Dialogs::No};
            m->dialogs.choiceAnswers = {random.bounded(-1, 3)};
            m->dialogs.colorAnswers = {QColor(random.bounded(255), 9, 9, random.bounded(255))};
            m->dialogs.fileAnswers = {{m->fileOf("a.act", someColors(random.bounded(50)))}};
            const char* action = actions[random.bounded(int(std::size(actions)))];
            if (random.bounded(6) == 0) {
                m->drag(random.bounded(256), random.bounded(256));
            } else if (qstrcmp(action, "pal_apply_sprite") == 0) {
                if (m->editor->currentPalette()) {
                    answerItems(random.bounded(2) == 0);
                    m->run(action);
                }
            } else {
                m->run(action);
            }
            const Zorv::Palette* shown = m->palettes()->palette(m->palettes()->currentIndex);
            QCOMPARE(m->editor->currentPalette(), shown);
            QVERIFY(!m->sprites->editHistory().isOpen());
            for (int slot = 0; shown && slot < 256; ++slot) {
                QCOMPARE(
                    m->editor->view()->palette()->color(quint8(slot)),
                    static_cast<const Family::FamilyPalette*>(shown)->state.colors[size_t(slot)]);
            }
        }
        while (m->sprites->canUndo()) {
            m->sprites->undo();
        }
        QCOMPARE(m->save(), before);
    }

    void setPalette()
    {
        m->editor->setPalette(Desk::asArray(someColors(9)));
        QVERIFY(!m->sprites->canUndo());
        m->editor->identifier = "1,2";
        m->editor->setPalette(Desk::asArray(someColors(9)));
        QCOMPARE(m->palettes()->count(), PaletteCount);
        QVERIFY(m->palettes()->palette(2)->state.colors == someColors(9));
        m->editor->identifier = "8,8";
        m->editor->setPalette(Desk::asArray(someColors(9)));
        QCOMPARE(m->palettes()->find(0, "8,8"), PaletteCount);
    }

private:
    RemapDlg* remapDialog() const
    {
        const QWidgetList all = QApplication::topLevelWidgets();
        for (QWidget* each : all) {
            if (auto* dialog = qobject_cast<RemapDlg*>(each)) {
                return dialog;
            }
        }
        return nullptr;
    }

    std::unique_ptr<Desk> m;
};

QTEST_MAIN(TestPaletteEditor)
#include "tst_paletteeditor.moc"
