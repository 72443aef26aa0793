#include "code/codedoc/codedocument.h"

#include "code/codecs/textcodecs.h"
#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/codedocumenteditor.h"
#include "core/messages.h"
#include "core/project.h"

#include <QFont>
#include <QPlainTextDocumentLayout>
#include <QSet>

namespace Zorv {

namespace {

const QString& highlightCodeKey()
{
    static const QString key = QStringLiteral("highlightCode");
    return key;
}

const QString& parseCodeKey()
{
    static const QString key = QStringLiteral("parseCode");
    return key;
}

}  // namespace

CodeDocument::CodeDocument(short tag) : RootCode(tag)
{
    // Set the plain layout first: the default one would lay out the text again for every coloured
    // line.
    setDocumentLayout(new QPlainTextDocumentLayout(this));
    setDefaultFont(QFont(QStringLiteral("Courier"), 10));
    d = std::make_unique<CodeDocumentPrivate>(this);
    setCodec("UTF-8");
}

CodeDocument::~CodeDocument()
{
    emit closing();
    // An editor may be registered several times, but must be released only once.
    QList<CodeDocumentEditor*> editors;
    for (CodeDocumentEditor* editor : qAsConst(d->editors)) {
        if (!editors.contains(editor)) {
            editors.append(editor);
        }
    }
    d->editors.clear();
    for (CodeDocumentEditor* editor : editors) {
        if (Project* project = editor->ProjectFile::project()) {
            project->takeFile(editor);
        }
        editor->release();
    }
    d->parser = nullptr;
    QTextDocument::clear();
    d->dropDeadNodes();
    d.reset();
}

void CodeDocument::setParser(CodeParser* parser)
{
    if (d->parser != parser) {
        if (!d->parser) {
            // Without a parser, messages do not follow the text.
            messages()->clear();
        }
        d->parser = parser;
        reparse();
    }
}

CodeParser* CodeDocument::parser() const
{
    return d->parser;
}

bool CodeDocument::hasSyntaxHighlight() const
{
    return option(highlightCodeKey()).toBool();
}

void CodeDocument::setSyntaxHighlight(bool highlight)
{
    if (highlight != hasSyntaxHighlight()) {
        setOption(highlightCodeKey(), highlight, false, false);
        reparse();
    }
}

void CodeDocument::reparse()
{
    d->dropDeadNodes();
    for (QTextBlock block = begin(); block.isValid(); block = block.next()) {
        if (CodeNode* node = nodeInBlock(block)) {
            CodeBlockDataPrivate::forgetNode(CodeBlockData::testBlockData(block), node);
            CodeDocumentPrivate::retire(node);
        }
    }
    d->rehighlightAll();
}

void CodeDocument::rehighlight()
{
    d->rehighlightAll();
}

void CodeDocument::enableGroups(std::initializer_list<unsigned> groups)
{
    for (const unsigned group : groups) {
        if (!d->groups.contains(group)) {
            d->groups.append(group);
        }
    }
    if (hasSyntaxHighlight()) {
        rehighlight();
    }
}

bool CodeDocument::groupEnabled(unsigned group) const
{
    if (!option(parseCodeKey()).toBool()) {
        return false;
    }
    return group == 0 || d->groups.contains(group);
}

void CodeDocument::setSyntaxFormat(CodeParserSyntax::TokenType type, const QTextCharFormat& format)
{
    CodeDocumentPrivate::m_syntaxFmts[type] = format;
}

QTextCharFormat CodeDocument::syntaxFormat(CodeParserSyntax::TokenType type)
{
    return CodeDocumentPrivate::m_syntaxFmts[type];
}

CodeNode* CodeDocument::nodeInBlock(const QTextBlock& block) const
{
    const CodeBlockData* data = CodeBlockData::testBlockData(block);
    return data ? data->codeNode() : nullptr;
}

CodeNode* CodeDocument::nodeBefore(const QTextBlock& block) const
{
    for (QTextBlock above = block.previous(); above.isValid(); above = above.previous()) {
        const CodeBlockData* data = CodeBlockData::testBlockData(above);
        if (data && data->d->owner) {
            if (data->d->node) {
                return data->d->node;
            }
            data = LineIndex::backward(data, CodeBlockDataPrivate::HasNode);
            return data ? data->d->node : const_cast<CodeDocument*>(this);
        }
    }
    return const_cast<CodeDocument*>(this);
}

CodeDocumentEditor* CodeDocument::documentEditor(CodeNode::Type type, unsigned group) const
{
    return d->editors.value(CodeDocumentPrivate::editorKey(type, group));
}

void CodeDocument::registerDocumentEditor(CodeDocumentEditor* editor, CodeNode::Type type,
                                          unsigned group)
{
    d->editors.insert(CodeDocumentPrivate::editorKey(type, group), editor);
}

void CodeDocument::unregisterDocumentEditor(CodeDocumentEditor* editor)
{
    const auto found = std::find(d->editors.begin(), d->editors.end(), editor);
    if (found != d->editors.end()) {
        d->editors.erase(found);
    }
}

void CodeDocument::removeDocumentEditor(CodeDocumentEditor* editor)
{
    for (auto entry = d->editors.begin(); entry != d->editors.end();) {
        entry = *entry == editor ? d->editors.erase(entry) : std::next(entry);
    }
}

CodeDocument* CodeDocument::document() const
{
    return const_cast<CodeDocument*>(this);
}

void CodeDocument::insertChild(CodeNode* child, unsigned index)
{
    RootCode::insertChild(child, index);
    d->announce(child);
}

void CodeDocument::removeChild(CodeNode* child)
{
    d->forget(child);
    RootCode::removeChild(child);
}

void CodeDocument::childChanged(CodeNode* child)
{
    if (CodeDocumentEditor* editor = d->editors.value(CodeDocumentPrivate::editorKey(child))) {
        editor->childChanged(child);
    }
}

quint64 CodeDocument::parsedLineCount() const
{
    return d->parsedLines;
}

EditorData* CodeDocument::editorData(const QString& editor) const
{
    const auto found = d->editorData.find(editor);
    return found == d->editorData.end() ? nullptr : found->second.get();
}

void CodeDocument::setEditorData(const QString& editor, std::unique_ptr<EditorData> data)
{
    d->editorData[editor] = std::move(data);
}

}  // namespace Zorv
