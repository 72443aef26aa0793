#include "paintingfixture.h"

#include "app/assets/imagelistmodel.h"
#include "app/assets/imagesdialog.h"
#include "operations/media/importimage.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>

using App::ImagesDialog;

/// The dialog by which images come in.
class TestImagesDialog : public PaintingTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m.reset(); }

    void makesAnAnimation();
    void comesFromASheetWithItsTimes();
    void marksWhatCannotCome();
    void livesThroughHostileFiles();
    void goesWithItsSprites();

private:
    ImagesDialog* openWith(const QStringList& files, const std::function<void(ImagesDialog*)>& act);
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString text() const { return m->document()->toPlainText(); }
    static void press(ImagesDialog* dialog, QDialogButtonBox::StandardButton button)
    {
        dialog->findChild<QDialogButtonBox*>()->button(button)->click();
    }
};

void TestImagesDialog::init()
{
    begin();
    m->edit()->setPlainText(QStringLiteral("animation 1\nframe 0,0\n"));
    openFirst();
}

/// Drops files on the canvas, and does something in the dialog that opens.
ImagesDialog* TestImagesDialog::openWith(const QStringList& files,
                                         const std::function<void(ImagesDialog*)>& act)
{
    ImagesDialog* seen = nullptr;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        auto* dialog = qobject_cast<ImagesDialog*>(QApplication::activeModalWidget());
        if (dialog && !seen) {
            seen = dialog;
            act(dialog);
        }
    });
    timer.start(5);
    editor()->addFiles(files);
    return seen;
}

/// One step in each file, whatever the number of images.
void TestImagesDialog::makesAnAnimation()
{
    QVERIFY(picture(2).save(path("walk_2.png")) && picture(3).save(path("walk_3.png")));
    const QString before = text();
    const unsigned count = sprites()->count();
    QVERIFY(openWith({path("walk_2.png"), path("walk_3.png")}, [](ImagesDialog* dialog) {
        const QList<QLineEdit*> lines = dialog->findChildren<QLineEdit*>();
        for (QLineEdit* line : lines) {
            if (line->text().contains("{group}")) {
                line->setText("walk_{number}");
            }
        }
        dialog->findChild<QGroupBox*>()->setChecked(true);
        QCOMPARE(dialog->animation(), QString("2"));
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(sprites()->count(), count + 2);
    QCOMPARE(sprites()->sprite(int(count))->id().text(), QString("0,2"));
    QCOMPARE(sprites()->sprite(int(count))->axis(), QPoint(8, 11));
    QCOMPARE(text(), before + "\nanimation 2\nframe 0,2  delay 6\nframe 0,3  delay 6\n");
    m->document()->undo();
    QCOMPARE(text(), before);
    sprites()->undo();
    QCOMPARE(sprites()->count(), count);
}

void TestImagesDialog::comesFromASheetWithItsTimes()
{
    QVERIFY(picture(2).save(path("a.png")));
    const QByteArray frame = R"({"frame":{"x":%,"y":0,"w":4,"h":12},"duration":20})";
    QByteArray frames;
    for (const char* x : {"0", "4", "0"}) {
        frames += (frames.isEmpty() ? "" : ",") + QByteArray(frame).replace('%', x);
    }
    writeFile(path("a.json"), "{\"frames\":[" + frames + "],\"meta\":{\"image\":\"a.png\"}}");
    const unsigned count = sprites()->count();
    QVERIFY(openWith({path("a.json")}, [](ImagesDialog* dialog) {
        QTRY_COMPARE(dialog->images().size(), 3);
        dialog->findChild<QGroupBox*>()->setChecked(true);
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(sprites()->count(), count + 2);
    QVERIFY(text().endsWith("frame 0,2  delay 1\nframe 0,3  delay 1\nframe 0,2  delay 2\n"));
}

void TestImagesDialog::marksWhatCannotCome()
{
    QVERIFY(picture(2).save(path("0-1.png")) && picture(3).save(path("b.png")));
    QVERIFY(openWith({path("0-1.png"), path("b.png")}, [](ImagesDialog* dialog) {
        auto* model = dialog->findChild<App::ImageListModel*>();
        QVERIFY(model->data(model->index(0), Qt::DisplayRole).toString().contains("0,2"));
        QVERIFY(model->data(model->index(1), Qt::DisplayRole).toString().contains("0,3"));
        // It stands in the place of the sprite there.
        QList<QComboBox*> boxes = dialog->findChildren<QComboBox*>();
        for (QComboBox* box : qAsConst(boxes)) {
            if (box->count() == 2 && box->itemText(1).startsWith("Replace")) {
                box->setCurrentIndex(1);
            }
        }
        QTRY_VERIFY(model->data(model->index(0), Qt::DisplayRole).toString().contains("0,1"));
        QCOMPARE(model->numbers().first().state, Operations::ImageNumber::Replaces);
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(sprites()->sprite(1)->image().convertToFormat(QImage::Format_ARGB32),
             picture(2).convertToFormat(QImage::Format_ARGB32));
}

/// Many files, broken and empty ones among them, and a sheet that is none: all is told, and what
/// can come does.
void TestImagesDialog::livesThroughHostileFiles()
{
    constexpr int Count = 600;
    const QString folder = path("many");
    QDir().mkpath(folder);
    for (int i = 0; i < Count; ++i) {
        const QString name = QStringLiteral("%1/7-%2.png").arg(folder, QString::number(i));
        if (i % 50 == 0) {
            writeFile(name, QByteArray(i, 'x'));
        } else {
            picture(i).copy(0, 0, 1 + i % 16, 1 + i % 12).save(name);
        }
    }
    writeFile(path("bad.json"), "{\"frames\":[");
    const unsigned count = sprites()->count();
    QVERIFY(openWith({folder, path("bad.json")}, [](ImagesDialog* dialog) {
        auto* model = dialog->findChild<App::ImageListModel*>();
        new QAbstractItemModelTester(model, dialog);
        QTRY_COMPARE(dialog->images().size(), Count);
        dialog->findChild<QListView*>()->scrollToBottom();
        QTRY_VERIFY(
            dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
        press(dialog, QDialogButtonBox::Ok);
    }));
    QCOMPARE(sprites()->count(), count + Count - Count / 50);
    QCOMPARE(m->dialogs.count("warning"), 1);
}

void TestImagesDialog::goesWithItsSprites()
{
    QVERIFY(picture(2).save(path("b.png")));
    QVERIFY(openWith({path("b.png")}, [this](ImagesDialog*) {
        m->dialogs.whileOpen = [this](const PlannedDialogs::Shown& question) {
            m->dialogs.choiceAnswers = {question.choices.size() - 1};  // discard
        };
        m->action("close_folder")->trigger();
    }));
    QVERIFY(!m->window->session()->game() && !QApplication::activeModalWidget());
}

QTEST_MAIN(TestImagesDialog)
#include "tst_imagesdialog.moc"
