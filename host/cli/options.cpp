#include "cli/options.h"

#include "family/stage/framecomposer.h"
#include "operations/media/imagefiles.h"
#include "operations/media/imagenumbers.h"

#include <zorv/code/codecs/textcodecs.h>

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTextCodec>
#include <algorithm>

namespace Cli {

namespace {

const int MaxSide = 32767;
const int MaxGroup = 65535;
const int MaxFactor = 1000;
const int MaxFrame = 1000000;
const int MaxRate = 384000;
const int MaxChannels = 8;
const int MaxSeconds = 100000;
const int LeastLevel = -120;

QString tr(const char* text)
{
    return QCoreApplication::translate("Cli", text);
}

QString expected(const char* what, const QString& found)
{
    return tr("Expected %1; found '%2'.").arg(tr(what), found);
}

/// Parses an integer in a range.
bool takeNumber(const QString& text, int least, int most, int* number)
{
    bool isNumber = false;
    *number = text.toInt(&isNumber);
    return isNumber && *number >= least && *number <= most;
}

bool takePair(const QString& text, const char* form, int* first, int* second)
{
    const QRegularExpression pattern{QLatin1String(form)};
    const QRegularExpressionMatch match = pattern.match(text);
    *first = match.captured(1).toInt();
    *second = match.captured(2).toInt();
    return match.hasMatch();
}

QString takeEncoding(const QString& name, Invocation& invocation)
{
    const QTextCodec* codec = QTextCodec::codecForName(name.toUtf8());
    invocation.codec = codec ? Zorv::TextCodecs::index(codec->name().constData()) : 0;
    return invocation.codec != 0
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli",
                                            "an encoding such as UTF-8, windows-1252 or Shift_JIS"),
                          name);
}

QString takeSelection(const QString& text, Invocation& invocation)
{
    return invocation.selection.add(text)
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "groups such as 200, 200-299 or 200,3"), text);
}

QString takeAxis(const QString& text, Invocation& invocation)
{
    invocation.hasAxis = takePair(text, "^\\s*(-?\\d{1,5})\\s*,\\s*(-?\\d{1,5})\\s*$",
                                  &invocation.axis.rx(), &invocation.axis.ry()) &&
                         qMax(qAbs(invocation.axis.x()), qAbs(invocation.axis.y())) <= MaxSide;
    return invocation.hasAxis
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "two numbers such as 32,96"), text);
}

/// Accepts a pixel, or a named point of the image.
QString takeImageAxis(const QString& text, Invocation& invocation)
{
    invocation.hasAxis = Operations::readAxisBase(text, &invocation.axisBase) &&
                         invocation.axisBase != Operations::AxisBase::Current;
    return invocation.hasAxis || takeAxis(text, invocation).isEmpty()
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "two numbers such as 32,96, or a place such as "
                                                   "bottom or top-left"),
                          text);
}

QString takeSheet(const QString& text, Invocation& invocation)
{
    invocation.isSheet = readSheetForm(text, &invocation.sheet);
    return invocation.isSheet
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "'json', 'gaps', 'cells=32x48' or 'grid=8x4'"),
                          text);
}

QString takePattern(const QString& text, Invocation& invocation)
{
    invocation.pattern = text;
    return Operations::patternFault(text);
}

QString takeSize(const QString& text, Invocation& invocation)
{
    QSize& size = invocation.size;
    const bool isSize =
        takePair(text, "^(\\d{1,5})[x,](\\d{1,5})$", &size.rwidth(), &size.rheight()) &&
        !size.isEmpty() && qMax(size.width(), size.height()) <= MaxSide;
    return isSize ? QString()
                  : expected(QT_TRANSLATE_NOOP("Cli", "a size such as 64x96, up to 32767x32767"),
                             text);
}

QString takeFactor(const QString& text, Invocation& invocation)
{
    bool isNumber = false;
    invocation.factor = text.toDouble(&isNumber);
    return isNumber && invocation.factor > 0 && invocation.factor <= MaxFactor
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "a factor such as 2 or 0.5"), text);
}

QString takeZoom(const QString& text, Invocation& invocation)
{
    bool isNumber = false;
    invocation.zoom = text.toDouble(&isNumber);
    const double most = double(Family::FrameStyle::MaxZoom);
    return isNumber && invocation.zoom >= 1 / most && invocation.zoom <= most
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "a zoom such as 2 or 0.5, up to 64"), text);
}

QString takeAngle(const QString& text, Invocation& invocation)
{
    bool isNumber = false;
    invocation.angle = text.toDouble(&isNumber);
    return isNumber && qAbs(invocation.angle) <= 360000
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "an angle in degrees"), text);
}

QString takeFilter(const QString& text, Invocation& invocation)
{
    const QStringList names{QStringLiteral("nearest"), QStringLiteral("bilinear"),
                            QStringLiteral("epx"), QStringLiteral("hq")};
    const int index = names.indexOf(text);
    invocation.filter = Zorv::ImageResizeFilter(qMax(index, 0));
    return index >= 0 ? QString()
                      : expected(QT_TRANSLATE_NOOP("Cli", "nearest, bilinear, epx or hq"), text);
}

QString takeSlots(const QString& text, Invocation& invocation)
{
    const bool isRange =
        takePair(text, "^(\\d{1,3})-(\\d{1,3})$", &invocation.firstSlot, &invocation.lastSlot) &&
        invocation.firstSlot <= invocation.lastSlot && invocation.lastSlot <= 255;
    return isRange ? QString()
                   : expected(QT_TRANSLATE_NOOP("Cli", "slots such as 16-31, up to 255"), text);
}

QString takeSpace(const QString& text, Invocation& invocation)
{
    const int index =
        QStringList{QStringLiteral("rgb"), QStringLiteral("hsv"), QStringLiteral("oklab")}.indexOf(
            text);
    invocation.space = Zorv::ColorSpace(qMax(index, 0));
    return index >= 0 ? QString() : expected(QT_TRANSLATE_NOOP("Cli", "rgb, hsv or oklab"), text);
}

QString takeBits(const QString& text, Invocation& invocation)
{
    const bool isKnown = takeNumber(text, 8, 32, &invocation.bits) && invocation.bits % 8 == 0;
    return isKnown ? QString() : expected(QT_TRANSLATE_NOOP("Cli", "8, 16, 24 or 32 bits"), text);
}

QString takePlace(const QString& text, Invocation& invocation)
{
    invocation.output.place = text;
    return text.isEmpty() ? expected(QT_TRANSLATE_NOOP("Cli", "a folder or file"), text)
                          : QString();
}

QString takeFormat(const QString& text, Invocation& invocation)
{
    invocation.output.format = text.toUpper().toLatin1();
    return Operations::isImageFormat(invocation.output.format)
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "png, pcx, bmp or gif"), text);
}

QString takeForce(const QString&, Invocation& invocation)
{
    invocation.output.force = true;
    return {};
}

QString takeIgnoreCase(const QString&, Invocation& invocation)
{
    invocation.findOptions &= ~Operations::FindPattern::MatchCase;
    return {};
}

template <int option>
QString takeFindOption(const QString&, Invocation& invocation)
{
    invocation.findOptions |= option;
    return {};
}

/// Accepts a suffix with or without dot. The option may occur several times.
QString takeKind(const QString& text, Invocation& invocation)
{
    const QString suffix = text.startsWith(QLatin1Char('.')) ? text : QLatin1Char('.') + text;
    const Family::FileKind kind = Family::fileKindOf(suffix);
    const int before = invocation.kinds == Operations::AllKinds ? 0 : invocation.kinds;
    invocation.kinds = before | 1 << int(kind);
    return Family::fileSuffix(kind) == suffix
               ? QString()
               : expected(QT_TRANSLATE_NOOP("Cli", "character, stage, code, anim or commands"),
                          text);
}

/// An empty text is a valid replacement too.
QString takeReplacement(const QString& text, Invocation& invocation)
{
    invocation.replacement = text.isNull() ? QLatin1String("") : text;
    return {};
}

template <int Invocation::*member, int least, int most>
QString takeInt(const QString& text, Invocation& invocation)
{
    return takeNumber(text, least, most, &(invocation.*member))
               ? QString()
               : tr("Expected a number from %1 to %2; found '%3'.")
                     .arg(QString::number(least), QString::number(most), text);
}

template <double Invocation::*member, int least, int most>
QString takeDouble(const QString& text, Invocation& invocation)
{
    bool isNumber = false;
    invocation.*member = text.toDouble(&isNumber);
    return isNumber && invocation.*member >= least && invocation.*member <= most
               ? QString()
               : tr("Expected a number from %1 to %2; found '%3'.")
                     .arg(QString::number(least), QString::number(most), text);
}

template <bool Invocation::*member>
QString setFlag(const QString&, Invocation& invocation)
{
    invocation.*member = true;
    return {};
}

template <QString Invocation::*member>
QString setText(const QString& text, Invocation& invocation)
{
    invocation.*member = text;
    return {};
}

// clang-format off
const OptionInfo table[] = {
    {Json, "--json", nullptr, setFlag<&Invocation::json>,
     QT_TRANSLATE_NOOP("Cli", "print JSON")},
    {DryRun, "--dry-run", nullptr, setFlag<&Invocation::dryRun>,
     QT_TRANSLATE_NOOP("Cli", "print what would change, write nothing")},
    {Mend, "--fix", nullptr, setFlag<&Invocation::mends>,
     QT_TRANSLATE_NOOP("Cli", "mend what has one obvious mend")},
    {NoSafety, "--no-safety-backup", nullptr, setFlag<&Invocation::noSafetyBackup>,
     QT_TRANSLATE_NOOP("Cli", "do not copy the game aside first")},
    {Encoding, "--encoding", "NAME", takeEncoding,
     QT_TRANSLATE_NOOP("Cli", "the encoding of FILE, instead of the one that seems to be in use")},
    {Template, "--template", "NAME", setText<&Invocation::templateName>,
     QT_TRANSLATE_NOOP("Cli", "what it begins as, one of our templates or of your own")},
    {Engine, "--engine", "NAME", setText<&Invocation::engine>,
     QT_TRANSLATE_NOOP("Cli", "an engine of the settings, or a program")},
    {Parameters, "--parameters", "TEXT", setText<&Invocation::parameters>,
     QT_TRANSLATE_NOOP("Cli", "what the engine gets, with %0, %1 for the projects")},
    {Trust, "--trust", nullptr, setFlag<&Invocation::trusts>,
     QT_TRANSLATE_NOOP("Cli", "start the program of the game folder, whoever has made it")},
    {Select, "--select", "GROUPS", takeSelection,
     QT_TRANSLATE_NOOP("Cli", "only these: '200', '200-299', '200,3', several with blanks")},
    {PaletteId, "--palette", "ID|FILE", setText<&Invocation::palette>,
     QT_TRANSLATE_NOOP("Cli", "this palette: its group and number as '1,1', or a palette file")},
    {PaletteFile, "--palette", "FILE", setText<&Invocation::palette>,
     QT_TRANSLATE_NOOP("Cli", "the colours of a palette file or an image")},
    {Adapt, "--adapt", nullptr, setFlag<&Invocation::adapts>,
     QT_TRANSLATE_NOOP("Cli", "pixels take the nearest of the new colours, instead of their indices")},
    {Recolor, "--recolour", nullptr, setFlag<&Invocation::recolors>,
     QT_TRANSLATE_NOOP("Cli", "the palette takes the colours of the image, for all its sprites")},
    {Reversed, "--reversed", nullptr, setFlag<&Invocation::reverses>,
     QT_TRANSLATE_NOOP("Cli", "the order of the colours of an image is reversed, its picture stays")},
    {Slots, "--slots", "A-B", takeSlots,
     QT_TRANSLATE_NOOP("Cli", "only these slots, also 0 and those that are transparent")},
    {Descending, "--descending", nullptr, setFlag<&Invocation::isDescending>,
     QT_TRANSLATE_NOOP("Cli", "the largest first")},
    {Costumes, "--costumes", nullptr, setFlag<&Invocation::hasCostumes>,
     QT_TRANSLATE_NOOP("Cli", "all palettes of FILE go along, in the order of the first that is meant")},
    {Space, "--space", "NAME", takeSpace,
     QT_TRANSLATE_NOOP("Cli", "where colours are mixed: oklab (as without it), hsv or rgb")},
    {Size, "--size", "WxH", takeSize,
     QT_TRANSLATE_NOOP("Cli", "the size in pixels")},
    {Factor, "--factor", "N", takeFactor,
     QT_TRANSLATE_NOOP("Cli", "how many times the size")},
    {Angle, "--angle", "DEGREES", takeAngle,
     QT_TRANSLATE_NOOP("Cli", "clockwise")},
    {Filter, "--filter", "NAME", takeFilter,
     QT_TRANSLATE_NOOP("Cli", "nearest (as without it), bilinear, epx or hq")},
    {Background, "--background", "INDEX", takeInt<&Invocation::background, -1, 255>,
     QT_TRANSLATE_NOOP("Cli", "the index of what does not show in indexed images, 0 without it")},
    {Colors, "--colours", "N", takeInt<&Invocation::colors, 1, 256>,
     QT_TRANSLATE_NOOP("Cli", "at most so many colours, up to 256")},
    {Common, "--common", nullptr, setFlag<&Invocation::isCommon>,
     QT_TRANSLATE_NOOP("Cli", "one palette for all images")},
    {Group, "--group", "N", takeInt<&Invocation::group, 0, MaxGroup>,
     QT_TRANSLATE_NOOP("Cli", "the group of all files, numbered in their order, whatever their names")},
    {Pattern, "--pattern", "TEXT", takePattern,
     QT_TRANSLATE_NOOP("Cli", "where names tell them, as '{group}-{number}' or 'walk_{number}'")},
    {SheetHow, "--sheet", "HOW", takeSheet,
     QT_TRANSLATE_NOOP("Cli", "images are sheets: 'json', 'gaps', 'cells=32x48', 'grid=8x4'")},
    {Axis, "--axis", "X,Y|PLACE", takeImageAxis,
     QT_TRANSLATE_NOOP("Cli", "the axis of all images, from their top left corner, or 'bottom'")},
    {Crop, "--crop", nullptr, setFlag<&Invocation::crops>,
     QT_TRANSLATE_NOOP("Cli", "cut off what does not show, and move the axis with it")},
    {Coding, "--codec", "NAME", setText<&Invocation::coding>,
     QT_TRANSLATE_NOOP("Cli", "how pixels are stored: lz5, rle8, pcx or png")},
    {Columns, "--columns", "N", takeInt<&Invocation::columns, 1, 10000>,
     QT_TRANSLATE_NOOP("Cli", "how many sprites stand side by side")},
    {SpriteFile, "--sprites", "FILE", setText<&Invocation::sprites>,
     QT_TRANSLATE_NOOP("Cli", "the sprite file, instead of the one beside FILE")},
    {Frame, "--frame", "N", takeInt<&Invocation::frame, 0, MaxFrame>,
     QT_TRANSLATE_NOOP("Cli", "which frame, counted from 0; the first one without it")},
    {Zoom, "--zoom", "Z", takeZoom,
     QT_TRANSLATE_NOOP("Cli", "pixels of the picture for one of the game")},
    {ShowBoxes, "--boxes", nullptr, setFlag<&Invocation::showsBoxes>,
     QT_TRANSLATE_NOOP("Cli", "with the contact boxes")},
    {ShowAxis, "--axis", nullptr, setFlag<&Invocation::showsAxis>,
     QT_TRANSLATE_NOOP("Cli", "with a cross at the axis")},
    {AsGif, "--gif", nullptr, setFlag<&Invocation::asGif>,
     QT_TRANSLATE_NOOP("Cli", "all frames, as an animated GIF")},
    {AsSheet, "--sheet", nullptr, setFlag<&Invocation::asSheet>,
     QT_TRANSLATE_NOOP("Cli", "all frames side by side, and a file of JSON beside the picture")},
    {OneAnimation, "--animation", "ID", setText<&Invocation::animation>,
     QT_TRANSLATE_NOOP("Cli", "only the animations of this identifier")},
    {Lenient, "--lenient", nullptr, setFlag<&Invocation::isLenient>,
     QT_TRANSLATE_NOOP("Cli", "all samples that are there, whatever the sizes in the file say")},
    {Rate, "--rate", "N", takeInt<&Invocation::rate, 1, MaxRate>,
     QT_TRANSLATE_NOOP("Cli", "frames a second")},
    {Bits, "--bits", "N", takeBits,
     QT_TRANSLATE_NOOP("Cli", "bits a sample: 8, 16, 24 or 32")},
    {Channels, "--channels", "N", takeInt<&Invocation::channels, 1, MaxChannels>,
     QT_TRANSLATE_NOOP("Cli", "1 for their mean, 2 for stereo, up to 8")},
    {From, "--from", "SECONDS", takeDouble<&Invocation::from, 0, MaxSeconds>,
     QT_TRANSLATE_NOOP("Cli", "where the part begins; the start without it")},
    {To, "--to", "SECONDS", takeDouble<&Invocation::to, 0, MaxSeconds>,
     QT_TRANSLATE_NOOP("Cli", "where the part ends; the end without it")},
    {Silence, "--silence", "DB", takeDouble<&Invocation::silence, LeastLevel, 0>,
     QT_TRANSLATE_NOOP("Cli", "what is no louder goes at both ends; -60 without it")},
    {Peak, "--peak", "DB", takeDouble<&Invocation::peak, LeastLevel, 0>,
     QT_TRANSLATE_NOOP("Cli", "the greatest value; 0 without it, as loud as can be")},
    {Loudness, "--loudness", "LUFS", takeDouble<&Invocation::loudness, LeastLevel, 0>,
     QT_TRANSLATE_NOOP("Cli", "the loudness by EBU R 128, as far as the peak allows it")},
    {LeaveComments, "--leave-comments", nullptr, setFlag<&Invocation::leavesComments>,
     QT_TRANSLATE_NOOP("Cli", "comments above an animation stay where they are")},
    {Instances, "--instances", nullptr, setFlag<&Invocation::hasInstances>,
     QT_TRANSLATE_NOOP("Cli", "all other frames that show the same sprite")},
    {Replace, "--replace", nullptr, setFlag<&Invocation::replaces>,
     QT_TRANSLATE_NOOP("Cli", "one of the same name takes the place of the one that is there")},
    {Skip, "--skip", nullptr, setFlag<&Invocation::skips>,
     QT_TRANSLATE_NOOP("Cli", "one whose name is there already is left out")},
    {BringSprites, "--sprites", nullptr, setFlag<&Invocation::bringsSprites>,
     QT_TRANSLATE_NOOP("Cli", "the sprites and palettes that they show come along")},
    {IgnoreCase, "--ignore-case", nullptr, takeIgnoreCase,
     QT_TRANSLATE_NOOP("Cli", "upper and lower case are the same")},
    {WholeWord, "--word", nullptr, takeFindOption<Operations::FindPattern::WholeWord>,
     QT_TRANSLATE_NOOP("Cli", "whole words only")},
    {Expression, "--expression", nullptr, takeFindOption<Operations::FindPattern::Expression>,
     QT_TRANSLATE_NOOP("Cli", "TEXT is a regular expression, as the window takes it")},
    {Kind, "--kind", "SUFFIX", takeKind,
     QT_TRANSLATE_NOOP("Cli", "only files such as 'anim' or 'code'; several times for several kinds")},
    {ReplaceBy, "--replace", "WITH", takeReplacement,
     QT_TRANSLATE_NOOP("Cli", "put this in its place; with an expression \\1 is its first group")},
    {Target, "--out", "FILE", takePlace,
     QT_TRANSLATE_NOOP("Cli", "where the picture goes; '-o' for short")},
    {Out, "--out", "PLACE", takePlace,
     QT_TRANSLATE_NOOP("Cli", "a folder, a file, or a pattern such as 'small/*.png'")},
    {Format, "--format", "NAME", takeFormat,
     QT_TRANSLATE_NOOP("Cli", "png, pcx, bmp or gif, where no suffix tells it")},
    {Force, "--force", nullptr, takeForce,
     QT_TRANSLATE_NOOP("Cli", "replace what is there already")},
};
// clang-format on

}  // namespace

const QVector<OptionInfo>& options()
{
    static const QVector<OptionInfo> rows(std::begin(table), std::end(table));
    return rows;
}

QString optionForm(const OptionInfo& option)
{
    const QString name = QLatin1String(option.name);
    return option.value ? name + QLatin1Char(' ') + QLatin1String(option.value) : name;
}

const OptionInfo* findOption(quint64 taken, const QString& name)
{
    const QString whole = name == QLatin1String("-o") ? QStringLiteral("--out") : name;
    const auto found = std::find_if(std::begin(table), std::end(table), [&](const OptionInfo& row) {
        return (row.option & taken) && whole == QLatin1String(row.name);
    });
    return found == std::end(table) ? nullptr : found;
}

}  // namespace Cli
