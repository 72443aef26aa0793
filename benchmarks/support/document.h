#pragma once

#include "family/familydocument.h"

#include <QTextCursor>

#include <memory>

/// Documents of the reference family to be measured.
namespace Bench {

struct Released
{
    void operator()(Family::FamilyDocument* document) const { document->release(); }
};
using Document = std::unique_ptr<Family::FamilyDocument, Released>;

inline Document load(const QString& text)
{
    Document document(new Family::FamilyDocument(Family::FileKind::Code));
    document->setPlainText(text);
    return document;
}

/// Qt looks through all lines when the widest one that it has laid out shrinks:
/// the widest stands at the top, and is left alone.
inline void putWidestOnTop(QTextDocument& document)
{
    QTextCursor cursor(document.begin());
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(QLatin1String("  # ") + QString(400, QLatin1Char('-')));
}

}  // namespace Bench
