#include "code/codedoc/codeblockdata.h"

#include "code/codedoc/codedocument_p.h"
#include "code/codedoc/folding_p.h"

namespace Zorv {

namespace {

class LineData final : public CodeBlockData
{
public:
    LineData() : CodeBlockData(&m_state) {}

    ~LineData() override
    {
        if (m_state.owner) {
            m_state.owner->lineGone(this);
        }
    }

private:
    CodeBlockDataPrivate m_state;
};

}  // namespace

CodeBlockData::CodeBlockData(CodeBlockDataPrivate* state) : d(state) {}

CodeBlockData::~CodeBlockData() = default;

CodeBlockData* CodeBlockData::blockData(const QTextBlock& block)
{
    CodeBlockData* data = testBlockData(block);
    if (!data && block.isValid()) {
        data = new LineData;
        QTextBlock(block).setUserData(data);
    }
    return data;
}

CodeBlockData* CodeBlockData::testBlockData(const QTextBlock& block)
{
    return static_cast<CodeBlockData*>(block.userData());
}

CodeNode* CodeBlockData::codeNode() const
{
    return d->node;
}

bool CodeBlockData::isFolded() const
{
    return d->isFolded;
}

void CodeBlockData::setFolded(bool folded)
{
    d->isFolded = folded;
}

bool CodeBlockData::isParsed() const
{
    return d->isParsed;
}

const QVector<CodeBlockData::SyntaxMessage>& CodeBlockData::syntaxMessages() const
{
    static const QVector<SyntaxMessage> none;
    return d->details ? d->details->syntaxMessages : none;
}

const QVector<CodeBlockData::Parenthesis>& CodeBlockData::parenthesis() const
{
    static const QVector<Parenthesis> none;
    return d->details ? d->details->parenthesis : none;
}

int CodeBlockData::foldingIndent() const
{
    return d->owner ? Folding::indent(this) : 0;
}

CodeBlockDataPrivate* CodeBlockDataPrivate::of(CodeBlockData* data)
{
    return data->d;
}

void CodeBlockDataPrivate::forgetNode(CodeBlockData* data, const CodeNode* node)
{
    if (data->d->node == node) {
        data->d->node = nullptr;
        if (data->d->owner) {
            LineIndex::setTraits(data, data->d->traits & ~HasNode);
        }
    }
}

CodeBlockDetails& CodeBlockDataPrivate::makeDetails()
{
    if (!details) {
        details = std::make_unique<CodeBlockDetails>();
    }
    return *details;
}

QTextBlock CodeBlockDataPrivate::block() const
{
    return owner ? QTextBlock(owner->document()->docHandle(), fragment) : QTextBlock();
}

}  // namespace Zorv
