#include "family/grammar/linereport.h"

namespace Family {

const LinePart* LineDetails::part(LinePart::Role role, int index) const
{
    for (const LinePart& candidate : parts) {
        if (candidate.role == role && candidate.index == index) {
            return &candidate;
        }
    }
    return nullptr;
}

QVector<LinePart> LineDetails::elements(const LinePart* whole) const
{
    QVector<LinePart> result;
    for (const LinePart& candidate : parts) {
        if (candidate.role == LinePart::Element &&
            (!whole || (candidate.start >= whole->start && candidate.end <= whole->end))) {
            result.append(candidate);
        }
    }
    return result;
}

void LineReport::problem(ProblemId id, const QStringList& arguments, int start, int end,
                         Zorv::CodeParserSyntax::TokenType type)
{
    const QString text = problemText(id, arguments);
    if (m_details) {
        m_details->problems.append({id, start, end, text});
    }
    if (!m_syntax) {
        return;
    }
    switch (problemInfo(id).level) {
    case Level::Error:
        m_syntax->error(type, text, unsigned(start), unsigned(end));
        break;
    case Level::Warning:
        m_syntax->warning(type, text, unsigned(start), unsigned(end));
        break;
    case Level::Deprecated:
        m_syntax->deprecated(type, text, unsigned(start), unsigned(end));
        break;
    }
}

}  // namespace Family
