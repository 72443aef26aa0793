#pragma once

#include "family/check/assetfacts.h"
#include "family/check/factstore.h"

#include <QSet>

namespace Family {

/// Finds the problems of a project's sprites or sounds and of the lines that use them.
class AssetCheck
{
public:
    /// `place` is the path in the main file; that file must exist. Set `isComplete` only if all
    /// code that could use its sprites and sounds is known.
    AssetCheck(const NamedPlace& place, const QVector<FactStore::Code>& code, bool isComplete)
        : m_place(place), m_code(code), m_isComplete(isComplete)
    {
    }

    void checkSprites(const AssetFacts& facts);
    void checkSounds(const AssetFacts& facts);

    const Problems& problems() const { return m_problems; }

private:
    using Uses = QVector<AssetUse> FileFacts::*;

    void check(const AssetFacts& facts, Uses uses, ProblemId missing, ProblemId unused);
    void tellFaults(const QStringList& lines);
    void tellList(ProblemId id, const QStringList& names);
    void tell(ProblemId id, const QString& text);

    NamedPlace m_place;
    const QVector<FactStore::Code>& m_code;
    bool m_isComplete;
    Problems m_problems;
};

}  // namespace Family
