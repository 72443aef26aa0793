#include "animation/thumbnails/spritelist.h"

#include "animation/spritedrag.h"
#include "animation/thumbnails/spriteuses.h"
#include "support/testgrammar.h"
#include "support/testsprites.h"

#include <QAbstractItemModelTester>
#include <QDrag>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QRandomGenerator>
#include <QScrollBar>
#include <QToolTip>
#include <QtTest>

#include <memory>

using namespace Zorv;

namespace {

using Numbers = QVector<SpriteNumber>;

/// A picture that can be told from all others by its colour.
QImage picture(int kind)
{
    QImage image(16, 12, QImage::Format_Indexed8);
    image.setColorTable({qRgb(kind * 37 % 251, kind * 71 % 241, 20 + kind * 13 % 199)});
    image.fill(0);
    return image;
}

/// What a row shows beside the middle of its picture; the ground for a broken sprite.
QColor shownColor(const SpriteList& list, int row)
{
    const QRect rect = list.visualRect(list.model()->index(row, 0));
    return list.viewport()->grab(rect).toImage().pixelColor(rect.width() / 2 + 12, 32);
}

void fill(TestSprites* sprites, int count)
{
    for (int i = 0; i < count; ++i) {
        sprites->insert(i, {i / 10, i % 10}, picture(i));
    }
}

/// A widget that takes sprites, as the strip does.
class Taker : public QWidget
{
public:
    Taker() { setAcceptDrops(true); }

    Numbers taken;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent* event) override
    {
        taken = draggedSprites(event->mimeData());
        event->acceptProposedAction();
    }
};

}  // namespace

class TestSpriteList : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void decodesWhatIsInSight();
    void showsTheSpritesOfNow();
    void marksWhatNoFrameShows();
    void dragsTheSelection();
    void letsGoOfWhatDies();

private:
    void settle();

    std::unique_ptr<TestSprites> m_sprites;
    std::unique_ptr<SpriteList> m_list;
};

void TestSpriteList::init()
{
    m_sprites = std::make_unique<TestSprites>();
    m_list = std::make_unique<SpriteList>();
    m_list->resize(360, 300);
    m_list->setSprites(m_sprites.get());
    m_list->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_list.get()));
}

void TestSpriteList::cleanup()
{
    m_list.reset();
    m_sprites.reset();
}

/// Until nothing is painted or decoded any more.
void TestSpriteList::settle()
{
    int before = -1;
    while (before != m_sprites->decodings) {
        before = m_sprites->decodings;
        m_list->viewport()->repaint();
        QTest::qWait(5);
    }
}

void TestSpriteList::decodesWhatIsInSight()
{
    fill(m_sprites.get(), 3000);
    settle();
    const QRect cell = m_list->visualRect(m_list->model()->index(0, 0));
    const int most = (m_list->viewport()->width() / cell.width() + 1) *
                     (m_list->viewport()->height() / cell.height() + 2);
    QVERIFY(m_sprites->decodings > 0);
    // Rows that came one by one were in sight, too.
    m_sprites->decodings = 0;
    m_list->scrollToBottom();
    settle();
    QVERIFY(m_sprites->decodings > 0 && m_sprites->decodings <= most);
    QCOMPARE(shownColor(*m_list, 2999), QColor(picture(2999).color(0)));

    // What is kept is not decoded again.
    m_list->viewport()->repaint();
    const int before = m_sprites->decodings;
    settle();
    QCOMPARE(m_sprites->decodings, before);
}

/// Whatever happens to the collection.
void TestSpriteList::showsTheSpritesOfNow()
{
    constexpr quint32 seed = 20;
    QRandomGenerator random(seed);
    QAbstractItemModelTester tester(m_sprites.get(),
                                    QAbstractItemModelTester::FailureReportingMode::QtTest);
    fill(m_sprites.get(), 9);
    m_list->resize(900, 600);
    int next = 100;
    for (int step = 0; step < 60; ++step) {
        const int count = int(m_sprites->count());
        const int row = random.bounded(count);
        m_list->setCurrentIndex(m_sprites->index(row, 0));
        switch (random.bounded(7)) {
        case 0:
            m_sprites->insert(row, {random.bounded(9), next}, picture(next));
            ++next;
            break;
        case 1:
            if (count > 4) {
                m_sprites->removeSprite(row);
            }
            break;
        case 2:
            m_sprites->move(unsigned(row), unsigned(random.bounded(count)));
            break;
        case 3:
            m_sprites->autoOrganize();
            break;
        case 4:
            m_sprites->setImage(row, row % 3 ? picture(next) : QImage());
            ++next;
            break;
        case 5:
            // The signal alone tells of colours.
            m_sprites->sprite(row)->setImage(picture(++next));
            emit m_sprites->palettes()->palChanged(false);
            break;
        default:
            m_sprites->reload();
        }
        settle();
        for (int i = 0; i < int(m_sprites->count()); ++i) {
            const QImage image = m_sprites->sprite(i)->Sprite::image();
            const bool isSelected = m_list->selectionModel()->isRowSelected(i, {});
            if (!image.isNull() || !isSelected) {
                const QColor expected = image.isNull() ? m_list->palette().color(QPalette::Base)
                                                       : QColor(image.color(0));
                QVERIFY2(
                    shownColor(*m_list, i) == expected,
                    qPrintable(
                        QStringLiteral("seed %1, step %2, row %3").arg(seed).arg(step).arg(i)));
            }
        }
    }
}

void TestSpriteList::marksWhatNoFrameShows()
{
    fill(m_sprites.get(), 4);
    GrammarDocument document(QStringLiteral("!a\n-0,1\n-0,3\n"));
    auto* animations = new TestAnimations(&document);
    document.registerDocumentEditor(animations, CodeNode::Animation, 0);
    document.reparse();
    SpriteUses uses;
    const auto marked = [this] {
        QVector<int> rows;
        for (int row = 0; row < int(m_sprites->count()); ++row) {
            if (m_list->isMarked(row)) {
                rows.append(row);
            }
        }
        return rows;
    };
    m_list->setUses(&uses);
    QCOMPARE(marked(), QVector<int>());
    uses.setAnimations({animations});
    QCOMPARE(marked(), (QVector<int>{0, 2}));

    // The mark is painted without anybody asking for it.
    settle();
    const auto shown = [this](int row) {
        return m_list->grab(m_list->visualRect(m_sprites->index(row, 0))).toImage();
    };
    const QImage used = shown(1);
    animations->at(0)->frames().first()->setSprite(0, 0);
    QCOMPARE(marked(), (QVector<int>{1, 2}));
    QTRY_VERIFY(shown(1) != used);
    const auto tip = [this](int row) {
        const QPoint place = m_list->visualRect(m_sprites->index(row, 0)).center();
        QHelpEvent help(QEvent::ToolTip, place, m_list->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(m_list->viewport(), &help);
        return QToolTip::text();
    };
    QVERIFY(tip(2).contains(QStringLiteral("No frame")));
    m_sprites->setImage(2, QImage());
    settle();
    QVERIFY(tip(2).contains(QStringLiteral("broken")));
}

void TestSpriteList::dragsTheSelection()
{
    fill(m_sprites.get(), 6);
    settle();
    Taker taker;
    taker.setGeometry(500, 0, 100, 100);
    taker.show();
    QVERIFY(QTest::qWaitForWindowExposed(&taker));
    const auto place = [this](int row) {
        return m_list->visualRect(m_sprites->index(row, 0)).center();
    };
    QWidget* viewport = m_list->viewport();
    QTest::mouseClick(viewport, Qt::LeftButton, {}, place(4));
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, place(1));
    QCOMPARE(m_list->selectedSprites(), (Numbers{{0, 1}, {0, 4}}));
    // The drag has a loop of its own.
    QTimer::singleShot(0, &taker, [&taker] {
        QTest::mouseMove(&taker, QPoint(40, 40));
        QTest::mouseMove(&taker, QPoint(50, 50));
        QTest::mouseRelease(&taker, Qt::LeftButton, {}, QPoint(50, 50));
    });
    QTest::mousePress(viewport, Qt::LeftButton, {}, place(1));
    QMouseEvent move(QEvent::MouseMove, place(1) + QPoint(30, 0), Qt::LeftButton, Qt::LeftButton,
                     {});
    QCoreApplication::sendEvent(viewport, &move);
    QCoreApplication::sendEvent(viewport, &move);
    QTRY_COMPARE(taker.taken, (Numbers{{0, 1}, {0, 4}}));
    QCOMPARE(m_sprites->count(), 6U);
}

void TestSpriteList::letsGoOfWhatDies()
{
    fill(m_sprites.get(), 50);
    auto uses = std::make_unique<SpriteUses>();
    m_list->setUses(uses.get());
    m_list->viewport()->repaint();
    m_list->selectAll();
    uses.reset();
    m_sprites.reset();
    QTest::qWait(20);
    m_list->viewport()->repaint();
    QCOMPARE(m_list->selectedSprites(), Numbers());
    QVERIFY(!m_list->sprites() && !m_list->isMarked(0));
    m_sprites = std::make_unique<TestSprites>();
}

QTEST_MAIN(TestSpriteList)
#include "tst_spritelist.moc"
