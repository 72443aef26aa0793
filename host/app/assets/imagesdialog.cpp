#include "app/assets/imagesdialog.h"

#include "app/assets/backgroundwork.h"
#include "app/assets/imagelistmodel.h"
#include "app/assets/importform.h"
#include "app/assets/stagepreview.h"
#include "family/assets/spritecollection.h"
#include "operations/animationedits.h"
#include "operations/media/spriteexport.h"

#include <zorv/core/dialogs/dialogs.h>
#include <zorv/core/interface.h>
#include <zorv/media/tools/colorquantizer.h>

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

// Numbers are recomputed shortly after the last change of the form: for ten thousand names this
// takes longer than a key press may. The preview drops all pictures but the last one requested, so
// that it keeps up with the arrow keys, however slow the pictures are.

namespace App {

using Operations::ImageNumber;
using Operations::ImportImage;
using Operations::ImportPixels;
using Operations::ImportRequest;

namespace {

constexpr int RenumberDelay = 60;  // milliseconds
constexpr int TicksPerSecond = 60;
constexpr int Second = 1000;
constexpr int UsualTicks = 6;
constexpr int MostFaults = 3;

bool isJson(const QString& path)
{
    return QFileInfo(path).suffix().toLower() == QLatin1String("json");
}

QStringList localFiles(const QMimeData* data)
{
    QStringList paths;
    const QList<QUrl> urls = data->urls();
    for (const QUrl& url : urls) {
        const QString path = url.toLocalFile();
        if (Operations::isImageFile(path) || isJson(path) || QFileInfo(path).isDir()) {
            paths.append(path);
        }
    }
    return paths;
}

QVector<Zorv::RGBA> asList(const Family::PaletteColors& colors)
{
    return QVector<Zorv::RGBA>(colors.begin(), colors.end());
}

/// Shows the colours that the sprite will have. A palette shared by all images is known only after
/// all of them were read; until then, this image's own colours are used.
void showColors(ImportPixels* pixels, const ImportRequest& request,
                const QVector<Zorv::RGBA>& palette)
{
    if (!palette.isEmpty()) {
        pixels->image = Zorv::ColorQuantizer::adapt(pixels->image, palette);
    } else if (request.colors > 0) {
        pixels->image = Zorv::ColorQuantizer::quantize(pixels->image, request.colors);
    }
}

}  // namespace

ImagesDialog::ImagesDialog(const Target& target, QWidget* parent)
    : QDialog(parent), m_sprites(target.sprites), m_model(new ImageListModel(this)),
      m_pictures(new BackgroundWork(this)), m_sheets(new BackgroundWork(this))
{
    setObjectName(QStringLiteral("images_dialog"));
    setWindowTitle(tr("Add images"));
    setAcceptDrops(true);
    auto* both = new QHBoxLayout;
    both->addWidget(makeList(target.screen), 1);
    both->addWidget(makeForm(target));
    m_state = new QLabel;
    m_state->setWordWrap(true);
    m_state->setTextFormat(Qt::PlainText);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setText(tr("&Add"));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(both, 1);
    layout->addWidget(m_state);
    layout->addWidget(buttons);
    const auto* host = Zorv::Interface::instance();
    resize(host->pixels(860), host->pixels(620));

    m_renumber.setSingleShot(true);
    m_play.setSingleShot(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(target.sprites, &QObject::destroyed, this, &QDialog::reject);
    connect(&m_renumber, &QTimer::timeout, this, &ImagesDialog::renumber);
    connect(&m_play, &QTimer::timeout, this, &ImagesDialog::playNext);
    connect(m_form, &ImportForm::changed, this, [this] {
        updateState();
        m_renumber.start(RenumberDelay);
        askPicture();
    });
    renumber();
}

ImagesDialog::~ImagesDialog() = default;

QWidget* ImagesDialog::makeList(QSize screen)
{
    m_preview = new StagePreview(screen);
    m_facts = new QLabel;
    m_facts->setTextFormat(Qt::PlainText);
    m_list = new QListView;
    m_list->setModel(m_model);
    m_list->setIconSize({ImageListModel::side(), ImageListModel::side()});
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setAccessibleName(tr("Images"));
    m_remove = new QPushButton(tr("&Remove"));
    auto* files = new QPushButton(tr("&Files..."));
    auto* folder = new QPushButton(tr("F&older..."));
    files->setToolTip(tr("More images, or the JSON file of a sheet"));
    folder->setToolTip(tr("All images of a folder"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {files, folder, m_remove}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins({});
    layout->addWidget(m_preview, 2);
    layout->addWidget(m_facts);
    layout->addWidget(m_list, 3);
    layout->addLayout(buttons);
    connect(files, &QPushButton::clicked, this, &ImagesDialog::chooseFiles);
    connect(folder, &QPushButton::clicked, this, &ImagesDialog::chooseFolder);
    connect(m_remove, &QPushButton::clicked, this, &ImagesDialog::removeSelected);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                m_shown = current.row();
                askPicture();
            });
    return side;
}

/// The form scrolls if the screen is too low for it.
QWidget* ImagesDialog::makeForm(const Target& target)
{
    const Family::FamilySprite* current = m_sprites->sprite(m_sprites->currentIndex);
    const int group = current ? current->id().group : 0;
    m_form = new ImportForm(*m_sprites, group, target.animations, target.animationPlace);
    auto* scroll = new QScrollArea;
    scroll->setWidget(m_form);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setMinimumWidth(m_form->sizeHint().width() +
                            style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    return scroll;
}

void ImagesDialog::addPaths(const QStringList& paths)
{
    QStringList files;
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir()) {
            addLater([path] {
                Operations::SheetImages found;
                found.images = Operations::imagesOfFiles(Operations::imageFilesIn(path));
                return found;
            });
        } else if (isJson(path)) {
            addLater([path] { return Operations::readSheetFile(path); });
        } else {
            files.append(path);
        }
    }
    m_model->append(Operations::imagesOfFiles(files));
    renumber();
}

void ImagesDialog::chooseFiles()
{
    const QPointer<ImagesDialog> self = this;
    const QStringList files = Zorv::getOpenFileNames(
        this, tr("Add images"), QString(),
        tr("Images and sheets") + QStringLiteral(" (*.png *.bmp *.pcx *.gif *.json)"));
    if (self && !files.isEmpty()) {
        addPaths(files);
    }
}

void ImagesDialog::chooseFolder()
{
    const QPointer<ImagesDialog> self = this;
    const QString folder = Zorv::Dialogs::instance()->existingFolder(
        this, tr("Add all images of a folder"), QString());
    if (self && !folder.isEmpty()) {
        addPaths({folder});
    }
}

void ImagesDialog::addLater(const std::function<Operations::SheetImages()>& read)
{
    const int place = m_askedSheets++;
    m_sheets->ask([read, place, this] {
        const Operations::SheetImages found = read();
        return BackgroundWork::Then([this, place, found] {
            m_readSheets.insert(place, found);
            takeSheets();
        });
    });
    updateState();
}

/// Adds sheets in the order of the requests, whichever was read first.
void ImagesDialog::takeSheets()
{
    for (; m_readSheets.contains(m_takenSheets); ++m_takenSheets) {
        const Operations::SheetImages found = m_readSheets.take(m_takenSheets);
        m_faults += found.warnings;
        m_faults += found.error.isEmpty() ? QStringList() : QStringList(found.error);
        m_model->append(found.images);
    }
    renumber();
}

bool ImagesDialog::isReading() const
{
    return m_takenSheets < m_askedSheets;
}

void ImagesDialog::removeSelected()
{
    QSet<int> rows;
    const QModelIndexList selected = m_list->selectionModel()->selectedRows();
    for (const QModelIndex& index : selected) {
        rows.insert(index.row());
    }
    m_model->remove(rows);
    m_faults.clear();
    renumber();
}

void ImagesDialog::renumber()
{
    m_renumber.stop();
    if (!m_sprites) {
        return;
    }
    m_model->setNumbers(Operations::numberImages(images(), request().numbering, *m_sprites));
    m_form->setTimed(isTimed());
    if (!m_list->currentIndex().isValid() && !images().isEmpty()) {
        m_list->setCurrentIndex(m_model->index(0));
    }
    m_shown = m_list->currentIndex().row();
    updateState();
    askPicture();
}

void ImagesDialog::updateState()
{
    int faulty = 0;
    int moved = 0;
    for (const ImageNumber& number : m_model->numbers()) {
        faulty += number.isFault() ? 1 : 0;
        moved += number.state == ImageNumber::Counted || number.state == ImageNumber::Moved ? 1 : 0;
    }
    QStringList lines{tr("%n image(s)", nullptr, images().size())};
    if (isReading()) {
        lines[0] += QLatin1Char(' ') + tr("(more are being read)");
    }
    if (moved > 0) {
        lines.append(tr("%n of them get(s) the next free number.", nullptr, moved));
    }
    if (faulty > 0) {
        lines.append(tr("%n of them cannot come so: see the red ones.", nullptr, faulty));
    }
    const QString fault = m_form->fault();
    lines += fault.isEmpty() ? QStringList() : QStringList(fault);
    lines += m_faults.mid(0, MostFaults);
    m_state->setText(lines.join(QLatin1Char('\n')));
    m_ok->setEnabled(!images().isEmpty() && faulty == 0 && fault.isEmpty() && !isReading());
    m_remove->setEnabled(!images().isEmpty());
    if (m_form->makesAnimation() && !m_play.isActive() && images().size() > 1) {
        m_play.start(ticksOf(m_shown) * Second / TicksPerSecond);
    }
}

void ImagesDialog::askPicture()
{
    if (m_shown < 0 || m_shown >= images().size() || !m_sprites) {
        m_preview->setPicture({}, {});
        m_facts->clear();
        return;
    }
    const ImportRequest request = this->request();
    Family::PaletteColors colors;
    QString error;
    const bool hasPalette = !request.palette.isEmpty() &&
                            Operations::findPalette(*m_sprites, request.palette, &colors, &error);
    const QVector<Zorv::RGBA> palette = hasPalette ? asList(colors) : QVector<Zorv::RGBA>();
    m_pictures->clear();
    m_pictures->ask(
        [image = images().at(m_shown), request, palette, row = m_shown, asked = ++m_asked, this] {
            ImportPixels pixels = Operations::readPixels(image, request.crops);
            if (!pixels.image.isNull()) {
                showColors(&pixels, request, palette);
            }
            return BackgroundWork::Then([this, pixels, row, asked] {
                if (asked == m_asked) {
                    takePicture(row, pixels);
                }
            });
        });
}

void ImagesDialog::takePicture(int row, const ImportPixels& pixels)
{
    const QPoint axis = Operations::importAxis(pixels, request());
    m_preview->setPicture(pixels.image, axis);
    const QString name = images().value(row).name;
    m_facts->setText(!pixels.error.isEmpty()
                         ? pixels.error
                         : tr("%1: %2 × %3, axis %4,%5")
                               .arg(name, QString::number(pixels.image.width()),
                                    QString::number(pixels.image.height()),
                                    QString::number(axis.x()), QString::number(axis.y())));
    if (m_form->makesAnimation() && images().size() > 1) {
        m_play.start(ticksOf(row) * Second / TicksPerSecond);
    }
}

/// Shows the next frame when the time of this one is over. The selection in the list does not move.
void ImagesDialog::playNext()
{
    if (!m_form->makesAnimation() || images().isEmpty()) {
        m_shown = m_list->currentIndex().row();
    } else {
        m_shown = (m_shown + 1) % images().size();
    }
    askPicture();
}

bool ImagesDialog::isTimed() const
{
    return !images().isEmpty() &&
           std::all_of(images().begin(), images().end(),
                       [](const ImportImage& image) { return image.frame.milliseconds > 0; });
}

int ImagesDialog::ticksOf(int row) const
{
    if (m_form->ticks() > 0) {
        return m_form->ticks();
    }
    const int time = images().value(row).frame.milliseconds;
    return time > 0 ? qMax(1, time * TicksPerSecond / Second) : UsualTicks;
}

const QVector<ImportImage>& ImagesDialog::images() const
{
    return m_model->images();
}

ImportRequest ImagesDialog::request() const
{
    return m_form->request();
}

QString ImagesDialog::animation() const
{
    return m_form->makesAnimation() ? m_form->animation() : QString();
}

QVector<int> ImagesDialog::ticks() const
{
    if (m_form->ticks() > 0) {
        return QVector<int>(images().size(), m_form->ticks());
    }
    QVector<int> times;
    for (const ImportImage& image : images()) {
        times.append(image.frame.milliseconds);
    }
    return Operations::ticksOf(times);
}

void ImagesDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!localFiles(event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ImagesDialog::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    addPaths(localFiles(event->mimeData()));
}

}  // namespace App
