#include "family/assets/newsprites.h"
#include "family/assets/pixelstore.h"
#include "family/assets/spritecollection.h"
#include "family/assets/spritetables.h"
#include "family/familyanimations.h"
#include "family/familydocument.h"
#include "family/familydump.h"
#include "family/nodes/animationnode.h"
#include "operations/hostinterface.h"
#include "operations/media/assetimport.h"

#include "support/folders.h"
#include "support/release.h"

#include <zorv/animation/import/animationimport.h>

#include <QBuffer>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <map>
#include <memory>

using namespace Family;
using namespace Operations;
using Zorv::AnimationImport;
using Zorv::ImportConflict;
using Zorv::ImportEntry;
using Zorv::SpriteNumber;

namespace {

const quint32 Seed = 20261122;

using Collection = std::unique_ptr<SpriteCollection, Release>;

/// What a sprite looks like.
struct Look
{
    QByteArray rows;
    QSize size;
    QPoint axis;
    QVector<QRgb> colors;

    bool operator==(const Look& other) const
    {
        return rows == other.rows && size == other.size && axis == other.axis &&
               colors == other.colors;
    }
};

Look lookOf(const FamilySprite& sprite)
{
    return {sprite.pixelRows(), sprite.size(), sprite.axis(), sprite.shownColors()};
}

/// Few of each, so that equal ones meet, and identifiers do.
Collection randomSprites(QRandomGenerator& random)
{
    Collection sprites(newSprites("any.sprites"));
    for (int i = random.bounded(12); i > 0; --i) {
        QImage image(2 + random.bounded(2), 3,
                     random.bounded(4) ? QImage::Format_Indexed8 : QImage::Format_ARGB32);
        image.fill(random.bounded(3));
        if (image.depth() == 8) {
            const QRgb color = qRgb(random.bounded(3), 0, 0);
            image.setColorTable(QVector<QRgb>(256, color));
        }
        const AssetId id{quint16(200 + random.bounded(2)), quint16(random.bounded(6))};
        const int row = int(sprites->count()) - 1;
        sprites->insertSprite(row, id, {random.bounded(2), 0}, image);
    }
    return sprites;
}

QString randomText(QRandomGenerator& random)
{
    const QStringList lines{"",
                            "",
                            "# note",
                            "  # note",
                            "frame 200,%1  offset 2,0 # jab",
                            "frame 201 , %1 delay 4",
                            "frame 200,%1 loop",
                            "body 1,2, 3,4",
                            "frame what",
                            "[move a]",
                            "command = x",
                            "animation %2 \"Name\" # 200",
                            "animation\t%2",
                            "animation %2"};
    QString text;
    for (int i = random.bounded(40); i > 0; --i) {
        const QString line = lines[random.bounded(lines.size())];
        text += QString(line)
                    .replace("%1", QString::number(random.bounded(6)))
                    .replace("%2", QString::number(random.bounded(9))) +
                (i > 1 || random.bounded(2) ? "\n" : "");
    }
    return text;
}

/// A text as lists of lines: what belongs to each animation, and what lies between.
struct PlainText
{
    struct Part
    {
        QString id;  ///< empty for lines of nobody
        QStringList lines;
        bool operator==(const Part& other) const { return id == other.id && lines == other.lines; }
    };
    QVector<Part> parts;

    explicit PlainText(const QString& text);

    static bool isComment(const QString& line) { return line.trimmed().startsWith('#'); }
    static QString headId(const QString& line)
    {
        static const QRegularExpression head("^animation\\s+(\\w+)");
        return head.match(line).captured(1);
    }
    int find(const QString& id) const
    {
        for (int i = 0; i < parts.size(); ++i) {
            if (parts[i].id == id) {
                return i;
            }
        }
        return -1;
    }
};

PlainText::PlainText(const QString& text)
{
    const QStringList lines = text.split('\n');
    QVector<Part> all{{}};
    for (const QString& line : lines) {
        const bool isHead = !headId(line).isEmpty();
        if (isHead || line.startsWith('[')) {
            QStringList above;
            while (!all.last().lines.isEmpty() && isComment(all.last().lines.last())) {
                above.prepend(all.last().lines.takeLast());
            }
            all.append({headId(line), above});
        }
        all.last().lines.append(line);
    }
    // What stands below the code of an animation is nobody's.
    for (Part& part : all) {
        QStringList& own = part.lines;
        int end = own.size();
        while (!part.id.isEmpty() &&
               (isComment(own[end - 1]) || own[end - 1].trimmed().isEmpty())) {
            --end;
        }
        parts.append({part.id, own.mid(0, end)});
        parts.append({{}, own.mid(end)});
    }
}

/// The parts that are told to be somebody's, and the lines of nobody without the empty ones.
QStringList dump(const QVector<PlainText::Part>& parts)
{
    QStringList result;
    for (const PlainText::Part& part : parts) {
        for (const QString& line : part.lines) {
            if (!part.id.isEmpty() || !line.trimmed().isEmpty()) {
                result.append(part.id + ": " + line);
            }
        }
    }
    return result;
}

QStringList withSprites(QStringList lines, const QHash<SpriteNumber, SpriteNumber>& sprites)
{
    const QRegularExpression frame("^(frame )(\\d+)( ?, ?)(\\d+)(.*)$");
    for (QString& line : lines) {
        const auto match = frame.match(line);
        const SpriteNumber old{match.captured(2).toInt(), match.captured(4).toInt()};
        if (match.hasMatch() && sprites.contains(old)) {
            line = match.captured(1) + QString::number(sprites[old].group) + match.captured(3) +
                   QString::number(sprites[old].number) + match.captured(5);
        }
    }
    return lines;
}

/// What the import has to make of a text, by lists of lines.
void importPlainly(PlainText* text, const PlainText& source, const QVector<ImportEntry>& entries,
                   ImportConflict conflicts, const QString& behind,
                   const QHash<SpriteNumber, SpriteNumber>& sprites)
{
    QVector<PlainText::Part> added;
    const QVector<PlainText::Part> old = text->parts;
    for (const ImportEntry& entry : entries) {
        const auto* list = static_cast<const FamilyAnimations*>(entry.source.model());
        PlainText::Part part{entry.identifier, {}};
        int row = entry.source.row();
        for (const PlainText::Part& candidate : source.parts) {
            if (!candidate.id.isEmpty() && row-- == 0) {
                part.lines = withSprites(candidate.lines, sprites);
            }
        }
        for (QString& line : part.lines) {
            line.replace(QRegularExpression("^(animation\\s+)" +
                                            list->animation(entry.source.row())->identifier() +
                                            "\\b"),
                         "\\1" + entry.identifier);
        }
        const auto isSame = [&](const PlainText::Part& other) { return other.id == part.id; };
        const auto known = std::find_if(added.begin(), added.end(), isSame);
        const int place = text->find(part.id);
        if (known == added.end() && place < 0) {
            added.append(part);
        } else if (conflicts == ImportConflict::Replace) {
            (place >= 0 ? text->parts[place] : *known) = part;
        }
    }
    const int place = behind.isEmpty() ? -1 : text->find(behind);
    for (int i = 0; i < added.size(); ++i) {
        text->parts.insert(place < 0 ? text->parts.size() : place + 1 + i, added[i]);
    }
}

QByteArray bytesOf(SpriteCollection* sprites)
{
    const auto snapshot = sprites->snapshot();
    snapshot->gather(-1);
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    snapshot->write(&file);
    return file.data();
}

/// The numbers that sprites get, by the plainest way.
QHash<SpriteNumber, SpriteNumber> plainNumbers(const SpriteCollection& source,
                                               const SpriteCollection& target,
                                               const QVector<SpriteNumber>& wanted)
{
    std::map<quint32, const FamilySprite*> coming;
    for (const SpriteNumber number : wanted) {
        const AssetId id{quint16(number.group), quint16(number.number)};
        if (source.byId(id)) {
            coming[id.key()] = source.byId(id);
        }
    }
    QSet<quint32> taken;
    for (const auto& sprite : target.items()) {
        taken.insert(sprite->id().key());
    }
    const QSet<quint32> before = taken;
    for (const auto& each : coming) {
        taken.insert(each.first);
    }
    QHash<SpriteNumber, SpriteNumber> result;
    for (const auto& each : coming) {
        const FamilySprite* there = target.byId(AssetId::fromKey(each.first));
        if (!before.contains(each.first) || lookOf(*there) == lookOf(*each.second)) {
            continue;
        }
        quint32 key = 0;
        for (int row = int(target.count()) - 1; row >= 0; --row) {
            const FamilySprite* other = target.sprite(row);
            if (lookOf(*other) == lookOf(*each.second) && target.byId(other->id()) == other) {
                key = other->id().key();
            }
        }
        for (quint32 free = each.first; key == 0; ++free) {
            key = taken.contains(free) ? 0 : free;
        }
        taken.insert(key);
        const AssetId from = AssetId::fromKey(each.first);
        const AssetId to = AssetId::fromKey(key);
        result.insert({from.group, from.number}, {to.group, to.number});
    }
    return result;
}

struct Side
{
    explicit Side(QRandomGenerator& random) : document(FileKind::Animations)
    {
        document.setOption("code_comments_travel", true, false, false);
        document.fromString(randomText(random));
        sprites = randomSprites(random);
        sprites->editHistory().clear();
        text = document.text();
        bytes = bytesOf(sprites.get());
    }

    FamilyDocument document;
    Collection sprites;
    QString text;
    QByteArray bytes;
};

}  // namespace

class TestAnimationImport : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        startHost(&m_host);
        qInfo("seed %u", Seed);
    }
    void isThatOfPlainLists();
    void bringsTheSameSprites();
    void leavesDamagedSprites();

private:
    HostInterface m_host;
};

void TestAnimationImport::isThatOfPlainLists()
{
    QRandomGenerator random(Seed);
    int replaced = 0;
    for (int round = 0; round < 250; ++round) {
        Side source(random);
        Side target(random);
        const FamilyAnimations* from = source.document.animations();
        FamilyAnimations* to = target.document.animations();
        QVector<ImportEntry> entries;
        for (int i = from->count() > 0 ? random.bounded(6) : 0; i > 0; --i) {
            entries.append(
                {from->index(random.bounded(from->count())), QString::number(random.bounded(14))});
        }
        const auto conflicts = random.bounded(2) ? ImportConflict::Replace : ImportConflict::Skip;
        const QHash<SpriteNumber, SpriteNumber> numbers{{{200, 1}, {7, 65535}}, {{201, 2}, {0, 0}}};
        int behind = random.bounded(to->count() + 1);
        const QString behindId = behind < to->count() ? to->animation(behind)->identifier() : "";
        // The plain lists go by identifier.
        behind = behindId.isEmpty() ? behind : to->indexOfIdentifier(behindId);

        PlainText expected(target.text);
        importPlainly(&expected, PlainText(source.text), entries, conflicts, behindId, numbers);
        AnimationImport import(to, entries, conflicts);
        const Zorv::AnimationImportResult result = import.insert(behind, "Import", numbers);
        replaced += result.replaced.size();

        const QString context = QString("round %1").arg(round);
        QVERIFY2(dump(PlainText(target.document.text()).parts) == dump(expected.parts),
                 qPrintable(context + '\n' +
                            dump(PlainText(target.document.text()).parts).join('\n') +
                            "\n--- expected\n" + dump(expected.parts).join('\n')));
        QCOMPARE(FamilyDump::difference(FamilyDump::of(&target.document),
                                        FamilyDump::fresh(&target.document)),
                 QString());
        QCOMPARE(result.added.size() + result.replaced.size() + result.skipped.size(),
                 entries.size());
        QCOMPARE(source.document.text(), source.text);
        if (target.document.text() != target.text) {
            QCOMPARE(target.document.undoTitle(), QString("Import"));
            target.document.undo();
        }
        QCOMPARE(target.document.text(), target.text);
        QVERIFY(!target.document.canUndo());
    }
    QVERIFY(replaced > 50);
}

void TestAnimationImport::bringsTheSameSprites()
{
    QRandomGenerator random(Seed);
    int renumbered = 0;
    for (int round = 0; round < 100; ++round) {
        const Side source(random);
        const Side target(random);
        QVector<SpriteNumber> wanted;
        for (int i = 0; i < 12; ++i) {
            if (random.bounded(2)) {
                wanted.append({200 + i / 6, i % 6});
            }
        }
        std::shuffle(wanted.begin(), wanted.end(), random);
        const auto expected = plainNumbers(*source.sprites, *target.sprites, wanted);
        const int before = int(target.sprites->count());
        const Zorv::AssetResult result =
            importAssets(source.sprites.get(), target.sprites.get(), wanted, "Import");
        QCOMPARE(result.error, QString());
        QCOMPARE(result.renumbered, expected);
        QCOMPARE(int(target.sprites->count()), before + result.added);
        QCOMPARE(result.added + result.shared + result.missing.size(), wanted.size());
        renumbered += result.renumbered.size();
        for (const SpriteNumber number : qAsConst(wanted)) {
            const AssetId id{quint16(number.group), quint16(number.number)};
            const SpriteNumber there = result.renumbered.value(number, number);
            if (const FamilySprite* sprite = source.sprites->byId(id)) {
                const FamilySprite* came =
                    target.sprites->byId({quint16(there.group), quint16(there.number)});
                QVERIFY(came && lookOf(*came) == lookOf(*sprite));
            }
        }
        const QVector<PixelRef> pixels = SpriteTables(*target.sprites, {}).pixels;
        QSet<QPair<int, QByteArray>> pictures;
        for (const PixelRef& each : pixels) {
            pictures.insert({each->format.size.width(), target.sprites->store()->rows(each.get())});
        }
        QCOMPARE(pictures.size(), pixels.size());

        // What came is found again, whatever it is called.
        const Zorv::AssetResult again =
            importAssets(source.sprites.get(), target.sprites.get(), wanted, "Import");
        QCOMPARE(again.added + again.palettes, 0);
        QCOMPARE(target.sprites->canUndo(), result.added > 0);
        target.sprites->undo();
        QVERIFY(!target.sprites->canUndo());
        QCOMPARE(bytesOf(target.sprites.get()), target.bytes);
        QCOMPARE(bytesOf(source.sprites.get()), source.bytes);
    }
    QVERIFY(renumbered > 40);
}

// Nothing comes that differs from what was there, and nothing at all unless the person wants it so.
void TestAnimationImport::leavesDamagedSprites()
{
    QRandomGenerator random(Seed);
    Side whole(random);
    while (whole.sprites->count() < 6) {
        whole.sprites = randomSprites(random);
    }
    QVector<SpriteNumber> wanted;
    for (const auto& sprite : whole.sprites->items()) {
        wanted.append({300, sprite->row});
        sprite->setProperty("Identifier", QString("300,%1").arg(sprite->row));
    }
    whole.bytes = bytesOf(whole.sprites.get());
    QTemporaryDir folder;
    int refused = 0;
    for (int place = 0; place < whole.bytes.size(); place += 1 + random.bounded(15)) {
        QByteArray bytes = whole.bytes;
        bytes[place] = char(bytes[place] ^ (1 << random.bounded(8)));
        QString error;
        const QString file = folder.filePath("broken.sprites");
        QVERIFY(writeFile(file, bytes));
        const Collection broken(openSprites(file, &error));
        if (!broken) {
            continue;
        }
        const Collection target(newSprites("b.sprites"));
        Zorv::AssetResult result = importAssets(broken.get(), target.get(), wanted, "Import");
        if (!result.error.isEmpty()) {
            ++refused;
            QVERIFY(!result.broken.isEmpty());
            QVERIFY(target->isEmpty() && !target->canUndo());
            result =
                importAssets(broken.get(), target.get(), wanted, "Import", BrokenSprites::AreLeft);
            QCOMPARE(result.error, QString());
        }
        QCOMPARE(result.added + result.broken.size() + result.missing.size(), wanted.size());
        for (const auto& sprite : target->items()) {
            QVERIFY(lookOf(*sprite) == lookOf(*whole.sprites->byId(sprite->id())));
        }
    }
    QVERIFY(refused > 20);
}

QTEST_MAIN(TestAnimationImport)
#include "tst_animationimport.moc"
