#include "code/codecs/textcodecs.h"
#include "core/messages.h"
#include "family/familydocument.h"
#include "operations/nodetree.h"

#include <QGuiApplication>
#include <QTextCursor>

#include <cstdint>
#include <cstdlib>
#include <memory>

using Family::FamilyDocument;
using Family::FileKind;

namespace {

using Document = std::unique_ptr<FamilyDocument>;

Document makeDocument(const QString& text)
{
    auto document = std::make_unique<FamilyDocument>(FileKind::Character);
    document->setOption(QStringLiteral("parseCode"), true, false, false);
    document->setOption(QStringLiteral("highlightCode"), true, false, false);
    document->fromString(text);
    return document;
}

/// Tree and messages, as lines to compare.
QStringList outline(const FamilyDocument& document)
{
    QStringList lines;
    for (const Family::TreeEntry& entry : Family::nodeTree(&document)) {
        lines += QStringLiteral("%1 %2 %3")
                     .arg(entry.depth)
                     .arg(entry.node->type())
                     .arg(entry.node->block().blockNumber());
    }
    const Zorv::Messages* messages = document.messages();
    for (int i = 0; i < messages->count(Zorv::Message::AllTypes); ++i) {
        const Zorv::Message message = messages->at(i);
        lines += QStringLiteral("%1:%2 %3").arg(message.line).arg(message.column).arg(message.text);
    }
    return lines;
}

void require(bool holds)
{
    if (!holds) {
        abort();
    }
}

void requireTruth(const FamilyDocument& document)
{
    require(outline(document) == outline(*makeDocument(document.text())));
}

void replace(FamilyDocument& document, int from, int to, const QString& text)
{
    QTextCursor cursor(&document);
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    cursor.insertText(text);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static QGuiApplication application(*argc, *argv);
    return 0;
}

/// Any bytes are loaded as a code file. After each of some edits, and after their undo, tree and
/// messages are those of a fresh parse.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* bytes, size_t size)
{
    const auto data = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), int(size));
    int codec = -1;
    const QString text = Zorv::TextCodecs::stringFromData(data, &codec);

    const Document document = makeDocument(text);
    const QString before = document->text();
    const int end = document->characterCount() - 1;
    replace(*document, end / 3, end / 3, text.right(text.size() / 2));
    requireTruth(*document);
    replace(*document, 0, end / 2, QString());
    requireTruth(*document);
    document->undo();
    requireTruth(*document);
    document->undo();
    requireTruth(*document);
    require(document->text() == before);
    return 0;
}
