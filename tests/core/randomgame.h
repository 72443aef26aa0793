#pragma once

#include "code/codedoc/codedocument.h"
#include "core/filesystemarchive.h"
#include "support/testproject.h"

#include <QDirIterator>
#include <QMap>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCursor>

#include <memory>

/// What a folder holds: the bytes of each file by its path below it.
using Contents = QMap<QString, QByteArray>;

inline Contents contentsOf(const QString& folder)
{
    Contents contents;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString name = files.next();
        const QString relative = QDir(folder).relativeFilePath(name);
        if (!relative.startsWith("backup/")) {
            contents[relative] = readFile(name);
        }
    }
    return contents;
}

/// A game folder with open projects, some with unsaved changes, and the names
/// that make trouble.
struct RandomGame
{
    explicit RandomGame(uint seed) : random(seed)
    {
        root = dir.path() + "/the game/";
        QDir().mkpath(root);
        parent = std::make_unique<TestParent>(root);
        const QStringList folders = {"chars/hero/", "-r/", "with blank/\u00f6/", "100%/%1/"};
        for (const QString& folder : folders) {
            addProject(folder);
        }
    }

    void addProject(const QString& folder)
    {
        const QStringList names = {"plain.bin", "with blank.bin", "\u00fcml\u00e4ut \u30ce.bin",
                                   "100%n.bin", "-rf.bin",        "sub/deep/'\"$x.bin"};
        QString lines;
        QStringList used;
        for (const QString& name : names) {
            if (random.bounded(4) > 0) {
                lines += "2 " + name + "\n";
                used.append(name);
            }
        }
        TestProject* project = parent->open(folder + "main.code", lines);
        auto* main = document(project);
        writeFile(main->fileName(), main->toData());
        for (const QString& name : used) {
            writeFile(project->absolutePath() + name, bytes());
            if (random.bounded(2)) {
                auto* file = new TestFile(project->absolutePath() + name);
                file->fromFile(*Zorv::FileSystemArchive::instance(), file->name, false);
                project->addFile(file, Zorv::FileID::Sprites);
                files.append(file);
            }
        }
        projects.append(project);
    }

    static Zorv::CodeDocument* document(Zorv::Project* project)
    {
        return static_cast<Zorv::CodeDocument*>(project->file(Zorv::FileID::MainCode));
    }

    QByteArray bytes()
    {
        return QByteArray(random.bounded(3) * 100000 + random.bounded(100),
                          char('a' + random.bounded(26)));
    }

    /// Unsaved changes of some files.
    void edit()
    {
        for (TestFile* file : files) {
            if (random.bounded(2)) {
                file->content = bytes();
                file->modified = true;
            }
        }
        for (TestProject* project : projects) {
            if (random.bounded(2)) {
                QTextCursor(document(project)).insertText("#note\n");
            }
        }
    }

    /// What the game would hold if all changes were saved.
    Contents wanted() const
    {
        Contents contents = contentsOf(root);
        const QDir folder(root);
        for (const TestFile* file : files) {
            contents[folder.relativeFilePath(file->name)] = file->content;
        }
        for (TestProject* project : projects) {
            contents[folder.relativeFilePath(project->fileName())] = document(project)->toData();
        }
        return contents;
    }

    QRandomGenerator random;
    QTemporaryDir dir;
    QString root;
    std::unique_ptr<TestParent> parent;
    QList<TestProject*> projects;
    QList<TestFile*> files;
};
