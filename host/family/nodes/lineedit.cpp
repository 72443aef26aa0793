#include "family/nodes/lineedit.h"

#include "family/grammar/grammar.h"
#include "family/grammar/linereader.h"
#include "family/grammar/linescanner.h"
#include "family/nodes/familyparser.h"

#include <zorv/code/codedoc/codedocument.h>
#include <zorv/core/interface.h>

#include <QTextBlock>
#include <QTextCursor>
#include <algorithm>

namespace Family {

namespace {

const QChar commentMark = QLatin1Char(Grammar::CommentChar);

/// `CodeNode::change()` keeps the text after the first comment character and puts one blank before
/// it. True, with the code to pass to it, if this gives the wanted line.
bool fitsChange(const Zorv::CodeDocument* document, const QString& present, const QString& wanted,
                QString* code)
{
    const int mark = present.indexOf(commentMark);
    if (mark < 0) {
        *code = wanted;
        return true;
    }
    if (!document->project() && !Zorv::Interface::instance()) {
        return false;
    }
    const QString kept = QLatin1Char(' ') + present.midRef(mark);
    *code = wanted.left(wanted.size() - kept.size());
    return wanted.endsWith(kept) && !code->contains(commentMark) &&
           LineScanner(present).commentStart() == mark;
}

void setLine(Zorv::CodeNode* node, const QString& present, const QString& wanted)
{
    Zorv::CodeDocument* document = node->document();
    QString code;
    if (fitsChange(document, present, wanted, &code)) {
        node->change(code);
        return;
    }
    QTextCursor cursor(node->block());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    document->replaceSelection(wanted, cursor);
}

}  // namespace

NodeLine::NodeLine(const Zorv::CodeNode* node) : text(node->block().text())
{
    const Zorv::CodeDocument* document = node->document();
    if (!document) {
        return;
    }
    LineReport report(nullptr, &details);
    readLine(text, headAbove(node->previous()), FileKind(document->tag()), report);
}

void replaceColumns(Zorv::CodeNode* node, QVector<Replacement> replacements)
{
    if (!node->document()) {
        return;
    }
    const QString present = node->block().text();
    std::sort(replacements.begin(), replacements.end(),
              [](const Replacement& a, const Replacement& b) { return a.start > b.start; });
    QString wanted = present;
    for (const Replacement& replacement : qAsConst(replacements)) {
        wanted.replace(replacement.start, replacement.end - replacement.start, replacement.text);
    }
    if (wanted != present) {
        setLine(node, present, wanted);
    }
}

}  // namespace Family
