#pragma once

#include "code/codedoc/codedocument.h"
#include "core/messages.h"
#include "core/parentproject.h"
#include "core/project.h"
#include "support/folders.h"

/// A document without a grammar: its text is a file like any other.
class TestDocument : public Zorv::CodeDocument
{
    Q_OBJECT

public:
    explicit TestDocument(const QString& fileName = {});
    int projectKind() const override { return 7; }
    int blockFolding(const QString&) const override { return 0; }
    void release() override;

private:
    bool m_releasing = false;
};

/// A file that holds some bytes. It counts itself, and deletes itself when it
/// is released.
class TestFile : public Zorv::ProjectFile
{
public:
    explicit TestFile(const QString& fileName = {}, const QByteArray& content = {});
    ~TestFile() override;

    int checkErrors() override { return messages()->count(Zorv::Message::Error); }
    bool isModified() const override { return modified; }
    bool isEmpty() const override { return content.isEmpty(); }
    bool toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    bool fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy) override;
    QString fileName() const override { return name; }
    void release() override { delete this; }
    using ProjectFile::setArchive;

    QString name;
    QByteArray content;
    bool modified = false;

    static int alive;
};

/// A project whose files are what the lines of its main document say: each a
/// kind, a blank and a relative path, as in "2 sub/a.spr".
class TestProject : public Zorv::Project
{
    Q_OBJECT

public:
    TestProject(Zorv::ParentProject* parent, Zorv::CodeDocument* main);

    QString title() const override { return fileName(); }
    void loadFiles() override {}
    Zorv::FileID fileTypes() const override { return 0xffffffff; }
    Zorv::ProjectFile* newFile(Zorv::FileID::Type) override { return nullptr; }
    QString resolvePath(const QString& path) const override { return path; }

    /// "file 2/0" for the first file of kind 2.
    QString fileTitle(Zorv::FileID::Type type, int index) const override;
    void fileInfos(QList<FileInfo>& list) override;
};

/// A game folder that owns the projects opened in it.
class TestParent : public Zorv::ParentProject
{
    Q_OBJECT

public:
    explicit TestParent(const QString& root);
    ~TestParent() override;

    Zorv::EngineModel* engineModel() const override { return engines; }
    void projectFiles(const QString& path, QStringList& files) override
    {
        files += closedFiles.value(path);
    }
    QString runParameters(int) const override { return {}; }
    QString runPath(int, const QString&, bool*) const override { return {}; }
    void lastReferenceGone() override { ++goneCount; }

    /// Opens a project whose main document has the name `path`, relative to the
    /// root (no name if that is empty), and the text `files`.
    TestProject* open(const QString& path, const QString& files);
    void close(TestProject* project);

    /// The names below `index`, each with its depth in blanks, folders with "/"
    /// and files with their kinds: "chars/", " a.txt 2".
    QStringList dump(const QModelIndex& index = {}, int depth = 0) const;

    Zorv::EngineModel* engines = nullptr;
    QMap<QString, QStringList> closedFiles;  ///< of projects that are not open, by path
    int goneCount = 0;

private:
    QList<TestProject*> m_projects;
};
