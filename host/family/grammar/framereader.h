#pragma once

#include "family/grammar/linereader.h"
#include "family/grammar/valuereader.h"

namespace Family {

/// Reads the rest of a line after "frame".
class FrameReader
{
public:
    FrameReader(LineScanner& scanner, LineReport& report)
        : m_scanner(scanner), m_report(report), m_values(scanner, report)
    {
    }

    /// Fills in what could be read. False if the rest of the line is meaningless.
    bool read(FrameData* frame);

private:
    bool readSprite(FrameData* frame);
    bool readOption(FrameData* frame);
    bool readContent(int option, FrameData* frame);
    bool readFlip(FrameData* frame);
    bool optionUnknown(int start);

    LineScanner& m_scanner;
    LineReport& m_report;
    ValueReader m_values;
    unsigned m_seen = 0;
};

}  // namespace Family
