#pragma once

#include "cli/sheetform.h"
#include "operations/find/codefiles.h"
#include "operations/find/findpattern.h"
#include "operations/media/outputfiles.h"
#include "operations/media/selection.h"
#include "operations/media/spriteedits.h"

#include <zorv/media/tools/colorspaces.h>
#include <zorv/media/tools/imageresizefilter.h>

#include <QPoint>
#include <QSize>
#include <QStringList>

namespace Cli {

/// What the user asked for on the command line.
struct Invocation
{
    QStringList operands;
    bool json = false;
    bool dryRun = false;
    bool mends = false;
    bool noSafetyBackup = false;
    int codec = -1;       ///< index in `Zorv::TextCodecs`; negative to detect
    QString engine;       ///< null if not given
    QString parameters;   ///< for the engine; null if not given
    bool trusts = false;  ///< allows to run the program of the game folder

    Operations::OutputRequest output;  ///< --out, --format, --force
    Operations::Selection selection;
    QString palette;  ///< an identifier or a file; null if not given
    bool adapts = false;
    bool recolors = false;
    bool reverses = false;
    bool crops = false;
    bool isCommon = false;
    bool isLenient = false;
    bool leavesComments = false;
    bool hasInstances = false;
    bool isDescending = false;
    bool hasCostumes = false;  ///< all palettes of a file change together with the selected one
    int firstSlot = -1;        ///< of a palette; -1 if not given
    int lastSlot = -1;
    Zorv::ColorSpace space = Zorv::ColorSpace::OKLab;
    int columns = 0;  ///< 0 for an about square sheet
    int group = -1;
    QPoint axis;
    Operations::AxisBase axisBase = Operations::AxisBase::TopLeft;
    bool hasAxis = false;
    QString pattern;  ///< of names; null if not given
    bool isSheet = false;
    SheetForm sheet;
    int background = 0;
    int colors = 0;
    QSize size;         ///< invalid if not given
    double factor = 0;  ///< 0 if not given
    double angle = 0;
    Zorv::ImageResizeFilter filter = Zorv::ImageResizeFilter::Nearest;
    QString coding;   ///< codec of pixels in a sprite file; null if not given
    QString sprites;  ///< a file; null if not given
    int frame = -1;   ///< counted from 0; -1 if not given
    double zoom = 1;
    bool showsBoxes = false;
    bool showsAxis = false;
    bool asGif = false;
    bool asSheet = false;
    bool replaces = false;
    bool skips = false;
    bool bringsSprites = false;
    QString animation;     ///< an identifier; null for all
    QString templateName;  ///< null for the first shipped one
    int rate = 0;          ///< of sounds; 0 if not given, likewise the next two
    int bits = 0;
    int channels = 0;
    double from = -1;  ///< seconds; negative if not given
    double to = -1;
    double silence = None;   ///< decibels
    double peak = None;      ///< decibels
    double loudness = None;  ///< LUFS

    int findOptions = Operations::FindPattern::MatchCase;
    int kinds = Operations::AllKinds;  ///< of code files
    QString replacement;               ///< null if nothing is replaced

    static constexpr double None = 1;  ///< levels are below 0
};

/// The options of all commands. Each command has the flags of the options that it accepts.
enum Option : quint64 {
    NoOptions = 0,
    Json = 1u << 0,
    DryRun = 1u << 1,
    Encoding = 1u << 2,
    NoSafety = 1u << 3,
    Engine = 1u << 4,
    Parameters = 1u << 5,
    Out = 1u << 6,
    Format = 1u << 7,
    Force = 1u << 8,
    Select = 1u << 9,
    PaletteId = 1u << 10,
    PaletteFile = 1u << 11,
    Adapt = 1u << 12,
    Recolor = 1u << 13,
    Crop = 1u << 14,
    Common = 1u << 15,
    Columns = 1u << 16,
    Group = 1u << 17,
    Axis = 1u << 18,
    Background = 1u << 19,
    Colors = 1u << 20,
    Size = 1u << 21,
    Factor = 1u << 22,
    Angle = 1u << 23,
    Filter = 1u << 24,
    Coding = 1u << 25,
    SpriteFile = 1u << 26,
    Target = 1u << 27,
    Frame = 1u << 28,
    Zoom = 1u << 29,
    ShowBoxes = 1u << 30,
    ShowAxis = 1u << 31,
    AsGif = quint64(1) << 32,
    AsSheet = quint64(1) << 33,
    OneAnimation = quint64(1) << 34,
    Trust = quint64(1) << 35,
    Lenient = quint64(1) << 36,
    LeaveComments = quint64(1) << 37,
    Instances = quint64(1) << 38,
    Replace = quint64(1) << 39,
    Skip = quint64(1) << 40,
    BringSprites = quint64(1) << 41,
    Reversed = quint64(1) << 42,
    Slots = quint64(1) << 43,
    Descending = quint64(1) << 44,
    Costumes = quint64(1) << 45,
    Space = quint64(1) << 46,
    Rate = quint64(1) << 47,
    Bits = quint64(1) << 48,
    Channels = quint64(1) << 49,
    From = quint64(1) << 50,
    To = quint64(1) << 51,
    Silence = quint64(1) << 52,
    Peak = quint64(1) << 53,
    Loudness = quint64(1) << 54,
    Template = quint64(1) << 55,
    SheetHow = quint64(1) << 56,
    Pattern = quint64(1) << 57,
    IgnoreCase = quint64(1) << 59,
    WholeWord = quint64(1) << 60,
    Expression = quint64(1) << 61,
    Kind = quint64(1) << 62,
    ReplaceBy = quint64(1) << 63,
    Mend = quint64(1) << 58
};

/// An option: one row of the table.
struct OptionInfo
{
    quint64 option;
    const char* name;   ///< "--json"
    const char* value;  ///< its value as shown in the usage text; null if it has none

    /// Parses the value `text` into the invocation. Returns an error message, or nothing.
    QString (*take)(const QString& text, Invocation& invocation);
    const char* summary;  ///< one line
};

/// The rows, in the order of the usage text.
const QVector<OptionInfo>& options();

/// "--encoding NAME".
QString optionForm(const OptionInfo& option);

/// Finds an option by name among those in `taken`; "-o" means "--out". Null if there is none.
const OptionInfo* findOption(quint64 taken, const QString& name);

}  // namespace Cli
