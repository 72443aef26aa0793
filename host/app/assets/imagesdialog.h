#pragma once

#include "operations/media/spriteimport.h"

#include <QDialog>
#include <QHash>
#include <QPointer>
#include <QTimer>

#include <functional>

class QLabel;
class QListView;
class QPushButton;

namespace Family {
class FamilyAnimations;
class SpriteCollection;
}  // namespace Family

namespace App {

class BackgroundWork;
class ImageListModel;
class ImportForm;
class StagePreview;

/// Shows images that are about to become sprites, and asks what becomes of them: numbers, axis,
/// palette, an animation. The picture in front stands on the stage as it will, and what is to be
/// one moves there. More files, folders and sheets with their JSON are added by buttons, or
/// dropped.
///
/// Files are read in other threads, so the dialog answers with ten thousand of them.
class ImagesDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the images come into.
    struct Target
    {
        Family::SpriteCollection* sprites = nullptr;
        const Family::FamilyAnimations* animations = nullptr;  ///< null for no offer of one
        QString animationPlace;                                ///< what its file is called
        QSize screen;                                          ///< of the game; empty if not told
    };

    /// Closes itself if the sprites go.
    ImagesDialog(const Target& target, QWidget* parent);
    ~ImagesDialog() override;

    /// Adds images, folders of them, and JSON files of sheets.
    void addPaths(const QStringList& paths);

    const QVector<Operations::ImportImage>& images() const;
    Operations::ImportRequest request() const;

    /// The identifier of the animation that is asked for; empty for none. And the ticks of each of
    /// the images in it.
    QString animation() const;
    QVector<int> ticks() const;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* makeList(QSize screen);
    QWidget* makeForm(const Target& target);
    void chooseFiles();
    void chooseFolder();
    void addLater(const std::function<Operations::SheetImages()>& read);
    void takeSheets();
    bool isReading() const;
    void removeSelected();
    void renumber();
    void updateState();
    void askPicture();
    void takePicture(int row, const Operations::ImportPixels& pixels);
    void playNext();
    bool isTimed() const;
    int ticksOf(int row) const;

    QPointer<Family::SpriteCollection> m_sprites;
    ImageListModel* m_model;
    QListView* m_list;
    StagePreview* m_preview;
    QLabel* m_facts;
    ImportForm* m_form;
    QLabel* m_state;
    QPushButton* m_remove;
    QPushButton* m_ok;
    BackgroundWork* m_pictures;
    BackgroundWork* m_sheets;
    QTimer m_renumber;  // once for several keys
    QTimer m_play;
    int m_shown = -1;  // the row in the preview
    int m_asked = 0;   // counts pictures that were asked for; only the last is of use
    QHash<int, Operations::SheetImages> m_readSheets;  // that wait for one asked for before
    int m_askedSheets = 0;
    int m_takenSheets = 0;
    QStringList m_faults;
};

}  // namespace App
