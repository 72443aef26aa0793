#pragma once

#include "zorv_export.h"

#include <QObject>
#include <QPointer>
#include <QString>

namespace Zorv {

class CodeDocument;

/// The text of a document as it is searched, copied once and again after an edit.
///
/// One search after the other goes through the same copy, however large the
/// document is; the copy is made when it is asked for, not while the person types.
/// Main thread only.
class ZORV_EXPORT CodeFindText : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Null for none; not owned, and let go of when it dies. Drops the copy.
    void setDocument(CodeDocument* document);
    CodeDocument* document() const;

    /// `CodeFind::searchableText()` of the document as it is now; empty without one.
    /// Linear after an edit, else constant. Not within a change of the document.
    const QString& text();

    /// Frees the copy, until it is asked for again.
    void drop();

signals:
    /// The text has changed since it was asked for last, or was dropped. Once, until
    /// it is asked for again; Qt may still be busy with the edit.
    void changed();

private:
    QPointer<CodeDocument> m_document;
    QString m_text;
    bool m_isCurrent = false;
};

}  // namespace Zorv
