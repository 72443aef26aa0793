#pragma once

#include "family/grammar/problems.h"

#include <QString>
#include <QVector>

namespace Family {

/// A problem at its place.
struct Problem
{
    QString file;    ///< as the check was asked: a path
    int line = 1;    ///< from 1
    int column = 1;  ///< from 1
    int length = 0;  ///< characters that are meant; 0 for the whole line
    Level level = Level::Error;
    ProblemId id = ProblemId::LineUnknown;
    QString text;
};

using Problems = QVector<Problem>;

bool operator==(const Problem& a, const Problem& b);

/// Order by file, line, column, kind and text; equal ones are left once.
void sortProblems(Problems* problems);

/// "file:line:column: error: text".
QString problemLine(const Problem& problem);

/// How many problems there are.
struct ProblemTally
{
    int errors = 0;
    int warnings = 0;  ///< and what is deprecated

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
