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

/// The state of a `PaletteEditor`, and the slots of its tools. The host finds the slots by name.
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

    /// True if the current row exists in the collection.
    bool hasRow() const;

    /// Shows what is about to be changed. Returns false and informs the user if that is impossible.
    bool bringForward();

    // paletteeditorcontrols.cpp
    void publish();
    void retranslate();
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// Guard: while it lives, the editor itself changes values and ignores their signals.
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
    QPointer<Sprites> sprites;   // owner of the palettes
    Palette* palette = nullptr;  // the current palette
    QPointer<PaletteWidget> view;
    QPointer<RemapDlg> remapDlg;
    QPointer<QAbstractItemModel> remapModel;
    QPointer<QSlider> slider;
    QPointer<Palettes> remapStep;  // collection with an open undo step
    int inhibit = 0;
    bool isOther = false;    // the grid shows colours of no palette
    bool isPreview = false;  // the grid shows preview colours

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

/// Remembers the palette that a dialog was opened for. While it is open, files can be read again
/// and projects closed.
class ShownPalette
{
public:
    explicit ShownPalette(PaletteEditorPrivate* d);

    /// True if the collection still exists and the same palette is current.
    bool isThere() const;
    bool isListThere() const;

    /// Makes the palette current again if another one came into the grid. Returns `isThere()`
    /// afterwards.
    bool comeBack() const;

private:
    QPointer<PaletteEditorPrivate> m_d;
    QPointer<Palettes> m_palettes;
    const Palette* m_palette;
    int m_row;
    QVariant m_identifier;
};

/// The identifier of a palette, as the user knows it.
QString paletteName(const Palette& palette);

/// The start folder of palette file dialogs.
QString paletteFolder(const Palettes& palettes);

}  // namespace Zorv
