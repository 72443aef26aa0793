#include "code/codecs/textcodecs.h"
#include "family/familydocument.h"
#include "support/documentdump.h"
#include "support/laddergrammar.h"

#include <QGuiApplication>
#include <QTextCursor>

#include <cstdint>
#include <cstdlib>
#include <memory>

using Family::FamilyDocument;
using Family::FileKind;

namespace {

using Document = std::unique_ptr<Zorv::CodeDocument>;
using Make = Document (*)(const QString& text);

Document family(const QString& text)
{
    auto document = std::make_unique<FamilyDocument>(FileKind::Character);
    document->setOption(QStringLiteral("parseCode"), true, false, false);
    document->setOption(QStringLiteral("highlightCode"), true, false, false);
    document->fromString(text);
    return document;
}

template <LadderGrammar::Reuse reuse>
Document ladder(const QString& text)
{
    return std::make_unique<LadderDocument>(reuse, text);
}

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

void replace(Zorv::CodeDocument& document, int from, int to, const QString& text)
{
    QTextCursor cursor(&document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

/// After each of some edits, and after their undo, nodes, messages and folding are those of a
/// fresh parse.
void requireTruth(const QString& text, Make make)
{
    const Document document = make(text);
    const auto requireSame = [&] { require(dumpOf(*document) == dumpOf(*make(document->text()))); };
    const QString before = document->text();
    const int end = document->characterCount() - 1;
    replace(*document, end / 3, end / 3, text.right(text.size() / 2));
    requireSame();
    replace(*document, 0, end / 2, QString());
    requireSame();
    document->undo();
    requireSame();
    document->undo();
    requireSame();
    require(document->text() == before);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QGuiApplication application(*argc, *argv);
    return 0;
}

/// Any bytes are loaded as a code file, in each grammar.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const auto data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), int(size));
    int codec = -1;
    const QString text = Zorv::TextCodecs::stringFromData(data, &codec);
    requireTruth(text, family);
    requireTruth(text, ladder<LadderGrammar::Reuse::All>);
    requireTruth(text, ladder<LadderGrammar::Reuse::None>);
    return 0;
}
