#pragma once

#include "family/grammar/keyinfo.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace Family {

class FamilyDocument;
class FamilyProject;
struct GroupInfo;

/// A position in a document; all numbers from 0.
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
    QString description;  ///< one line: display name, motion, ...
    NamePlace place;
};

/// A value that plays a sound.
struct SoundUse
{
    QString move;
    QString animation;  ///< used by the move; empty if it names none
    QString key;        ///< "hit" or "guard"
    NamePlace place;    ///< of the numbers
};

/// The names defined in a document and in the other documents of its project. Those of the document
/// itself come first.
class ProjectNames
{
public:
    /// `project` is the document's project, or null.
    ProjectNames(const FamilyDocument* document, const FamilyProject* project);

    /// All names that a value of this form can use: animations, commands or moves. Empty for any
    /// other form.
    QVector<NamedThing> named(Form form) const;

    /// The files in the project's folder that a key can name, as paths to write there, sorted. At
    /// most some hundreds.
    QStringList files(const GroupInfo* group, const KeyInfo* key) const;

    /// The file that a path in this document names; it need not exist.
    QString filePath(const QString& path) const;

    /// All frames that use a sprite, in the order of the documents.
    QVector<NamePlace> frames(int group, int number) const;

    /// All values that play a sound, in the order of the documents.
    QVector<SoundUse> soundUses(int group, int number) const;

    const QList<const FamilyDocument*>& documents() const { return m_documents; }

private:
    QList<const FamilyDocument*> m_documents;
    const FamilyProject* m_project;
};

}  // namespace Family
