#pragma once

#include "family/check/problem.h"
#include "family/grammar/linereader.h"

#include <QHash>

class QTextBlock;

namespace Family {

class FamilyDocument;

/// A name at its place in a file.
struct NamedPlace
{
    QString name;
    QString file;
    int line;  ///< from 1
    int column;
    int length;
};

/// One pass over the lines of a document, from the text alone.
class DocumentCheck
{
public:
    DocumentCheck(const FamilyDocument* document, const QString& file);

    /// The problems of the lines, and those within groups and animations.
    Problems run();

    /// After `run()`: the animations of the file, and those that values name.
    const QVector<NamedPlace>& animations() const { return m_animations; }
    const QVector<NamedPlace>& references() const { return m_references; }

    /// Likewise the sprites and sounds that frames and values name, as "GROUP,NUMBER".
    const QVector<NamedPlace>& sprites() const { return m_sprites; }
    const QVector<NamedPlace>& sounds() const { return m_sounds; }

private:
    struct Group
    {
        const GroupInfo* info = nullptr;
        NamedPlace place;
        QHash<QString, int> keys;
    };

    struct Animation
    {
        bool open = false;
        NamedPlace place;
        int frames = 0;
        int loopLine = 0;
        int endlessLine = 0;
        bool hasFaultyFrame = false;
        QVector<NamedPlace> boxes;
    };

    void readBlock(const QTextBlock& block);
    void see(const ParsedLine& line, const LineDetails& details);
    void seeGroup(const ParsedLine& line, const LineDetails& details);
    void seeValue(const ParsedLine& line, const LineDetails& details);
    void seeAsset(const ParsedLine& line, const LineDetails& details);
    void seeAnimation(const ParsedLine& line, const LineDetails& details);
    void seeFrame(const FrameData& frame, const LineDetails& details);
    void closeGroup();
    void closeAnimation();
    NamedPlace placeOf(const LineDetails& details, LinePart::Role role, const QString& name) const;
    void tell(ProblemId id, const QStringList& arguments, const NamedPlace& place);

    const FamilyDocument* m_document;
    QString m_file;
    Problems m_problems;
    LineHead m_head;
    Group m_group;
    Animation m_animation;
    QHash<QString, int> m_groups;
    QHash<QString, int> m_subGroups;
    QVector<NamedPlace> m_animations;
    QVector<NamedPlace> m_references;
    QVector<NamedPlace> m_sprites;
    QVector<NamedPlace> m_sounds;
    int m_line = 0;
};

/// A problem at a place.
Problem problemAt(ProblemId id, const QStringList& arguments, const NamedPlace& place);

/// Tells every animation whose identifier an earlier one of the list has.
void checkAnimationNames(const QVector<NamedPlace>& animations, Problems* problems);

}  // namespace Family
