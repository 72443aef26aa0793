#include "editors/code/codeeditor.h"

#include "core/filesystemarchive.h"
#include "showneditor.h"
#include "support/monkey.h"
#include "support/randomtext.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <array>
#include <functional>
#include <memory>

using namespace Zorv;

namespace {

constexpr quint32 Seed = 20261121;
constexpr int Events = 20000;
constexpr int MostLines = 250;

const RandomText Text({"[1]", "[1*]", "!x", "!y*", "a=(1)", "b=2", "-f", "# note", "", "?e", "?w"},
                      QStringLiteral("[]!-=#*1a\n"));

const Qt::Key Keys[] = {Qt::Key_Up,     Qt::Key_Down,     Qt::Key_Left,      Qt::Key_Right,
                        Qt::Key_Home,   Qt::Key_End,      Qt::Key_PageUp,    Qt::Key_PageDown,
                        Qt::Key_Return, Qt::Key_Delete,   Qt::Key_Backspace, Qt::Key_Insert,
                        Qt::Key_Escape, Qt::Key_Tab,      Qt::Key_Shift,     Qt::Key_Up,
                        Qt::Key_Down,   Qt::Key_Backspace};

const QKeySequence::StandardKey Sequences[] = {QKeySequence::Undo,
                                               QKeySequence::Redo,
                                               QKeySequence::Undo,
                                               QKeySequence::Cut,
                                               QKeySequence::Copy,
                                               QKeySequence::Paste,
                                               QKeySequence::SelectAll,
                                               QKeySequence::DeleteEndOfWord,
                                               QKeySequence::MoveToNextWord,
                                               QKeySequence::MoveToEndOfDocument,
                                               QKeySequence::MoveToStartOfDocument,
                                               QKeySequence::SelectPreviousPage,
                                               QKeySequence::SelectNextWord};

/// Does something at random to a code editor and its documents.
class Monkey : public MonkeyOf<Monkey>
{
public:
    Monkey();
    ~Monkey() { shown.editor.setDocument(nullptr); }

    void tidy();
    QString fault() const;

private:
    QTextDocument* text() { return shown.editor.document(); }
    QTextBlock anyLine() { return text()->findBlockByNumber(number(text()->blockCount())); }
    QPoint placeIn(QWidget* widget)
    {
        return {number(widget->width()), number(widget->height() + 40) - 20};
    }
    QPoint boxOfAFold();

    void press();
    void type();
    void clickInText();
    void dragInText();
    void hover();
    void clickInGutter();
    void dragInGutter();
    void turnTheWheel();
    void fold();
    void editElsewhere();
    void showAnother();
    void replaceADocument();
    void readAgain();
    void changeTheWidget();
    void goSomewhere();
    void wait();

    QTemporaryDir folder;
    std::array<std::unique_ptr<GrammarDocument>, 3> documents;
    ShownEditor shown;
};

void move(QWidget* widget, const QPoint& place, Qt::MouseButtons buttons)
{
    QMouseEvent event(QEvent::MouseMove, place, widget->mapToGlobal(place),
                      buttons ? Qt::LeftButton : Qt::NoButton, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

}  // namespace

Monkey::Monkey()
    : MonkeyOf(Seed, {{60, &Monkey::type},
                      {60, &Monkey::press},
                      {20, &Monkey::clickInText},
                      {10, &Monkey::dragInText},
                      {20, &Monkey::hover},
                      {20, &Monkey::clickInGutter},
                      {10, &Monkey::dragInGutter},
                      {8, &Monkey::turnTheWheel},
                      {25, &Monkey::fold},
                      {10, &Monkey::editElsewhere},
                      {4, &Monkey::showAnother},
                      {2, &Monkey::replaceADocument},
                      {3, &Monkey::readAgain},
                      {4, &Monkey::changeTheWidget},
                      {8, &Monkey::goSomewhere},
                      {8, &Monkey::wait}})
{
    for (auto& document : documents) {
        document = std::make_unique<GrammarDocument>(Text.lines(random, 80));
    }
    QFile words(folder.filePath(QStringLiteral("words.xml")));
    if (words.open(QIODevice::WriteOnly)) {
        words.write("<completer version=\"1\"><words trigger=\"a=\">"
                    "<word text=\"yes\"/><word text=\"no\"/></words></completer>");
    }
    words.close();
    shown.editor.completerFromFile(words.fileName());
}

void Monkey::tidy()
{
    if (text()->blockCount() > MostLines) {
        text()->setPlainText(Text.lines(random, 80));
    }
}

void Monkey::type()
{
    static const QByteArray characters = "[]!-=#*1a?ew()";
    QTest::keyClick(&shown.editor, characters.at(number(characters.size())));
}

void Monkey::press()
{
    QAbstractItemView* popup = shown.editor.completer()->popup();
    QWidget* target = popup->isVisible() ? static_cast<QWidget*>(popup) : &shown.editor;
    if (chance(3)) {
        QTest::keySequence(target, Sequences[number(std::size(Sequences))]);
    } else {
        static const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier, Qt::NoModifier,
                                                          Qt::ShiftModifier, Qt::ControlModifier};
        QTest::keyClick(target, Keys[number(std::size(Keys))], modifiers[number(4)]);
    }
}

void Monkey::clickInText()
{
    const QPoint place = chance(3) ? boxOfAFold() : placeIn(shown.viewport());
    if (chance(4)) {
        QTest::mouseDClick(shown.viewport(), Qt::LeftButton, {}, place);
    } else {
        QTest::mouseClick(shown.viewport(), Qt::LeftButton,
                          chance(3) ? Qt::ShiftModifier : Qt::NoModifier, place);
    }
}

void Monkey::dragInText()
{
    QTest::mousePress(shown.viewport(), Qt::LeftButton, {}, placeIn(shown.viewport()));
    for (int i = number(4); i >= 0; --i) {
        move(shown.viewport(), placeIn(shown.viewport()), Qt::LeftButton);
    }
    QTest::mouseRelease(shown.viewport(), Qt::LeftButton, {}, placeIn(shown.viewport()));
}

QPoint Monkey::boxOfAFold()
{
    for (QTextBlock b = text()->begin(); b.next().isValid(); b = b.next()) {
        if (b.isVisible() && !b.next().isVisible() && chance(2)) {
            return shown.box(b.blockNumber());
        }
    }
    return placeIn(shown.viewport());
}

void Monkey::hover()
{
    QWidget* widget = chance(2) ? shown.gutter() : shown.viewport();
    move(widget, widget == shown.gutter() ? placeIn(widget) : boxOfAFold(), {});
    if (chance(10)) {
        QTest::qWait(50);
        (void)shown.editor.grab();
    }
}

void Monkey::clickInGutter()
{
    const QPoint place = chance(2)
                             ? QPoint(shown.gutter()->width() - 4, placeIn(shown.gutter()).y())
                             : placeIn(shown.gutter());
    QTest::mouseClick(shown.gutter(), Qt::LeftButton, {}, place);
}

/// A drag that is not ended goes on in whatever comes next.
void Monkey::dragInGutter()
{
    QTest::mousePress(shown.gutter(), Qt::LeftButton, {}, placeIn(shown.gutter()));
    move(shown.gutter(), placeIn(shown.gutter()), Qt::LeftButton);
    if (chance(2)) {
        QTest::mouseRelease(shown.gutter(), Qt::LeftButton, {}, placeIn(shown.gutter()));
    }
}

void Monkey::turnTheWheel()
{
    QWidget* widget = chance(2) ? shown.gutter() : shown.viewport();
    const QPoint place = widget->rect().center();
    QWheelEvent event(place, widget->mapToGlobal(place), {}, {0, 120 * (number(11) - 5)},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::fold()
{
    if (chance(6)) {
        shown.editor.foldAll();
    } else if (chance(8)) {
        shown.editor.unfoldAll();
    } else if (chance(3)) {
        shown.editor.reveal(anyLine());
    } else if (const QTextBlock block = anyLine(); block.isVisible()) {
        shown.editor.toggleBlockVisible(block);
        shown.editor.moveCursorVisible(chance(2));
    }
}

void Monkey::editElsewhere()
{
    const auto& document = documents.at(std::size_t(number(3)));
    Text.edit(random, *document);
    if (document->blockCount() > MostLines) {
        document->setPlainText(Text.lines(random, 80));
    }
}

void Monkey::showAnother()
{
    shown.editor.setDocument(chance(8) ? nullptr : documents.at(std::size_t(number(3))).get());
}

void Monkey::replaceADocument()
{
    auto& document = documents.at(std::size_t(number(3)));
    document.reset();
    document = std::make_unique<GrammarDocument>(Text.lines(random, 80));
}

void Monkey::readAgain()
{
    const auto& document = documents.at(std::size_t(number(3)));
    QFile file(folder.filePath(QStringLiteral("text")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(chance(2) ? document->text().toUtf8() : Text.lines(random, 80).toUtf8());
        file.close();
        document->fromFile(*FileSystemArchive::instance(), file.fileName(), -1, false);
    }
}

void Monkey::changeTheWidget()
{
    CodeEditor::SyntaxFormatting formatting = shown.editor.syntaxFormatting();
    switch (number(6)) {
    case 0:
        shown.editor.resize(30 + number(600), 10 + number(500));
        break;
    case 1:
        shown.editor.setLineWrapMode(chance(2) ? QPlainTextEdit::WidgetWidth
                                               : QPlainTextEdit::NoWrap);
        break;
    case 2:
        shown.editor.setLayoutDirection(chance(2) ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    case 3:
        shown.editor.setReadOnly(chance(4));
        break;
    default:
        formatting.markArea = chance(2);
        formatting.lineNumbers = !chance(4);
        formatting.foldingMarkers = !chance(4);
        formatting.highlightBlocks = chance(2);
        formatting.parenMatching = chance(2);
        formatting.highlightCurrentLine = chance(2);
        shown.editor.setSyntaxFormatting(formatting);
    }
}

void Monkey::goSomewhere()
{
    if (chance(2)) {
        shown.editor.setCurrentLine(unsigned(number(300)), CodeEditor::LineType(number(3)));
    } else {
        shown.editor.setCurrentLine(
            CodeEditor::LinePos{number(300) - 10, number(20) - 5, number(300) - 10});
    }
}

void Monkey::wait()
{
    QTest::qWait(chance(20) ? 130 : 1);
}

/// What is wrong with the editor, for a person; empty for nothing.
QString Monkey::fault() const
{
    const QTextDocument* document = shown.editor.document();
    const QString folds = faultOfFolds(document);
    if (!folds.isEmpty()) {
        return folds;
    }
    if (!shown.editor.textCursor().block().isVisible()) {
        return QStringLiteral("the cursor is hidden");
    }
    const QList<int> starts = shown.editor.rangeStarts();
    const QList<int> ends = shown.editor.rangeEnds();
    if (!starts.isEmpty() && starts.size() != ends.size()) {
        return QStringLiteral("ranges without an end");
    }
    const QScrollBar* bar = shown.editor.verticalScrollBar();
    // All of them if the view is lower than a line.
    if (bar->minimum() != 0 || bar->maximum() > document->lineCount()) {
        return QStringLiteral("the scroll bar goes to %1 of %2 lines")
            .arg(bar->maximum())
            .arg(document->lineCount());
    }
    for (const QTextEdit::ExtraSelection& selection : shown.editor.extraSelections()) {
        if (selection.cursor.document() != document) {
            return QStringLiteral("a selection of another text");
        }
    }
    return {};
}

/// The editor survives whatever happens, and nothing of the text is ever out of reach.
class TestCodeMonkey : public QObject
{
    Q_OBJECT

private slots:
    void survives();
};

void TestCodeMonkey::survives()
{
    Monkey().survive(Events);
}

QTEST_MAIN(TestCodeMonkey)
#include "tst_codemonkey.moc"
