#include "core/fileinput.h"

#include "core/project.h"
#include "core/projectfile.h"

#include <QVector>

#include <algorithm>

namespace Zorv {

namespace {

QVector<FileInput*>& inputs()
{
    static QVector<FileInput*> all;
    return all;
}

const ParentProject* gameOf(const ProjectFile* file)
{
    const Project* project = file ? file->project() : nullptr;
    return project ? project->parent() : nullptr;
}

}  // namespace

FileInput::FileInput()
{
    inputs().append(this);
}

FileInput::~FileInput()
{
    inputs().removeOne(this);
}

bool FileInput::isOn(const ProjectFile* file)
{
    const QVector<FileInput*>& all = inputs();
    return file && std::any_of(all.begin(), all.end(),
                               [file](const FileInput* each) { return each->inputFile() == file; });
}

bool FileInput::isUnsaved(const ProjectFile* file)
{
    return file && (file->isModified() || isOn(file));
}

// Works on a copy of the list: storing may show a dialog, and the user may close editors meanwhile.
bool FileInput::take(const ProjectFile* file, QStringList* errors)
{
    bool all = true;
    const QVector<FileInput*> known = inputs();
    for (FileInput* each : known) {
        QString error;
        if (file && inputs().contains(each) && each->inputFile() == file &&
            !each->takeInput(&error)) {
            all = false;
            if (errors) {
                errors->append(error);
            }
        }
    }
    return all;
}

void FileInput::takeOf(const ParentProject* game)
{
    const QVector<FileInput*> known = inputs();
    for (FileInput* each : known) {
        QString error;
        if (inputs().contains(each) && game && gameOf(each->inputFile()) == game) {
            each->takeInput(&error);
        }
    }
}

void FileInput::drop(const ProjectFile* file)
{
    const QVector<FileInput*> known = inputs();
    for (FileInput* each : known) {
        if (file && inputs().contains(each) && each->inputFile() == file) {
            each->dropInput();
        }
    }
}

}  // namespace Zorv
