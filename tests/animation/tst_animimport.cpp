#include "animation/import/animationimport.h"
#include "animation/import/animimportdlg.h"
#include "editors/import/importmodel.h"

#include "support/posetest.h"
#include "support/stagedata.h"
#include "support/testproject.h"
#include "support/testtable.h"

#include <QAbstractItemModelTester>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRandomGenerator>
#include <QStringListModel>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace Zorv;

namespace {

/// A sprite that counts how often it was decoded.
class CountedSprite : public StageData::Sprite
{
public:
    using Sprite::Sprite;
    QImage image() const override
    {
        ++decodings;
        return Sprite::image();
    }
    mutable int decodings = 0;
};

const char* const hereText = "@one\n> 0,0 0,0 4 0 1,1 0\n\n@two\n> 0,1 0,0 4 0 1,1 0";
const char* const thereText = "@one\n> 0,1 0,0 1 0 1,1 0\n> 0,9 0,0 1 0 1,1 0\n\n"
                              "@kick\n> 0,2 0,0 2 0 1,1 0\n\n\n"
                              "@two\n";

}  // namespace

class TestAnimImport : public PoseTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void modelIsAPlainList();
    void importsWhatIsChosen();
    void picturesComeIntoSight();
    void brokenSprites_data();
    void brokenSprites();
    void projectsClose_data();
    void projectsClose();
    void needsAnotherProject();
    void whatIsReplacedGoes();

private:
    TestProject* openProject(const QString& text, PoseDocument** opened);
    void openImport(const std::function<void(AnimImportDlg*)>& person);

    template <class Widget>
    static Widget* child(const QWidget* dialog, const char* name)
    {
        return dialog->findChild<Widget*>(QLatin1String(name));
    }
    static void click(const QWidget* dialog, const char* name)
    {
        QTest::mouseClick(child<QAbstractButton>(dialog, name), Qt::LeftButton);
    }
    static void accept(const AnimImportDlg* dialog)
    {
        QTest::keyClick(child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok),
                        Qt::Key_Return);
    }
    static void rename(const QListView* list, int row, const QString& name)
    {
        const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
        auto* editor = list->findChild<QLineEdit*>();
        QVERIFY(editor);
        QTest::keyClicks(editor, name);
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!list->findChild<QLineEdit*>());
    }

    QTemporaryDir folder;
    std::unique_ptr<TestParent> game;
    std::unique_ptr<CountedSprite> sprite;
    QList<QPointer<TestProject>> projects;
    PoseDocument* here = nullptr;
    PoseDocument* there = nullptr;
};

TestProject* TestAnimImport::openProject(const QString& text, PoseDocument** opened)
{
    *opened = new PoseDocument(text);
    for (int i = 0; i < 3; ++i) {
        (*opened)->sprites.insert(i, sprite.get());
    }
    auto* project = new TestProject(game.get(), *opened);
    host->projects.append(project);
    projects.append(project);
    return project;
}

void TestAnimImport::init()
{
    make<TestInterface>();
    game = std::make_unique<TestParent>(folder.path());
    QImage image(200, 100, QImage::Format_ARGB32);
    image.fill(Qt::red);
    sprite = std::make_unique<CountedSprite>(image);
    openProject(QLatin1String(hereText), &here);
    openProject(QLatin1String(thereText), &there);
    here->clearUndoRedoStacks();
    editor->setDocument(here);
    editor->activate();
}

void TestAnimImport::cleanup()
{
    editor.reset();
    for (const QPointer<TestProject>& project : projects) {
        if (project) {
            project->release();
            delete project;
        }
    }
    projects.clear();
    game.reset();
    drop();
}

/// Opens the dialog by its tool; the person acts in it as soon as it is there.
void TestAnimImport::openImport(const std::function<void(AnimImportDlg*)>& person)
{
    bool hasActed = false;
    QTimer::singleShot(0, this, [&] {
        auto* dialog = qobject_cast<AnimImportDlg*>(QApplication::activeModalWidget());
        QVERIFY(dialog);
        QVERIFY(QTest::qWaitForWindowExposed(dialog));
        person(dialog);
        hasActed = true;
        if (QApplication::activeModalWidget() == dialog) {
            dialog->reject();
        }
    });
    host->actions.value(QStringLiteral("anim_import_proj"))->trigger();
    QVERIFY(hasActed);
}

void TestAnimImport::modelIsAPlainList()
{
    QRandomGenerator random(20261122);
    ImportModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setPresent({"3", "4"});
    model.setCheck([](const QString& name) { return name != "9"; });
    std::vector<std::unique_ptr<QStringListModel>> lists(2);
    QVector<QPair<QString, QString>> plain;  // what stands in the list, and the identifier
    int made = 0;
    for (int i = 0; i < 1500; ++i) {
        std::unique_ptr<QStringListModel>& list = lists[random.bounded(2)];
        const int row = plain.isEmpty() ? 0 : random.bounded(plain.size());
        const QString name = QString::number(random.bounded(10));
        if (!list) {
            list = std::make_unique<QStringListModel>();
            for (int k = 0; k < 5; ++k) {
                list->insertRow(k);
                list->setData(list->index(k), QString::number(++made));
            }
        }
        switch (random.bounded(list->rowCount() == 0 ? 7 : 12)) {
        case 0:  // what stands there goes, or all of the list does
        case 1: {
            QStringList gone = list->stringList();
            if (random.bounded(3) > 0 && !gone.isEmpty()) {
                gone = QStringList(gone[random.bounded(gone.size())]);
                list->removeRow(list->stringList().indexOf(gone[0]));
            } else {
                list.reset();
            }
            const auto isGone = [&](const auto& entry) { return gone.contains(entry.first); };
            plain.erase(std::remove_if(plain.begin(), plain.end(), isGone), plain.end());
            break;
        }
        case 2:
            if (random.bounded(20) == 0) {
                model.clear();
                plain.clear();
            }
            break;
        case 3:
            if (!plain.isEmpty()) {
                const int count = 1 + random.bounded(plain.size() - row);
                QVERIFY(model.removeRows(row, count));
                plain.remove(row, count);
            }
            break;
        case 4:
        case 5:
        case 6:
            if (!plain.isEmpty()) {
                const bool isTaken = model.setData(model.index(row), ' ' + name + ' ');
                QCOMPARE(isTaken, name != "9");
                plain[row].second = isTaken ? name : plain[row].second;
            }
            break;
        default: {
            const QModelIndex index = list->index(random.bounded(list->rowCount()));
            model.add({{index, name}});
            plain.append({index.data().toString(), name});
        }
        }
        QCOMPARE(model.entries().size(), plain.size());
        int clashes = 0;
        for (int k = 0; k < plain.size(); ++k) {
            const QString own = plain[k].second;
            const int same = int(std::count_if(plain.begin(), plain.end(), [&](const auto& entry) {
                return entry.second == own;
            }));
            const int clash = own == "3" || own == "4" ? ImportModel::Present
                              : same > 1               ? ImportModel::Repeated
                                                       : ImportModel::NoClash;
            clashes += int(clash != ImportModel::NoClash);
            QCOMPARE(model.index(k).data().toString(), own);
            QCOMPARE(model.index(k).data(ImportModel::ClashRole).toInt(), clash);
            QCOMPARE(model.entries()[k].source.data().toString(), plain[k].first);
        }
        QCOMPARE(model.clashCount(), clashes);
    }
}

void TestAnimImport::importsWhatIsChosen()
{
    editor->assets.renumbered.insert({0, 2}, {7, 8});
    editor->assets.added = 1;
    editor->assets.missing = {{0, 9}};
    openImport([&](AnimImportDlg* dialog) {
        auto* source = child<QListView>(dialog, "source");
        auto* target = child<QListView>(dialog, "destination");
        const QAbstractItemModelTester tester(
            source->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        QPushButton* ok =
            child<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok);
        QCOMPARE(child<QComboBox>(dialog, "project")->count(), 1);
        QCOMPARE(source->model()->rowCount(), 3);
        QVERIFY(!ok->isEnabled());
        click(dialog, "all");
        click(dialog, "add");
        click(dialog, "invert");
        click(dialog, "add");
        QCOMPARE(target->model()->rowCount(), 3);
        QVERIFY(child<QLabel>(dialog, "clashes")->text().startsWith(QLatin1Char('2')));
        rename(target, 0, "first");
        rename(target, 2, "two words");
        QCOMPARE(target->model()->index(2, 0).data().toString(), QString("two"));
        QTRY_COMPARE(dialogs->count("warning"), 1);
        QVERIFY(child<QLabel>(dialog, "clashes")->text().startsWith(QLatin1Char('1')));
        click(dialog, "replace");
        accept(dialog);
    });
    QCOMPARE(here->text(), QString("@one\n> 0,0 0,0 4 0 1,1 0\n\n"
                                   "@first\n> 0,1 0,0 1 0 1,1 0\n> 0,9 0,0 1 0 1,1 0\n\n"
                                   "@kick\n> 7,8 0,0 2 0 1,1 0\n\n@two"));
    QCOMPARE(there->text(), QString(thereText));
    QCOMPARE(editor->requests.size(), 1);
    QCOMPARE(editor->requests[0].source, static_cast<Project*>(projects[1]));
    QCOMPARE(editor->requests[0].destination, static_cast<Project*>(projects[0]));
    QCOMPARE(editor->requests[0].sprites, (QVector<SpriteNumber>{{0, 1}, {0, 9}, {0, 2}}));
    QCOMPARE(editor->animationIndex(), 1);
    const QString report = dialogs->texts("information").value(0);
    for (const char* part : {"3 animation", "1 of them", "1 sprite", "0,2 is now 7,8", "0,9"}) {
        QVERIFY2(report.contains(QLatin1String(part)), qPrintable(report));
    }
    QCOMPARE(here->undoTitle(), QString("Import animations from project ''"));
    here->undo();
    QCOMPARE(here->text(), QString(hereText));
    QVERIFY(!here->canUndo());
}

void TestAnimImport::picturesComeIntoSight()
{
    QString text;
    for (int i = 0; i < 2000; ++i) {
        text += QStringLiteral("@a%1\n> 0,9 0,0 1 0 1,1 0\n> 0,1 0,0 1 0 1,1 0\n").arg(i);
    }
    there->fromString(text);
    openImport([&](AnimImportDlg* dialog) {
        auto* source = child<QListView>(dialog, "source");
        QTRY_VERIFY(sprite->decodings > 2);
        QVERIFY(sprite->decodings < 60);
        const QPixmap picture =
            source->model()->index(0, 0).data(Qt::DecorationRole).value<QPixmap>();
        QCOMPARE(picture.toImage().pixelColor(24, 24), QColor(Qt::red));
        QCOMPARE(picture.toImage().pixelColor(24, 4).alpha(), 0);
        const int before = sprite->decodings;
        source->scrollToBottom();
        QTRY_VERIFY(sprite->decodings > before);
        QVERIFY(sprite->decodings < before + 60);
        // An edit of the source leaves no row behind.
        there->fromString(QStringLiteral("@last\n"));
        QCOMPARE(source->model()->rowCount(), 1);
    });
}

void TestAnimImport::brokenSprites_data()
{
    columns<bool, int>("isAgreed", "animations");
    QTest::newRow("refused") << false << 2;
    QTest::newRow("left out") << true << 3;
}

void TestAnimImport::brokenSprites()
{
    QFETCH(const bool, isAgreed);
    editor->assets.error = "Broken.";
    editor->assets.broken = {{0, 2}};
    dialogs->buttonAnswers = {isAgreed ? Dialogs::Yes : Dialogs::No};
    openImport([&](AnimImportDlg* dialog) {
        click(dialog, "all");
        click(dialog, "add");
        accept(dialog);
    });
    QCOMPARE(dialogs->count("question"), 1);
    QCOMPARE(editor->requests.size(), isAgreed ? 2 : 1);
    QTEST(here->animations()->count(), "animations");
    QCOMPARE(here->canUndo(), isAgreed);
}

void TestAnimImport::projectsClose_data()
{
    QTest::addColumn<int>("project");
    QTest::newRow("destination") << 0;
    QTest::newRow("source") << 1;
}

void TestAnimImport::projectsClose()
{
    QFETCH(const int, project);
    openImport([&](AnimImportDlg* dialog) {
        click(dialog, "all");
        click(dialog, "add");
        if (project == 0) {
            editor->setDocument(nullptr);
        }
        host->projects.removeAt(project);
        projects[project]->release();
        delete projects[project];
        QCOMPARE(dialog->getInfo().entries.size(), project == 0 ? 3 : 0);
        QCOMPARE(dialog->isVisible(), project != 0);
        if (project == 1) {
            QVERIFY(!dialog->getInfo().source);
            QCOMPARE(child<QListView>(dialog, "source")->model()->rowCount(), 0);
            accept(dialog);
            QVERIFY(dialog->isVisible());
        }
    });
    QVERIFY(editor->requests.isEmpty());
    QCOMPARE(dialogs->count(), 0);
}

void TestAnimImport::needsAnotherProject()
{
    host->projects.removeLast();
    host->actions.value(QStringLiteral("anim_import_proj"))->trigger();
    QCOMPARE(dialogs->texts("warning"),
             QStringList("You can't import from the destination project!"));
}

/// Between the choice and the edit, behind a question.
void TestAnimImport::whatIsReplacedGoes()
{
    Animations* list = here->animations();
    const QAbstractItemModel* source = there->animations();
    AnimationImport import(list,
                           {{source->index(0, 0), QStringLiteral("one")},
                            {source->index(1, 0), QStringLiteral("two")}},
                           ImportConflict::Replace);
    list->remove(1);
    const AnimationImportResult result = import.insert(-1, QStringLiteral("Import"), {});
    QCOMPARE(result.refused, QStringList(QStringLiteral("two")));
    QCOMPARE(result.replaced, QStringList(QStringLiteral("one")));
    QCOMPARE(list->count(), 1);
}

QTEST_MAIN(TestAnimImport)
#include "tst_animimport.moc"
