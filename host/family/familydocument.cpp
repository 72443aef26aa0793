#include "family/familydocument.h"

#include "family/familyanimations.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/familyparser.h"

#include <zorv/core/filesystemarchive.h>

namespace Family {

namespace {

constexpr int noClass = 0;
constexpr int headLine = 1;
constexpr int bodyLine = 2;
constexpr int outermost = 4;

}  // namespace

CommentTravel::CommentTravel(FamilyDocument* document)
{
    const QVariant option =
        document ? document->option(QStringLiteral("code_comments_travel")) : QVariant(false);
    m_document = !option.isValid() || option.toBool() ? document : nullptr;
    if (m_document) {
        ++m_document->m_commentTravels;
    }
}

CommentTravel::~CommentTravel()
{
    if (m_document) {
        --m_document->m_commentTravels;
    }
}

FamilyDocument::FamilyDocument(FileKind kind) : CodeDocument(short(kind))
{
    setOption(QStringLiteral("parseCode"), true, false, false);
    setOption(QStringLiteral("highlightCode"), true, false, false);
    m_animations = new FamilyAnimations(this);
    connect(this, &CodeDocument::haveRead, this, &FamilyDocument::synchronized);
    setParser(FamilyParser::instance());
}

FamilyDocument::~FamilyDocument() = default;

FileKind FamilyDocument::kind() const
{
    return FileKind(tag());
}

FamilyDocument* FamilyDocument::open(const QString& fileName, QString* error)
{
    auto document = std::make_unique<FamilyDocument>(fileKindOf(fileName));
    if (document->fromFile(*Zorv::FileSystemArchive::instance(), fileName, false)) {
        return document.release();
    }
    if (error) {
        *error = document->errorString();
    }
    return nullptr;
}

int FamilyDocument::projectKind() const
{
    return tag();
}

int FamilyDocument::blockFolding(const QString& line) const
{
    LineScanner scanner(line);
    scanner.skipBlanks();
    if (scanner.atCodeEnd()) {
        return noClass;
    }
    if (scanner.accept('[')) {
        scanner.skipBlanks();
        return scanner.accept('.') ? headLine : headLine | outermost;
    }
    const QStringRef word = scanner.word();
    scanner.skipBlanks();
    const bool isHead = word == QLatin1String("animation") && scanner.current() != QLatin1Char('=');
    return isHead ? headLine | outermost : bodyLine;
}

bool FamilyDocument::toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    const bool isWritten = CodeDocument::toFile(archive, fileName, asCopy);
    if (isWritten && !asCopy) {
        emit synchronized();
    }
    return isWritten;
}

void FamilyDocument::release()
{
    if (m_releasing) {
        delete this;
        return;
    }
    m_releasing = true;
    destroy();
}

}  // namespace Family
