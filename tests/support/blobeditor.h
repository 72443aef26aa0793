#pragma once

#include "editors/framework/fileeditor.h"

/// An editor that shows nothing and edits what it is given.
class BlobEditor : public Zorv::FileEditor
{
public:
    QAction* action() const override { return nullptr; }
    QString name() const override { return QStringLiteral("blob"); }
    int canEditFileType() const override { return fileType; }
    QStringList areas() const override { return {}; }
    void retranslate() override {}
    void find(const QString&, unsigned) override {}
    void replace(const QString&, const QString&, unsigned, bool) override {}
    void selectAll() override {}
    Zorv::ProjectFile* file() const override { return blob; }
    void cut() override {}
    void copy() override {}
    void paste() override {}
    QString fileFilter() const override { return filter; }

    Zorv::ProjectFile* blob = nullptr;
    int fileType = 0;
    QString filter = QStringLiteral("Blob;.blob;Text;.txt");
};
