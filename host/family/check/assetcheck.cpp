#include "family/check/assetcheck.h"

#include <QCoreApplication>

namespace Family {

namespace {

const int MostNames = 10;
const int MostRecords = 20;

/// Translation context of this file.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Family)
};

}  // namespace

void AssetCheck::checkSprites(const AssetFacts& facts)
{
    if (!facts.isReadable) {
        tell(ProblemId::FileBroken, Text::tr("sprite"));
        return;
    }
    check(facts, &FileFacts::sprites, ProblemId::SpriteMissing, ProblemId::SpritesUnused);
    if (facts.faults.isEmpty()) {
        tellList(ProblemId::PalettesUnused, facts.unusedPalettes);
        tellList(ProblemId::ColoursLost, facts.cutPalettes);
    }
}

void AssetCheck::checkSounds(const AssetFacts& facts)
{
    if (!facts.isReadable) {
        tell(ProblemId::FileBroken, Text::tr("sound"));
        return;
    }
    check(facts, &FileFacts::sounds, ProblemId::SoundMissing, ProblemId::SoundsUnused);
}

void AssetCheck::check(const AssetFacts& facts, Uses uses, ProblemId missing, ProblemId unused)
{
    // With a broken record, things may only seem to be missing or unused, so report just the
    // faults.
    if (!facts.faults.isEmpty()) {
        tellFaults(facts.faults);
        return;
    }
    QSet<quint32> known;
    for (const AssetId id : facts.ids) {
        known.insert(id.key());
    }
    QSet<quint32> named;
    for (const FactStore::Code& code : m_code) {
        for (const AssetUse& use : code.get()->*uses) {
            named.insert(use.id.key());
            if (!known.contains(use.id.key())) {
                const NamedPlace place{{}, code->file, use.line, use.column, use.length};
                m_problems.append(problemAt(missing, {use.id.text(), m_place.name}, place));
            }
        }
    }
    QStringList names;
    for (const AssetId id : m_isComplete ? facts.ids : QVector<AssetId>()) {
        if (!named.contains(id.key())) {
            names.append(id.text());
        }
    }
    names.removeDuplicates();
    tellList(unused, names);
}

void AssetCheck::tellFaults(const QStringList& lines)
{
    for (const QString& line : lines.mid(0, MostRecords)) {
        tell(ProblemId::RecordBroken, line);
    }
    if (lines.size() > MostRecords) {
        tell(ProblemId::RecordBroken,
             Text::tr("%n more record(s) are broken.", nullptr, lines.size() - MostRecords));
    }
}

void AssetCheck::tellList(ProblemId id, const QStringList& names)
{
    if (names.isEmpty()) {
        return;
    }
    QString list = QStringList(names.mid(0, MostNames)).join(QLatin1String(" "));
    if (names.size() > MostNames) {
        list = Text::tr("%1 and %n more", nullptr, names.size() - MostNames).arg(list);
    }
    tell(id, list);
}

void AssetCheck::tell(ProblemId id, const QString& text)
{
    m_problems.append(problemAt(id, {m_place.name, text}, m_place));
}

}  // namespace Family
