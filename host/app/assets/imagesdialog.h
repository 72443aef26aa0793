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

/// Shows the images to import, and asks for numbers, axis, palette and an optional animation. The
/// current picture is shown on the stage as it will look, and an animation plays there. Buttons or
/// drag and drop add more files, folders, and sheets with their JSON.
///
/// Files are read in worker threads, so the dialog stays responsive with ten thousand of them.
class ImagesDialog : public QDialog
{
    Q_OBJECT

public:
    /// The destination of the images.
    struct Target
    {
        Family::SpriteCollection* sprites = nullptr;
        const Family::FamilyAnimations* animations = nullptr;  ///< null: do not offer an animation
        QString animationPlace;                                ///< the name of its file
        QSize screen;                                          ///< of the game; empty if unknown
    };

    /// Closes itself if the sprites are destroyed.
    ImagesDialog(const Target& target, QWidget* parent);
    ~ImagesDialog() override;

    /// Adds images, folders of images, and JSON files of sheets.
    void addPaths(const QStringList& paths);

    const QVector<Operations::ImportImage>& images() const;
    Operations::ImportRequest request() const;

    /// The identifier of the animation to create, empty for none, and the ticks of each image in
    /// it.
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
    QTimer m_renumber;  // merges several key presses into one update
    QTimer m_play;
    int m_shown = -1;  // the row in the preview
    int m_asked = 0;   // number of pictures requested; only the last one is used
    QHash<int, Operations::SheetImages> m_readSheets;  // waiting for a sheet requested earlier
    int m_askedSheets = 0;
    int m_takenSheets = 0;
    QStringList m_faults;
};

}  // namespace App
