#include "paintingfixture.h"

#include "app/actions/actionregistry.h"
#include "support/monkey.h"
#include "support/testtable.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace {

using Zorv::Dialogs;

constexpr int LargestSide = 40;

QImage picture(QSize size, int colors)
{
    QImage image(size, colors > 256 ? QImage::Format_ARGB32 : QImage::Format_Indexed8);
    for (int i = 0; i < colors && colors <= 256; ++i) {
        image.setColor(i, qRgba(i * 5 % 256, i, colors % 256, i ? 255 : 0));
    }
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int value = x * 7 + y * size.width();
            image.setPixel(x, y, colors > 256 ? qRgba(value, x, y, value * 3) : value % colors);
        }
    }
    return image;
}

/// Declares more than any memory holds.
QByteArray hugePng()
{
    return QByteArray::fromHex("89504e470d0a1a0a0000000d494844527fffffff7fffffff0803000000");
}

}  // namespace

/// All that the editors of sprites and palettes offer, with dialogs that answer in any way, on
/// sprites of every kind.
class TestSpriteWalk : public PaintingTest
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void canAllBeTakenBack_data();
    void canAllBeTakenBack();
    void outlivesItsFile_data();
    void outlivesItsFile();

private:
    int number(int end) { return int(m_random.bounded(std::max(end, 1))); }
    QStringList anyFiles(bool isSaved);
    void answer(const PlannedDialogs::Shown& shown);
    void fillIn(QDialog* dialog);
    void answerModal();
    void clickRemap();
    void show(int row) const { m->window->paint()->showSprite(sprites(), row); }
    QByteArray written() const
    {
        const QString path = m_folder->filePath(QStringLiteral("written.sprites"));
        sprites()->toFile(*Zorv::FileSystemArchive::instance(), path, true);
        return readFile(path);
    }

    QRandomGenerator m_random;
    QTimer m_watch;
    int m_closeAt = -1;  // the dialog behind which the project goes; -1 for none
    int m_dialogs = 0;
};

void TestSpriteWalk::init()
{
    begin();
    Family::SpriteFile file;
    int row = -1;
    for (const auto& [size, colors] :
         {std::pair(QSize(9, 7), 2), std::pair(QSize(16, 12), 16), std::pair(QSize(1, 1), 3),
          std::pair(QSize(20, 13), 256), std::pair(QSize(11, 9), 257), std::pair(QSize(8, 8), 4)}) {
        const quint16 id = quint16(++row);
        QVERIFY(file.insertSprite(row, {0, id}, {3, 2}, picture(size, colors)));
    }
    file.addSprite();  // without pixels
    file.refresh();
    const QString path = m_game->path(SpritePath);
    QVERIFY(file.toFile(*Zorv::FileSystemArchive::instance(), path, true));
    QByteArray bytes = readFile(path);
    bytes[bytes.size() - 1] = char(bytes.at(bytes.size() - 1) ^ 0x55);  // of the last stream
    QVERIFY(writeFile(path, bytes));
    QVERIFY(static_cast<Family::SpriteFile*>(sprites())->reload());
    for (const auto& [name, colors] :
         {std::pair("a.png", 16), std::pair("b.png", 2), std::pair("c.png", 257)}) {
        picture({13, 11}, colors).save(m_folder->filePath(QString::fromLatin1(name)));
    }
    writeFile(m_folder->filePath(QStringLiteral("huge.png")), hugePng());
    writeFile(m_folder->filePath(QStringLiteral("good.act")), QByteArray(768, 'x'));
    writeFile(m_folder->filePath(QStringLiteral("short.act")), QByteArray(5, 'x'));
    m->dialogs.whileOpen = [this](const PlannedDialogs::Shown& shown) { answer(shown); };
    m_dialogs = 0;
    m_watch.callOnTimeout([this] { answerModal(); });
    m_watch.start(1);
}

void TestSpriteWalk::cleanup()
{
    m_watch.stop();
    m_watch.disconnect();
    m.reset();
}

QStringList TestSpriteWalk::anyFiles(bool isSaved)
{
    if (isSaved) {
        return {m_folder->filePath(QStringLiteral("out%1").arg(number(9)) +
                                   (number(2) ? ".png" : ".act"))};
    }
    const char* const names[] = {"a.png",    "b.png",     "c.png",   "huge.png",
                                 "good.act", "short.act", "gone.png"};
    QStringList files;
    for (int i = number(4); i > 0; --i) {
        files.append(m_folder->filePath(QString::fromLatin1(names[number(7)])));
    }
    return files;
}

void TestSpriteWalk::answer(const PlannedDialogs::Shown& shown)
{
    PlannedDialogs& dialogs = m->dialogs;
    dialogs.buttonAnswers = {number(3) ? Dialogs::Yes : number(2) ? Dialogs::No : Dialogs::Cancel};
    dialogs.choiceAnswers = {number(shown.choices.size() + 1) - 1};
    dialogs.textAnswers = QStringList(QStringLiteral("%1,%2").arg(number(3)).arg(number(50)));
    dialogs.colorAnswers = {QColor::fromRgba(m_random.generate())};
    dialogs.fileAnswers = {anyFiles(shown.kind.startsWith(QLatin1String("save")))};
    if (m_dialogs++ == m_closeAt) {
        dialogs.whileOpen = [&dialogs](const PlannedDialogs::Shown& question) {
            dialogs.choiceAnswers = {question.choices.size() - 1};  // discard
        };
        m->action("close_folder")->trigger();
        dialogs.buttonAnswers = {Dialogs::Yes};
        dialogs.choiceAnswers = {0};
    }
}

void TestSpriteWalk::fillIn(QDialog* dialog)
{
    for (auto* box : dialog->findChildren<QSpinBox*>()) {
        box->setValue(number(LargestSide));
    }
    for (auto* box : dialog->findChildren<QDoubleSpinBox*>()) {
        box->setValue(number(200) / 100.0);
    }
    for (auto* box : dialog->findChildren<QComboBox*>()) {
        box->setCurrentIndex(number(box->count()));
    }
    for (auto* view : dialog->findChildren<QAbstractItemView*>()) {
        if (view->model() && number(3)) {
            view->setCurrentIndex(view->model()->index(number(view->model()->rowCount()), 0));
        }
    }
}

void TestSpriteWalk::answerModal()
{
    const QPointer<QDialog> dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || qobject_cast<QProgressDialog*>(dialog)) {
        return;
    }
    const bool isClosing = m_dialogs++ == m_closeAt;
    fillIn(dialog);
    if (isClosing) {
        answer({});
        m->action("close_folder")->trigger();
    }
    if (dialog && dialog->isVisible() && (isClosing || number(4))) {
        dialog->accept();
    }
    if (dialog && dialog->isVisible()) {
        dialog->reject();
    }
}

/// The table of remaps stays open beside the rest.
void TestSpriteWalk::clickRemap()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->windowTitle() == QLatin1String("Remap") && window->isVisible()) {
            const QList<QPushButton*> buttons = window->findChildren<QPushButton*>();
            buttons.at(number(buttons.size()))->click();
        }
    }
}

void TestSpriteWalk::canAllBeTakenBack_data()
{
    columns<int>("seed");
    for (int seed = 1; seed <= 3; ++seed) {
        QTest::addRow("%d", seed) << seed + qEnvironmentVariableIntValue("ZORV_TEST_SEED");
    }
}

void TestSpriteWalk::canAllBeTakenBack()
{
    m_random.seed(quint32(fetchedColumn<int>("seed")));
    const QByteArray first = written();
    QStringList names{"undo", "redo", "copy", "paste", "paint_to_true", "paint_to_indexed"};
    for (const QString& name : m->window->registry()->names()) {
        if (name.startsWith(QLatin1String("spr_")) || name.startsWith(QLatin1String("pal_"))) {
            names.append(name);
        }
    }
    const int events = std::max(150, qEnvironmentVariableIntValue("ZORV_TEST_RUNS"));
    for (int i = 0; i < events; ++i) {
        if (number(4) == 0) {
            show(number(int(sprites()->count())));
        }
        const QString name = names.at(number(names.size()));
        QAction* action = m->window->registry()->action(name);
        if (action->isEnabled()) {
            action->trigger();
        }
        clickRemap();
        QCoreApplication::processEvents();
        const int row = editor()->spriteIndex();
        QVERIFY2(row < int(sprites()->count()), qPrintable(name));
        QVERIFY2(!QApplication::activeModalWidget(), qPrintable(name));
    }
    QVERIFY(written() != first);
    m->dialogs.whileOpen = [this](const PlannedDialogs::Shown& shown) {
        m->dialogs.choiceAnswers = {shown.choices.size() - 1};
    };
    QVERIFY(editor()->canDiscardInput());
    while (sprites()->canUndo()) {
        sprites()->undo();
    }
    QVERIFY(written() == first);
    QVERIFY(!editor()->isCanvasModified());
}

void TestSpriteWalk::outlivesItsFile_data()
{
    columns<QString, int>("name", "dialog");
    for (const char* name :
         {"spr_add", "spr_openimg", "spr_saveimgas", "spr_delete", "spr_resize", "spr_image_rotate",
          "spr_image_properties", "spr_next", "pal_add", "pal_clear", "pal_delete",
          "pal_delete_duplicates", "pal_open", "pal_save", "pal_set_color", "pal_apply_sprite"}) {
        for (int dialog = 0; dialog < 3; ++dialog) {
            QTest::addRow("%s %d", name, dialog) << name << dialog;
        }
    }
}

/// The folder is closed behind one of the dialogs of an action, and the person goes on in it.
void TestSpriteWalk::outlivesItsFile()
{
    const auto [name, dialog] = fetched<QString, int>();
    m_random.seed(quint32(dialog));
    m->host.setOption(QStringLiteral("confirm_delete"), true);
    show(1);
    canvas()->flip(true, false);
    m_closeAt = dialog;
    QCoreApplication::processEvents();
    m->window->registry()->action(name)->trigger();
    QCoreApplication::processEvents();
    QCOMPARE(editor()->sprites() == nullptr, m_dialogs > dialog);
    m_closeAt = -1;
}

QTEST_MAIN(TestSpriteWalk)
#include "tst_spritewalk.moc"
