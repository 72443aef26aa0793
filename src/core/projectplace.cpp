#include "core/project_p.h"

#include "code/codedoc/codedocument.h"
#include "core/filesystemarchive.h"
#include "core/projectfile.h"

#include <algorithm>

namespace Zorv {

Project::Place::Place(Project* project) : m_project(project), m_archive(project->m_archive)
{
    for (ProjectFile* file : project->files()) {
        m_files.append({file, file->m_archive, file->fileName(), file->isModified()});
    }
}

void Project::Place::goBack()
{
    if (!m_project) {
        return;
    }
    m_project->m_archive = m_archive;
    const auto isStranger = [this](const File& file) {
        return !m_project->d->fileIDs.contains(file.file);
    };
    m_files.erase(std::remove_if(m_files.begin(), m_files.end(), isStranger), m_files.end());
    for (const File& file : qAsConst(m_files)) {
        takeDocumentBack(file);
    }
    // A view of a document has the document's name, so it may be restored already.
    for (const File& file : qAsConst(m_files)) {
        if (file.file->fileName() != file.name && !file.name.isEmpty()) {
            readBack(file);
        }
        if (file.file->fileName() == file.name) {
            file.file->m_archive = file.archive;
        }
    }
}

void Project::Place::takeDocumentBack(const File& file)
{
    auto* document = dynamic_cast<CodeDocument*>(file.file);
    if (document && document->fileName() != file.name) {
        // Move the watch while the document still has the new name.
        document->FileWatchObject::fromFile(*document->archive(), file.name, false);
        document->setFileName(file.name);
        document->setModified(file.isModified);
        document->pauseWatch(false);
    }
}

// Other classes get their name back only by reading. Their unsaved content has already been saved
// to the new place.
void Project::Place::readBack(const File& file)
{
    const QString written = file.file->fileName();
    Archive& archive = file.archive ? *file.archive : *FileSystemArchive::instance();
    if (file.file->fromFile(archive, file.name, false) && file.isModified) {
        file.file->fromFile(*FileSystemArchive::instance(), written, true);
    }
}

}  // namespace Zorv
