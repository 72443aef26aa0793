#include "operations/linediff.h"
#include "operations/textdiff.h"
#include "support/testtable.h"

#include <QRandomGenerator>
#include <QStringList>
#include <QtTest>

using namespace Operations;

namespace {

QStringList withLineEnds(const QString& text)
{
    QStringList lines = text.split('\n');
    for (int i = 0; i + 1 < lines.size(); ++i) {
        lines[i] += '\n';
    }
    if (lines.last().isEmpty()) {
        lines.removeLast();
    }
    return lines;
}

QString unmarked(QStringList* patch)
{
    QString line = patch->takeFirst().mid(1) + '\n';
    if (patch->first().startsWith('\\')) {
        patch->removeFirst();
        line.chop(1);
    }
    return line;
}

// What a reader of the unified format makes of it, with every line that it
// leaves or removes compared to the old text.
QString patched(const QString& oldText, const QString& diff)
{
    const QStringList old = withLineEnds(oldText);
    QStringList patch = diff.split('\n').mid(2);
    QString result;
    int line = 0;
    const QRegularExpression head("^@@ -(\\d+)(?:,(\\d+))? \\+(\\d+)(?:,(\\d+))? @@$");
    while (patch.size() > 1) {
        const auto match = head.match(patch.takeFirst());
        if (!match.hasMatch()) {
            return "no head of a hunk";
        }
        const auto count = [&match](int group) {
            return match.captured(group).isEmpty() ? 1 : match.captured(group).toInt();
        };
        int oldCount = count(2);
        int newCount = count(4);
        const int start = match.captured(1).toInt() - (oldCount > 0 ? 1 : 0);
        while (line < start) {
            result += old[line++];
        }
        if (withLineEnds(result).size() != match.captured(3).toInt() - (newCount > 0 ? 1 : 0)) {
            return "wrong start in the new text";
        }
        while (oldCount > 0 || newCount > 0) {
            const QChar mark = patch.first().at(0);
            const QString text = unmarked(&patch);
            if (mark != '+') {
                if (text != old.value(line)) {
                    return "a line that is not in the old text: " + text;
                }
                ++line;
                --oldCount;
            }
            if (mark != '-') {
                result += text;
                --newCount;
            }
        }
    }
    while (line < old.size()) {
        result += old[line++];
    }
    return result;
}

QString randomText(QRandomGenerator& random, int lines, int kinds)
{
    QString text;
    for (int i = 0; i < lines; ++i) {
        text += QString::number(random.bounded(kinds)) + '\n';
    }
    if (random.bounded(3) == 0) {
        text.chop(1);
    }
    return text;
}

}  // namespace

class TestTextDiff : public QObject
{
    Q_OBJECT

private slots:
    void format_data();
    void format();
    void patchGivesTheNewText();
    void movedPartIsSmall();
};

void TestTextDiff::format_data()
{
    columns<QString, QString, QString>("oldText", "newText", "hunks");

    row("equal", "a\nb\n", "a\nb\n", "");
    row("one line", "1\n2\n3\n4\n5\n6\n7\n8\n9\n", "1\n2\n3\n4\nx\n6\n7\n8\n9\n",
        "@@ -2,7 +2,7 @@\n 2\n 3\n 4\n-5\n+x\n 6\n 7\n 8\n");
    row("two hunks", "a\n1\n2\n3\n4\n5\n6\n7\nb\n", "A\n1\n2\n3\n4\n5\n6\n7\nB\n",
        "@@ -1,4 +1,4 @@\n-a\n+A\n 1\n 2\n 3\n"
        "@@ -6,4 +6,4 @@\n 5\n 6\n 7\n-b\n+B\n");
    row("from nothing", "", "a\n", "@@ -0,0 +1 @@\n+a\n");
    row("line end goes", "a\nb\n", "a\nb",
        "@@ -1,2 +1,2 @@\n a\n-b\n+b\n\\ No newline at end of file\n");
}

void TestTextDiff::format()
{
    const auto [oldText, newText, hunks] = fetched<QString, QString, QString>();
    const QString head = hunks.isEmpty() ? QString() : QStringLiteral("--- old\n+++ new\n");
    QCOMPARE(unifiedDiff(oldText, newText, "old", "new"), head + hunks);
}

void TestTextDiff::patchGivesTheNewText()
{
    const quint32 seed = 20240531;
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    for (int round = 0; round < 2000; ++round) {
        const int kinds = 1 + random.bounded(round % 2 == 0 ? 4 : 60);
        // A few are too long and too different for the smallest difference.
        const int longest = round % 200 == 0 ? 3000 : 40;
        const QString oldText = randomText(random, random.bounded(longest), kinds);
        const QString newText = randomText(random, random.bounded(longest), kinds);
        const QString diff = unifiedDiff(oldText, newText, "old", "new");
        QCOMPARE(diff.isEmpty(), oldText == newText);
        if (!diff.isEmpty()) {
            QCOMPARE(patched(oldText, diff), newText);
        }
    }
}

// A part that has moved is removed and added once; nothing around it is.
void TestTextDiff::movedPartIsSmall()
{
    QString head;
    QString part;
    QString rest;
    for (int i = 0; i < 5000; ++i) {
        head += QStringLiteral("head %1\n\n").arg(i);
        rest += QStringLiteral("rest %1\nloop\n").arg(i);
    }
    for (int i = 0; i < 20; ++i) {
        part += QStringLiteral("part %1\n").arg(i);
    }
    const QString oldText = head + part + rest;
    const QString newText = part + head + rest;
    const QStringList lines = unifiedDiff(oldText, newText, "old", "new").split('\n').mid(2);
    const auto count = [&lines](QChar mark) {
        return std::count_if(lines.begin(), lines.end(),
                             [mark](const QString& line) { return line.startsWith(mark); });
    };
    QCOMPARE(count('-'), 20);
    QCOMPARE(count('+'), 20);
}

QTEST_GUILESS_MAIN(TestTextDiff)
#include "tst_textdiff.moc"
