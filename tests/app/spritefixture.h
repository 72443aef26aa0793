#pragma once

#include "paintingfixture.h"

#include <QTimer>

using Zorv::Dialogs;

/// A window with four sprites in it, and what their tests do with the file and its dialogs.
class SpriteTest : public PaintingTest
{
protected:
    void begin() { PaintingTest::begin(4); }
    void end()
    {
        m_watch.stop();
        m_isSeen = false;
        m.reset();
    }

    void show(int row) const { m->window->paint()->showSprite(sprites(), row); }
    void paint() const { canvas()->flip(true, false); }
    QStringList names() const
    {
        QStringList all;
        for (int i = 0; i < int(sprites()->count()); ++i) {
            all.append(sprites()->sprite(i)->id().text());
        }
        return all;
    }
    QByteArray written() const
    {
        const QString path = m_folder->filePath(QStringLiteral("written.sprites"));
        sprites()->toFile(*Zorv::FileSystemArchive::instance(), path, true);
        return readFile(path);
    }
    QString file(const QString& name, const QImage& image) const
    {
        const QString path = m_folder->filePath(name);
        return image.save(path) ? path : QString();
    }

    /// What is done in the next dialog that opens.
    template <class Dialog>
    void inDialog(const std::function<void(Dialog*)>& act)
    {
        m_isSeen = false;
        m_watch.disconnect();
        connect(&m_watch, &QTimer::timeout, this, [this, act] {
            if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
                m_watch.stop();
                m_isSeen = true;
                act(dialog);
            }
        });
        m_watch.start(5);
    }

    QTimer m_watch;
    bool m_isSeen = false;
};
