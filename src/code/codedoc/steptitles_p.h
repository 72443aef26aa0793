#pragma once

#include <QString>
#include <QVector>

class QTextDocument;

namespace Zorv {

/// The names of the undo steps of a text.
///
/// Qt's history stores no names. It only tells how many edits it contains at the moment, so a step
/// is identified by this number before and after it. New edits after an undo drop the undone steps.
/// Their names must be dropped too, because the numbers are used again.
class StepTitles
{
public:
    explicit StepTitles(const QTextDocument* document) : m_document(document) {}

    /// Call around the edits of one step. The first name that is not empty is used. Without edits
    /// there is no step.
    void begin(const QString& title);
    void name(const QString& title);
    void end();

    /// The history has grown, or the text has changed in any way.
    void grown();
    void changed();

    QString undone() const;  ///< name of the step that undo would revert; empty if none
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
    QVector<Step> m_steps;  // in order
    int m_edits = 0;        // length of the history at the last check
    Step m_open{0, 0, {}};
};

}  // namespace Zorv
