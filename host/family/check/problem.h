#pragma once

#include "family/grammar/problems.h"

#include <QString>
#include <QVector>

namespace Family {

/// A problem and its position.
struct Problem
{
    QString file;    ///< a path in the form passed to the check
    int line = 1;    ///< from 1
    int column = 1;  ///< from 1
    int length = 0;  ///< in characters; 0 for the whole line
    Level level = Level::Error;
    ProblemId id = ProblemId::LineUnknown;
    QString text;
};

using Problems = QVector<Problem>;

bool operator==(const Problem& a, const Problem& b);

/// Sorts by file, line, column, kind and text; removes duplicates.
void sortProblems(Problems* problems);

/// "file:line:column: error: text".
QString problemLine(const Problem& problem);

/// The number of problems.
struct ProblemTally
{
    int errors = 0;
    int warnings = 0;  ///< including deprecated things

    void add(const Problems& problems);
    bool isEmpty() const { return errors + warnings == 0; }

    /// "3 errors, 1 warning".
    QString inWords() const;

    bool operator==(const ProblemTally& other) const
    {
        return errors == other.errors && warnings == other.warnings;
    }
};

}  // namespace Family
