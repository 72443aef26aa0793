#pragma once

#include "family/grammar/keyinfo.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace Family {

class FamilyDocument;
class FamilyProject;
struct GroupInfo;

/// A place in a document; all from 0.
struct NamePlace
{
    const FamilyDocument* document = nullptr;
    int line = 0;
    int column = 0;
    int length = 0;
};

/// A name that other lines can refer to.
struct NamedThing
{
    QString name;
    QString description;  ///< one line: the display name, the motion, ...
    NamePlace place;
};

/// A value that plays a sound.
struct SoundUse
{
    QString move;
    QString animation;  ///< that the move shows; empty if it names none
    QString key;        ///< "hit" or "guard"
    NamePlace place;    ///< of the numbers
};

/// What a document refers to by names, in it and in the other documents of its
/// project; those of the document itself come first.
class ProjectNames
{
public:
    /// `project` is the document's, or null for none.
    ProjectNames(const FamilyDocument* document, const FamilyProject* project);

    /// All that a value of a form can name: animations, commands or moves. Empty
    /// for any other form.
    QVector<NamedThing> named(Form form) const;

    /// The files of the project's folder that a key can name, with the path that is
    /// written there, in order. At most some hundreds.
    QStringList files(const GroupInfo* group, const KeyInfo* key) const;

    /// The file that a path in this document names; it need not be there.
    QString filePath(const QString& path) const;

    /// Every frame that shows a sprite, in the order of the documents.
    QVector<NamePlace> frames(int group, int number) const;

    /// Every value that plays a sound, in the order of the documents.
    QVector<SoundUse> soundUses(int group, int number) const;

    const QList<const FamilyDocument*>& documents() const { return m_documents; }

private:
    QList<const FamilyDocument*> m_documents;
    const FamilyProject* m_project;
};

}  // namespace Family
