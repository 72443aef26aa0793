#include "operations/media/imagenumbers.h"

#include "family/assets/freeids.h"
#include "family/assets/spritecollection.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>

namespace Operations {

using Family::AssetId;
using Family::FreeIds;
using Family::SpriteCollection;

namespace {

constexpr int MaxPart = 65535;
const QString GroupMark = QStringLiteral("{group}");
const QString NumberMark = QStringLiteral("{number}");

/// Makes the texts of this file known to translators.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(Operations::ImageNumbers)
};

/// Parses names by a pattern.
class NamePattern
{
public:
    explicit NamePattern(const QString& pattern)
        : m_isDefault(pattern == Numbering::defaultPattern()),
          m_hasGroup(pattern.contains(GroupMark)), m_hasNumber(pattern.contains(NumberMark))
    {
        // No digit may precede: otherwise it would be unclear where the number starts.
        const bool beginsWithDigits =
            pattern.startsWith(GroupMark) || pattern.startsWith(NumberMark);
        QString form = QRegularExpression::escape(pattern);
        form.replace(QRegularExpression::escape(GroupMark), QStringLiteral("(?<group>[0-9]{1,5})"));
        form.replace(QRegularExpression::escape(NumberMark),
                     QStringLiteral("(?<number>[0-9]{1,5})"));
        form.replace(QStringLiteral("\\*"), QStringLiteral(".*"));
        m_form.setPattern((beginsWithDigits ? QStringLiteral("(?:^|[^0-9])") : QString()) + form +
                          QLatin1Char('$'));
        m_form.optimize();
    }

    bool hasNumber() const { return m_hasNumber; }

    /// False if the name does not match, or has no group and `group` is negative.
    bool read(const QString& name, int group, ImportTarget* target) const
    {
        if (m_isDefault) {
            // Frame names may contain dots, so a suffix is added.
            return importTarget(name + QStringLiteral(".png"), target);
        }
        const QRegularExpressionMatch match = m_form.match(name);
        const int told = m_hasGroup ? match.captured(QStringLiteral("group")).toInt() : group;
        const int number = m_hasNumber ? match.captured(QStringLiteral("number")).toInt() : 0;
        target->id = {quint16(qMax(told, 0)), quint16(number)};
        return match.hasMatch() && told >= 0 && told <= MaxPart && number <= MaxPart;
    }

private:
    QRegularExpression m_form;
    bool m_isDefault;
    bool m_hasGroup;
    bool m_hasNumber;
};

quint64 keyOf(const ImportTarget& target)
{
    return quint64(target.copy) << 32 | target.id.key();
}

bool isThere(const SpriteCollection& sprites, const ImportTarget& target)
{
    int row = -1;
    for (int copy = 0; copy < target.copy && (copy == 0 || row >= 0); ++copy) {
        row = sprites.find(row + 1, target.id.text());
    }
    return row >= 0;
}

/// Assigns numbers in three rounds: first by name, then images whose number is taken, then images
/// without a number in their name. So an image with a number in its name gets it, wherever it is in
/// the list.
class Numberer
{
public:
    Numberer(const QVector<ImportImage>& images, const Numbering& numbering,
             const SpriteCollection& sprites)
        : m_images(images), m_numbering(numbering), m_sprites(sprites),
          m_pattern(numbering.pattern), m_numbers(images.size()),
          m_free([&sprites](AssetId id) { return sprites.contains(id); }),
          m_next{quint16(qMax(numbering.group, 0)), quint16(numbering.first)}
    {
    }

    QVector<ImageNumber> run();

private:
    void findTwins();
    void readName(int i);
    void move(int i);
    void count(int i, AssetId* next);

    const QVector<ImportImage>& m_images;
    const Numbering& m_numbering;
    const SpriteCollection& m_sprites;
    NamePattern m_pattern;
    QVector<ImageNumber> m_numbers;
    FreeIds m_free;
    AssetId m_next;
    QHash<quint32, AssetId> m_nextOfGroup;
    QHash<quint64, int> m_owners;
    QVector<int> m_moved;
    QVector<int> m_nameless;  // also names that contain only a group, which is then in `target`
    QVector<bool> m_hasGroup;
};

QVector<ImageNumber> Numberer::run()
{
    findTwins();
    m_hasGroup.resize(m_images.size());
    for (int i = 0; i < m_images.size(); ++i) {
        if (m_numbers.at(i).state != ImageNumber::Twin) {
            readName(i);
        }
    }
    for (const int i : qAsConst(m_moved)) {
        move(i);
    }
    for (const int i : qAsConst(m_nameless)) {
        const quint16 group = m_numbers.at(i).target.id.group;
        AssetId own = m_nextOfGroup.value(group, AssetId{group, quint16(m_numbering.first)});
        count(i, m_hasGroup.at(i) ? &own : &m_next);
        if (m_hasGroup.at(i)) {
            m_nextOfGroup.insert(group, own);
        }
    }
    for (ImageNumber& number : m_numbers) {
        if (number.state == ImageNumber::Twin) {
            number.target = m_numbers.at(number.other).target;
        }
    }
    return m_numbers;
}

/// Hashes everything that twins have in common, because a sheet can have many frames at one place.
uint hashOf(const Family::SheetFrame& frame)
{
    const int parts[] = {frame.page,
                         int(frame.isTurned),
                         frame.rect.x(),
                         frame.rect.y(),
                         frame.rect.width(),
                         frame.rect.height(),
                         frame.offset.x(),
                         frame.offset.y(),
                         frame.original.width(),
                         frame.original.height(),
                         int(frame.hasAxis),
                         frame.axis.x(),
                         frame.axis.y()};
    return qHashBits(parts, sizeof(parts));
}

void Numberer::findTwins()
{
    QMultiHash<uint, int> places;
    for (int i = 0; i < m_images.size(); ++i) {
        const ImportImage& image = m_images.at(i);
        if (!image.isOfSheet()) {
            continue;
        }
        const uint place = hashOf(image.frame);
        for (auto it = places.constFind(place); it != places.constEnd() && it.key() == place;
             ++it) {
            if (isSameImage(m_images.at(it.value()), image)) {
                m_numbers[i].state = ImageNumber::Twin;
                m_numbers[i].other = it.value();
                break;
            }
        }
        if (m_numbers.at(i).state != ImageNumber::Twin) {
            places.insert(place, i);
        }
    }
}

void Numberer::readName(int i)
{
    ImageNumber& number = m_numbers[i];
    const bool isRead = !m_numbering.pattern.isEmpty() &&
                        m_pattern.read(m_images.at(i).name, m_numbering.group, &number.target);
    if (!isRead || !m_pattern.hasNumber()) {
        m_hasGroup[i] = isRead;
        m_nameless.append(i);
        return;
    }
    const int owner = m_owners.value(keyOf(number.target), -1);
    if (owner >= 0) {
        number.other = owner;
        number.state = ImageNumber::Twice;
    } else if (isThere(m_sprites, number.target)) {
        number.state = m_numbering.whenTaken == WhenTaken::Replace ? ImageNumber::Replaces
                                                                   : ImageNumber::Taken;
    }
    if (number.isFault() && m_numbering.whenTaken == WhenTaken::NextFree) {
        m_moved.append(i);
    } else if (owner < 0) {
        m_owners.insert(keyOf(number.target), i);
        m_free.keep(number.target.id);
    }
}

void Numberer::move(int i)
{
    ImageNumber& number = m_numbers[i];
    const AssetId from = number.target.id;
    number.target = {m_free.next(from), 1};
    const bool hasRoom = number.target.id.group == from.group && from < number.target.id;
    number.state = hasRoom ? ImageNumber::Moved : ImageNumber::NoRoom;
}

void Numberer::count(int i, AssetId* next)
{
    ImageNumber& number = m_numbers[i];
    const bool hasGroup = m_hasGroup.at(i);
    if (!hasGroup && m_numbering.group < 0) {
        number.state = ImageNumber::NoNumber;
        return;
    }
    const quint16 group = next->group;
    const AssetId from = *next;
    number.target = {m_free.next(from), 1};
    const AssetId id = number.target.id;
    const bool hasRoom = id.group == group && !(id < from);
    const bool isMarked = !hasGroup && !m_numbering.pattern.isEmpty();
    number.state = !hasRoom   ? ImageNumber::NoRoom
                   : isMarked ? ImageNumber::Counted
                              : ImageNumber::Fine;
    if (hasRoom && id.number < MaxPart) {
        *next = AssetId::fromKey(id.key() + 1);
    }
}

}  // namespace

QVector<ImageNumber> numberImages(const QVector<ImportImage>& images, const Numbering& numbering,
                                  const SpriteCollection& sprites)
{
    return Numberer(images, numbering, sprites).run();
}

QString tellNumber(const QVector<ImportImage>& images, const QVector<ImageNumber>& numbers, int i)
{
    const ImageNumber& number = numbers.at(i);
    const QString name = images.at(i).isOfSheet() ? images.at(i).name : images.at(i).file;
    const QString id = number.target.id.text();
    switch (number.state) {
    case ImageNumber::Fine:
        return {};
    case ImageNumber::Counted:
        return Text::tr("'%1' does not tell its group and number: it gets the next free one, %2.")
            .arg(name, id);
    case ImageNumber::Moved:
        return Text::tr("What '%1' tells is taken already: it gets the next free number, %2.")
            .arg(name, id);
    case ImageNumber::Replaces:
        return Text::tr("'%1' replaces the sprite %2.").arg(name, id);
    case ImageNumber::Twin:
        return Text::tr("'%1' is the same picture as '%2': they are one sprite.")
            .arg(name, images.at(number.other).name);
    case ImageNumber::NoNumber:
        return Text::tr("'%1' does not tell its group and number. Expected a name such as "
                        "'200-3', or a group for all that tell none.")
            .arg(name);
    case ImageNumber::Taken:
        return Text::tr("There is a sprite %1 already, which '%2' would replace. Nothing is "
                        "changed.")
            .arg(id, name);
    case ImageNumber::Twice: {
        const ImportImage& other = images.at(number.other);
        return Text::tr("'%1' and '%2' both go to %3.")
            .arg(other.isOfSheet() ? other.name : other.file, name, id);
    }
    case ImageNumber::NoRoom:
        return Text::tr("The group %1 has no room for '%2'.")
            .arg(QString::number(number.target.id.group), name);
    }
    return {};
}

QString patternFault(const QString& pattern)
{
    const bool isTwice = pattern.count(GroupMark) > 1 || pattern.count(NumberMark) > 1;
    const bool isNone = !pattern.contains(GroupMark) && !pattern.contains(NumberMark);
    return isTwice || isNone
               ? Text::tr("Write {group} and {number}, or one of them, once each, as in "
                          "'walk_{number}'.")
               : QString();
}

}  // namespace Operations
