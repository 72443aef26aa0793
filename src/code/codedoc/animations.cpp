#include "code/codedoc/animations.h"

#include "code/codedoc/animationcode.h"
#include "code/codedoc/codedocument.h"

#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <vector>

namespace Zorv {

class AnimationsPrivate
{
public:
    void inserted(int row);
    void removed(int row);
    void settle();

    QList<AnimationCode*> list;
    bool moving = false;
    int current = 0;
    int settled = 0;             ///< `current` before the present change of the text
    bool isCurrentGone = false;  ///< until the change ends, `current` is only a number
};

void AnimationsPrivate::inserted(int row)
{
    const int before = list.size() - 1;
    if (!isCurrentGone && row <= current && current < before) {
        ++current;
    }
}

/// Called while the row is still in the list. If a line is parsed again, its new node is briefly in
/// front of the old one; then `current` stays on it. If a text is loaded, all rows are removed and
/// new ones appear; then the index is kept.
void AnimationsPrivate::removed(int row)
{
    const AnimationCode* above = list.value(row - 1);
    if (list.size() == 1) {
        current = settled;
        isCurrentGone = true;
    } else if (isCurrentGone || row > current) {
        return;
    } else if (row < current || (above && above->block() == list.at(row)->block())) {
        --current;
    } else {
        isCurrentGone = true;
    }
}

void AnimationsPrivate::settle()
{
    settled = current;
    isCurrentGone = false;
}

namespace {

const QLatin1String Identifier("Identifier");

QString identifierOf(const AnimationCode* animation)
{
    return animation->property(Identifier).toString();
}

/// The sort key of an animation. Numbers are compared by value and texts ignoring case; a number
/// and a text are not ordered.
class SortKey
{
public:
    explicit SortKey(const AnimationCode* animation) : m_text(identifierOf(animation))
    {
        m_number = m_text.toInt(&m_isNumber, 10);
    }

    bool comesBefore(const SortKey& other) const
    {
        if (m_isNumber != other.m_isNumber) {
            return false;
        }
        return m_isNumber ? m_number < other.m_number
                          : m_text.compare(other.m_text, Qt::CaseInsensitive) < 0;
    }

private:
    QString m_text;
    int m_number = 0;
    bool m_isNumber = false;
};

}  // namespace

Animations::Animations(CodeDocument* document)
    : CodeDocumentEditor(document), d(std::make_unique<AnimationsPrivate>())
{
    connect(document, &CodeDocument::closing, this, [this] {
        beginResetModel();
        d->list.clear();
        endResetModel();
    });
    connect(document, &CodeDocument::codeChanged, this, [this] { d->settle(); });
}

Animations::~Animations() = default;

bool Animations::canName(const QString& identifier) const
{
    return !identifier.trimmed().isEmpty();
}

QTextCursor Animations::ownLines(unsigned index) const
{
    const AnimationCode* animation = at(index);
    if (!animation) {
        return {};
    }
    QTextCursor cursor = animation->selectAll();
    const int start = cursor.selectionStart();
    QTextBlock last = document()->findBlock(qMax(start, cursor.selectionEnd() - 1));
    while (last.position() > start && last.text().trimmed().isEmpty()) {
        last = last.previous();
    }
    cursor.setPosition(start);
    cursor.setPosition(last.position() + last.length() - 1, QTextCursor::KeepAnchor);
    return cursor;
}

QString Animations::codeFor(unsigned, const QString&,
                            const QHash<SpriteNumber, SpriteNumber>&) const
{
    return {};
}

QList<AnimationCode*> Animations::animations() const
{
    return d->list;
}

int Animations::count() const
{
    return d->list.size();
}

AnimationCode* Animations::at(unsigned index) const
{
    return d->list.value(int(index));
}

int Animations::currentIndex() const
{
    return d->current;
}

void Animations::setCurrent(int index)
{
    d->current = index;
    d->settle();
}

int Animations::indexOf(const AnimationCode* animation) const
{
    return d->list.indexOf(const_cast<AnimationCode*>(animation));
}

int Animations::find(unsigned start, const QVariant& identifier) const
{
    const QString text = identifier.toString();
    for (int i = int(start); i >= 0 && i < d->list.size(); ++i) {
        if (identifierOf(d->list.at(i)) == text) {
            return i;
        }
    }
    return -1;
}

AnimationCode* Animations::insert(unsigned index, const QString& identifier)
{
    if (index >= unsigned(d->list.size())) {
        return add(identifier);
    }
    document()->insertBefore(at(index), animationTemplate().arg(identifier), false);
    return at(index);
}

AnimationCode* Animations::add(const QString& identifier)
{
    if (!document()) {
        return nullptr;
    }
    document()->insert(animationTemplate().arg(identifier));
    return d->list.isEmpty() ? nullptr : d->list.last();
}

void Animations::duplicate(unsigned index, const QString& identifier)
{
    const AnimationCode* animation = at(index);
    if (!animation) {
        return;
    }
    QTextCursor cursor = animation->selectAll();
    QString text = cursor.selectedText();
    if (!identifier.isEmpty()) {
        const QString form = animationTemplate().trimmed();
        text.replace(form.arg(identifierOf(animation)), form.arg(identifier), Qt::CaseInsensitive);
    }
    if (const AnimationCode* behind = at(index + 1)) {
        cursor.setPosition(document()->findBlockByNumber(behind->firstLine()).position());
    } else {
        cursor.movePosition(QTextCursor::End);
    }
    document()->placeChange(cursor);
    cursor.insertText(text);
}

void Animations::remove(unsigned index)
{
    if (AnimationCode* animation = at(index)) {
        animation->remove(true);
    }
}

void Animations::move(unsigned from, unsigned to)
{
    const auto size = unsigned(d->list.size());
    if (from >= size || to >= size || from == to) {
        return;
    }
    QTextCursor cursor = at(from)->selectAll();
    cursor.movePosition(QTextCursor::PreviousCharacter, QTextCursor::KeepAnchor);
    const QString text = cursor.selectedText();
    QScopedValueRollback<bool> moving(d->moving, true);
    beginMoveRows({}, int(from), int(from), {}, int(from < to ? to + 1 : to));
    beginChange(QString());
    const bool isCurrent = int(from) == d->current;
    d->removed(int(from));
    AnimationCode* animation = d->list.takeAt(int(from));
    const int frame = animation->currentFrame();
    animation->remove(true);
    document()->insertBefore(at(to), text, false);
    endChange();
    // With the last index, at(to) is null after the removal, and a null node means the start.
    const unsigned place = to == size - 1 ? 0 : to;
    if (AnimationCode* moved = at(place)) {
        moved->setCurrentFrame(frame);
    }
    if (isCurrent) {
        setCurrent(int(place));
    }
    endMoveRows();
    emit changed(false);
}

void Animations::autoOrganize()
{
    beginChange(tr("Auto organize animations"));
    // Insertion sort: standard algorithms need a strict weak order, but a number and a text are not
    // ordered here.
    std::vector<SortKey> keys(d->list.begin(), d->list.end());
    for (auto key = keys.begin(); key != keys.end(); ++key) {
        const auto place = std::find_if(
            keys.begin(), key, [key](const SortKey& other) { return key->comesBefore(other); });
        if (place != key) {
            move(unsigned(key - keys.begin()), unsigned(place - keys.begin()));
            std::rotate(place, key, key + 1);
        }
    }
    endChange();
}

void Animations::beginChange(const QString& title)
{
    if (document()) {
        document()->beginChange(title);
    }
}

void Animations::endChange()
{
    if (document()) {
        document()->endChange();
    }
}

int Animations::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : d->list.size();
}

QVariant Animations::data(const QModelIndex& index, int role) const
{
    const AnimationCode* animation = index.isValid() ? d->list.value(index.row()) : nullptr;
    if (!animation || role != Qt::DisplayRole || document()->isCodeBeingChanged()) {
        return QVariant();
    }
    return animation->displayName();
}

void Animations::insertChild(CodeNode* child, unsigned index)
{
    const int row = int(std::min(index, unsigned(d->list.size())));
    if (!d->moving) {
        beginInsertRows({}, row, row);
    }
    d->list.insert(row, static_cast<AnimationCode*>(child));
    d->inserted(row);
    if (!d->moving) {
        endInsertRows();
        emit changed(true);
    }
}

void Animations::removeChild(CodeNode* child)
{
    const int row = d->list.indexOf(static_cast<AnimationCode*>(child));
    if (row < 0) {
        return;
    }
    if (!d->moving) {
        beginRemoveRows({}, row, row);
    }
    d->removed(row);
    d->list.removeAt(row);
    if (!d->moving) {
        endRemoveRows();
        emit changed(true);
    }
}

void Animations::childChanged(CodeNode* child)
{
    const int row = d->list.indexOf(static_cast<AnimationCode*>(child));
    if (row >= 0) {
        emit dataChanged(index(row), index(row));
        emit changed(false);
    }
}

}  // namespace Zorv
