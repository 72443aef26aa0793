#include "support/testproject.h"

#include "core/archive.h"
#include "core/filesystemarchive.h"

#include <QPlainTextDocumentLayout>
#include <QTextCursor>

int TestFile::alive = 0;

TestDocument::TestDocument(const QString& fileName) : CodeDocument(0)
{
    setDocumentLayout(new QPlainTextDocumentLayout(this));
    setFileName(fileName);
}

void TestDocument::release()
{
    if (m_releasing) {
        delete this;
        return;
    }
    m_releasing = true;
    destroy();
}

TestFile::TestFile(const QString& fileName, const QByteArray& bytes)
    : name(fileName), content(bytes)
{
    ++alive;
}

TestFile::~TestFile()
{
    --alive;
}

bool TestFile::toFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QIODevice* device = archive.openFile(fileName, QIODevice::WriteOnly);
    const bool written = device && device->write(content) == content.size();
    if (!archive.closeFile(device) || !written) {
        return false;
    }
    if (!asCopy) {
        name = fileName;
        modified = false;
    }
    return true;
}

bool TestFile::fromFile(Zorv::Archive& archive, const QString& fileName, bool asCopy)
{
    QIODevice* device = archive.openFile(fileName, QIODevice::ReadOnly);
    if (!device) {
        return false;
    }
    content = device->readAll();
    archive.closeFile(device);
    if (!asCopy) {
        name = fileName;
    }
    modified = asCopy;
    return true;
}

TestProject::TestProject(Zorv::ParentProject* parent, Zorv::CodeDocument* main)
    : Project(parent, main, Zorv::FileID::MainCode)
{
}

QString TestProject::fileTitle(Zorv::FileID::Type type, int index) const
{
    return QStringLiteral("file %1/%2").arg(type).arg(index);
}

void TestProject::fileInfos(QList<FileInfo>& list)
{
    auto* main = static_cast<Zorv::CodeDocument*>(file(Zorv::FileID::MainCode));
    const QStringList lines = main->text().split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        const int blank = line.indexOf(QLatin1Char(' '));
        if (blank > 0) {
            list.append({line.leftRef(blank).toUInt(), line.mid(blank + 1)});
        }
    }
}

TestParent::TestParent(const QString& root)
    : ParentProject(root, *Zorv::FileSystemArchive::instance())
{
}

TestParent::~TestParent()
{
    while (!m_projects.isEmpty()) {
        close(m_projects.first());
    }
}

TestProject* TestParent::open(const QString& path, const QString& files)
{
    auto* main = new TestDocument(path.isEmpty() ? path : absolutePath() + path);
    QTextCursor(main).insertText(files);
    main->setModified(false);
    auto* project = new TestProject(this, main);
    m_projects.append(project);
    project->addToParent();
    return project;
}

void TestParent::close(TestProject* project)
{
    m_projects.removeOne(project);
    project->release();
    delete project;
}

QStringList TestParent::dump(const QModelIndex& index, int depth) const
{
    QStringList lines;
    for (int row = 0; row < rowCount(index); ++row) {
        const QModelIndex child = this->index(row, 0, index);
        const Path* path = itemPath(child);
        QString line = QString(depth, QLatin1Char(' ')) + path->pathName();
        if (path->isDirectory()) {
            line += QLatin1Char('/');
        }
        if (path->isFile()) {
            line += QStringLiteral(" %1").arg(path->fileID());
        }
        lines << line << dump(child, depth + 1);
    }
    return lines;
}
