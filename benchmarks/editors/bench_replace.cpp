// Replacing all of many matches as edits of the matches alone, against the replacing of the whole
// text; and looking for the next match, forward and backward.

#include "support/bench.h"
#include "support/codetext.h"
#include "support/document.h"

#include "editors/code/codeeditor.h"
#include "editors/code/codefind.h"
#include "editors/code/codefindtext.h"

#include <QApplication>

namespace {

constexpr int Matches = 50000;

using Bench::Document;
using Bench::load;

struct Case
{
    const char* name;
    const char* pattern;
    unsigned flags;
    const char* with;
};

/// A text of plain values in which `pattern` is found in a part of the lines.
QString textWith(int matches)
{
    QString text = QStringLiteral("[constants]\n");
    for (int i = 0; i < matches; ++i) {
        text += QStringLiteral("life = %1\npower = 3000  # most power\n").arg(i);
    }
    return text;
}

double timeOfReplaceAll(const QString& text, const Case& what)
{
    const Document document = load(text);
    Zorv::CodeEditor editor;
    editor.setDocument(document.get());
    const double time = Bench::once([&] {
        const Zorv::CodeFind find(QLatin1String(what.pattern), what.flags);
        const QString searched = Zorv::CodeFind::searchableText(document.get());
        if (find.replaceAll(&editor, searched, QLatin1String(what.with)) != Matches) {
            std::puts("not as many matches: the benchmark is wrong");
        }
    });
    document->undo();
    if (document->text() != text) {
        std::puts("not one step of undo: the benchmark is wrong");
    }
    return time;
}

double timeOfPeer(const QString& text, const Case& what)
{
    const Document document = load(text);
    Zorv::CodeEditor editor;
    editor.setDocument(document.get());
    return Bench::once([&] {
        QString pattern = QLatin1String(what.pattern);
        if (!(what.flags & Zorv::FindRegularExpression)) {
            pattern = QRegularExpression::escape(pattern);
        }
        const QRegularExpression expression(pattern, QRegularExpression::CaseInsensitiveOption);
        document->setPlainText(
            document->toPlainText().replace(expression, QLatin1String(what.with)));
    });
}

void compareReplaceAll()
{
    const QString text = textWith(Matches);
    const Case cases[] = {
        {"replace all of 50,000: a word", "power =", 0, "strength ="},
        {"replace all of 50,000: an expression with groups", "(life) = (\\d+)",
         Zorv::FindRegularExpression, "\\1=\\2"},
        {"replace all of 50,000: with a line more", "  # most", 0, "\n# most"},
    };
    for (const Case& what : cases) {
        double own = 0;
        const double ratio = Bench::medianOf(3, [&] {
            own = timeOfReplaceAll(text, what);
            return own / timeOfPeer(text, what);
        });
        Bench::ratio(what.name, ratio, 1, 3);
        Bench::figure("  time", own, "ms");
    }
}

void timeSearch()
{
    const Document document = load(CodeText::makeIni(1000000));
    Zorv::CodeFindText text;
    text.setDocument(document.get());
    const int size = text.text().size();
    Bench::figure("a text of 1,000,000 lines", size / 1e6, "million characters");
    const Zorv::CodeFind none(QStringLiteral("not in there"));
    Bench::figure("  nothing found, forward", Bench::median(5, [&] { none.next(text.text(), 0); }),
                  "ms");
    Bench::figure("  nothing found, backward",
                  Bench::median(5, [&] { none.previous(text.text(), size); }), "ms");
    const Zorv::CodeFind one(QStringLiteral("[constants]"));
    Bench::figure("  found at the end, backward",
                  Bench::median(5, [&] { one.previous(text.text(), size); }), "ms");
    Bench::figure("  the copy of the text",
                  Bench::median(5,
                                [&] {
                                    text.drop();
                                    text.text();
                                }),
                  "ms");
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    compareReplaceAll();
    timeSearch();
    return 0;
}
