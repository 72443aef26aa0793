#include "editors/code/codefindtext.h"

#include "code/codedoc/codedocument.h"
#include "editors/code/codefind.h"

namespace Zorv {

void CodeFindText::setDocument(CodeDocument* document)
{
    if (m_document == document) {
        return;
    }
    if (m_document) {
        m_document->disconnect(this);
    }
    m_document = document;
    if (document) {
        connect(document, &QTextDocument::contentsChange, this, &CodeFindText::drop);
        connect(document, &CodeDocument::closing, this, [this] { setDocument(nullptr); });
    }
    drop();
}

CodeDocument* CodeFindText::document() const
{
    return m_document;
}

const QString& CodeFindText::text()
{
    if (!m_isCurrent) {
        m_text = m_document ? CodeFind::searchableText(m_document) : QString();
        m_isCurrent = true;
    }
    return m_text;
}

void CodeFindText::drop()
{
    m_text.clear();
    if (m_isCurrent) {
        m_isCurrent = false;
        emit changed();
    }
}

}  // namespace Zorv
