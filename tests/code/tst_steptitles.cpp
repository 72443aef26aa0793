#include "support/testgrammar.h"
#include "support/testinterface.h"

#include <QHash>
#include <QRandomGenerator>
#include <QTextCursor>
#include <QtTest>

/// The history of a text knows the names of its steps.
class TestStepTitles : public QObject
{
    Q_OBJECT

private slots:
    void followsAnyEdits();

private:
    void edit();
    void change();

    std::unique_ptr<GrammarDocument> m_document;
    QRandomGenerator m_random{2311};
    int m_edits = 0;
    // No text comes twice, so it tells which step begins there.
    QHash<QString, QString> m_titles;
};

/// Now and then one that Qt joins with the one before, or several edits in a block of Qt's.
void TestStepTitles::edit()
{
    QTextCursor cursor(m_document.get());
    cursor.movePosition(m_random.bounded(3) > 0 ? QTextCursor::End : QTextCursor::Start);
    const bool isBlock = m_random.bounded(3) == 0;
    if (isBlock) {
        cursor.beginEditBlock();
    }
    ++m_edits;
    cursor.insertText(QStringLiteral("%1;").arg(m_edits));
    if (isBlock) {
        cursor.movePosition(QTextCursor::Start);
        cursor.insertText(QStringLiteral("."));
        cursor.endEditBlock();
    }
}

void TestStepTitles::change()
{
    const QString title = QString::number(++m_edits);
    const int depth = 1 + m_random.bounded(3);
    const int named = m_random.bounded(depth + 1);
    const QString before = m_document->text();
    for (int i = 0; i < depth; ++i) {
        m_document->beginChange(i < named ? QString() : title + QString(i - named, '+'));
    }
    for (int edits = m_random.bounded(4); edits > 0; --edits) {
        edit();
    }
    for (int i = 0; i < depth; ++i) {
        m_document->endChange();
    }
    if (m_document->text() != before) {
        m_titles[before] = named < depth ? title : QString();
    }
}

void TestStepTitles::followsAnyEdits()
{
    TestInterface host;
    m_document = std::make_unique<GrammarDocument>();
    m_document->setPlainText(QStringLiteral("a=1\n"));
    for (int i = 0; i < 3000; ++i) {
        const QString before = m_document->text();
        switch (m_random.bounded(8)) {
        case 0:
        case 1:
            edit();
            m_titles.remove(before);
            break;
        case 2:
        case 3:
            change();
            break;
        case 4:
        case 5:
        case 6:
            m_random.bounded(2) ? m_document->undo() : m_document->QTextDocument::undo();
            break;
        default:
            m_document->redo();
        }
        const QString text = m_document->text();
        QCOMPARE(m_document->redoTitle(), m_document->canRedo() ? m_titles.value(text) : QString());
        const QString title = m_document->undoTitle();
        if (m_document->canUndo()) {
            m_document->undo();
            QCOMPARE(title, m_titles.value(m_document->text()));
            m_document->redo();
            QCOMPARE(m_document->text(), text);
        }
        QCOMPARE(m_document->undoTitle(), title);
    }
    m_document->setPlainText(QStringLiteral("b=1\n"));
    QCOMPARE(m_document->undoTitle() + m_document->redoTitle(), QString());
}

QTEST_MAIN(TestStepTitles)
#include "tst_steptitles.moc"
