#pragma once

#include "cache/palette.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettewidget.h"

#include <QModelIndex>
#include <QPointer>
#include <QScopedValueRollback>

class QSlider;
class RemapDlg;

namespace Zorv {

class Interface;
class Sprites;

/// The state of a `PaletteEditor`, and the slots of its tools, which the host finds by name.
class PaletteEditorPrivate : public QObject
{
    Q_OBJECT

public:
    explicit PaletteEditorPrivate(PaletteEditor* owner);
    ~PaletteEditorPrivate() override;

    // paletteeditor.cpp
    void updateRange();
    void keepOthers();
    void fillGrid(const RGBA (&colors)[256]);
    void definePos(int pos);
    void take(Palettes* now);
    void showNone();
    int row() const;
    int count() const;

    /// True if the current row is one of the collection.
    bool hasRow() const;

    /// What is about to be changed is seen. False, and told, if it cannot be.
    bool bringForward();

    // paletteeditorcontrols.cpp
    void publish();
    void retranslate();
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// For as long as it lives, the editor itself sets values.
    class Inhibit
    {
    public:
        explicit Inhibit(PaletteEditorPrivate* d) : m_guard(d->inhibit, d->inhibit + 1) {}

    private:
        QScopedValueRollback<int> m_guard;
    };

    PaletteEditor* const editor;
    Interface* const host;
    QPointer<Palettes> palettes;
    QPointer<Sprites> sprites;   // whose palettes they are
    Palette* palette = nullptr;  // the current one
    QPointer<PaletteWidget> view;
    QPointer<RemapDlg> remapDlg;
    QPointer<QAbstractItemModel> remapModel;
    QPointer<QSlider> slider;
    QPointer<Palettes> remapStep;  // in which a step is open
    int inhibit = 0;
    bool isOther = false;    // the grid has colours of no palette,
    bool isPreview = false;  // or others than the current one has

public slots:
    void clear();
    void clearUnused();
    void add();
    void del();
    void delDupl();
    void open();
    void save();
    void remap();
    void undo();
    void redo();
    void switchColor();
    void setColor();
    void setSprPal();
    void selPosChanged(int pos);
    void prevPal();
    void nextPal();
    void changed();
    void colorMoved(unsigned short src, unsigned short dst);
    void colorDblClicked(unsigned short color);
    void palChanged(bool structure);
    void remapChanged(const QModelIndex& first, const QModelIndex& last);

signals:
    void enabled(bool isEnabled);
    void setSelPos(int value);
    void setPosText(const QString& text);

private:
    // paletteeditorlist.cpp
    void addNew(int row);
    void addFiles(int row);
    bool mayChange(unsigned titleId, const QString& text) const;

    // paletteeditorcolors.cpp
    void comeForward();
    void keepPictures(bool inAll, unsigned short src, unsigned short dst);
    void beginRemap(const QString& title);
    void endRemap();
};

/// What a dialog was opened on. Files are read again behind dialogs, projects are closed.
class ShownPalette
{
public:
    explicit ShownPalette(PaletteEditorPrivate* d);

    /// True if the same collection is there still, and the same palette is the current one.
    bool isThere() const;
    bool isListThere() const;

    /// Makes it the current one again where another palette came into the grid meanwhile. True if
    /// `isThere()` then.
    bool comeBack() const;

private:
    QPointer<PaletteEditorPrivate> m_d;
    QPointer<Palettes> m_palettes;
    const Palette* m_palette;
    int m_row;
    QVariant m_identifier;
};

/// The identifier of a palette, as the person knows it.
QString paletteName(const Palette& palette);

/// Where file dialogs of palettes begin.
QString paletteFolder(const Palettes& palettes);

}  // namespace Zorv
