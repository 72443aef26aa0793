#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace Zorv {

class CodeDocument;

/// A cached copy of a document's searchable text, renewed after an edit.
///
/// Consecutive searches share one copy, however large the document is. The copy is made
/// on demand, not while the user types. Main thread only.
class ZORV_EXPORT CodeFindText : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Null for none; not owned. A document that dies is dropped. Discards the copy.
    void setDocument(CodeDocument* document);
    CodeDocument* document() const;

    /// `CodeFind::searchableText()` of the current document; empty without one. Linear
    /// time after an edit, else constant. Do not call it during a change of the
    /// document.
    const QString& text();

    /// Frees the copy; the next `text()` makes a new one.
    void drop();

signals:
    /// The text has changed since the last `text()`, or the copy was dropped. Emitted
    /// only once until the next `text()`. Qt may still be in the middle of the edit.
    void changed();

private:
    QPointer<CodeDocument> m_document;
    QString m_text;
    bool m_isCurrent = false;
};

}  // namespace Zorv
