#pragma once

#include <QString>
#include <QVector>

class QTextDocument;

namespace Zorv {

/// The names of the steps of undo of a text.
///
/// Qt's history has none. What it tells is how many edits lie behind the present state, so a step
/// is known by that number before and after it. Edits that come after an undo drop the steps
/// that were undone, and their names have to go with them, for their numbers are used again.
class StepTitles
{
public:
    explicit StepTitles(const QTextDocument* document) : m_document(document) {}

    /// Around the edits of one step. The first name that is not empty is that of the step; one
    /// without edits is none.
    void begin(const QString& title);
    void name(const QString& title);
    void end();

    /// The history has grown, or the text has changed in some way.
    void grown();
    void changed();

    QString undone() const;  ///< of the step that undo would take; empty for none
    QString redone() const;

private:
    struct Step
    {
        int before;
        int after;
        QString title;
    };

    void dropBehind(int edits);

    const QTextDocument* m_document;
    QVector<Step> m_steps;  // in their order
    int m_edits = 0;        // behind the state that was seen last
    Step m_open{0, 0, {}};
};

}  // namespace Zorv
