// Loading a file: text set, parsed, coloured, with its tree and its messages.
// Peers: a bare QTextDocument, and a highlighter that knows no tree.

#include "support/bench.h"
#include "support/codetext.h"

#include "core/messages.h"
#include "family/familydocument.h"

#include <QGuiApplication>
#include <QPlainTextDocumentLayout>
#include <QTextDocument>

#ifdef HAVE_KSYNTAXHIGHLIGHTING
#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>
#endif

namespace {

double loadFamily(const QString& text)
{
    auto* document = new Family::FamilyDocument(Family::FileKind::Code);
    const double time = Bench::once([&] { document->setPlainText(text); });
    if (!document->next()) {
        std::puts("no tree: the benchmark is wrong");
    }
    document->release();
    return time;
}

double loadBare(const QString& text)
{
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    return Bench::once([&] { document.setPlainText(text); });
}

#ifdef HAVE_KSYNTAXHIGHLIGHTING
double loadPeer(const QString& text)
{
    static KSyntaxHighlighting::Repository repository;
    QTextDocument document;
    document.setDocumentLayout(new QPlainTextDocumentLayout(&document));
    KSyntaxHighlighting::SyntaxHighlighter highlighter(&document);
    highlighter.setTheme(repository.defaultTheme());
    highlighter.setDefinition(repository.definitionForName(QStringLiteral("INI Files")));
    return Bench::once([&] { document.setPlainText(text); });
}
#endif

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    for (const int lines : {100000, 1000000}) {
        const QString text = CodeText::makeIni(lines);
        const int rounds = lines > 100000 ? 3 : 7;
        loadBare(text);
        const double bare = Bench::medianOf(rounds, [&] { return loadBare(text); });
        const double own = Bench::medianOf(rounds, [&] { return loadFamily(text); });
        std::printf("%d lines\n", lines);
        Bench::ratio("  load: document with tree / bare document", own, bare, 3.0);
#ifdef HAVE_KSYNTAXHIGHLIGHTING
        loadPeer(text);
        const double peer = Bench::medianOf(rounds, [&] { return loadPeer(text); });
        Bench::ratio("  load: document with tree / KSyntaxHighlighting", own, peer, 0.8);
#else
        std::puts("  KSyntaxHighlighting is not installed: no peer");
#endif
    }
    const QString mixed = CodeText::make(CodeText::Form::Mixed, 100000);
    const double bare = Bench::medianOf(5, [&] { return loadBare(mixed); });
    const double own = Bench::medianOf(5, [&] { return loadFamily(mixed); });
    Bench::ratio("mixed 100,000 lines: document with tree / bare document", own, bare);
    return 0;
}
