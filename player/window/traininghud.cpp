#include "window/traininghud.h"

#include "family/grammar/motion.h"
#include "training/inputlog.h"
#include "training/session.h"
#include "window/hud.h"

#include <QPainter>

namespace Player {

namespace {

constexpr qreal CellWidth = 5;
constexpr qreal CellHeight = 10;
constexpr qreal MeterLeft = 20;
constexpr qreal MeterTop = 292;
constexpr int MostInputs = 14;
constexpr qreal InputHeight = 10;
constexpr qreal InputsTop = 96;

const QColor Veil(0, 0, 0, 170);

/// In the order of the cells.
const QColor cellColors[] = {QColor(0x50, 0x58, 0x60), QColor(0x38, 0xa8, 0x50),
                             QColor(0xe8, 0x48, 0x38), QColor(0x38, 0x78, 0xe0),
                             QColor(0xe8, 0xc0, 0x30), QColor(0x90, 0x60, 0xb0)};

const char* const dummyNames[] = {
    QT_TRANSLATE_NOOP("Player::TrainingHud", "played"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "stands"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "crouches"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "guards"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "jumps"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "does anything"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "is recorded"),
    QT_TRANSLATE_NOOP("Player::TrainingHud", "replays"),
};
static_assert(sizeof dummyNames / sizeof *dummyNames == Dummy::ModeCount, "a name for each mode");

}  // namespace

TrainingHud::TrainingHud() : m_font(QStringLiteral("sans-serif"))
{
    m_font.setPixelSize(8);
}

/// Each run starts with its letter and length, if there is room.
void TrainingHud::paintRow(QPainter* painter, const FrameMeter& meter, int fighter, qreal top) const
{
    const QVector<FrameMeter::Cell>& cells = meter.cells(fighter);
    for (int first = 0; first < cells.size();) {
        int last = first;
        while (last + 1 < cells.size() && cells.at(last + 1) == cells.at(first)) {
            ++last;
        }
        const int count = last - first + 1;
        const QRectF run(MeterLeft + first * CellWidth, top, count * CellWidth - 0.5, CellHeight);
        painter->fillRect(run, cellColors[cells.at(first)]);
        if (cells.at(first) != FrameMeter::Free) {
            painter->drawText(run, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip,
                              FrameMeter::letter(cells.at(first)) +
                                  (count > 2 ? QString::number(count) : QString()));
        }
        first = last + 1;
    }
}

void TrainingHud::paintMeter(QPainter* painter, const FrameMeter& meter) const
{
    painter->setFont(m_font);
    painter->setPen(Qt::white);
    painter->fillRect(QRectF(MeterLeft - 4, MeterTop - 12, FrameMeter::MostTicks * CellWidth + 8,
                             2 * CellHeight + 18),
                      Veil);
    for (int i = 0; i < 2; ++i) {
        paintRow(painter, meter, i, MeterTop + i * (CellHeight + 2));
        const FrameMeter::Numbers numbers = meter.numbers(i);
        const QRectF area(MeterLeft + i * 300, MeterTop - 11, 300, 10);
        QString text = tr("start %1, active %2, recovery %3")
                           .arg(QString::number(numbers.start), QString::number(numbers.active),
                                QString::number(numbers.recovery));
        if (meter.hasAdvantage()) {
            const int advantage = i == 0 ? meter.advantage() : -meter.advantage();
            text += tr(", advantage %1")
                        .arg((advantage > 0 ? QStringLiteral("+") : QString()) +
                             QString::number(advantage));
        }
        painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter, text);
    }
}

void TrainingHud::paintInputs(QPainter* painter, const Session& session) const
{
    painter->setFont(m_font);
    painter->setPen(Qt::white);
    for (int i = 0; i < 2; ++i) {
        const QVector<HeldInput> inputs = lastInputs(session.state(), i, MostInputs);
        const qreal left = i == 0 ? 12 : Hud::Width - 82;
        painter->fillRect(QRectF(left - 4, InputsTop - 2, 78, MostInputs * InputHeight + 4), Veil);
        for (int line = 0; line < inputs.size(); ++line) {
            const QRectF area(left, InputsTop + line * InputHeight, 70, InputHeight);
            painter->drawText(area, Qt::AlignLeft | Qt::AlignVCenter,
                              Family::signText(inputs.at(line).signs));
            painter->drawText(area, Qt::AlignRight | Qt::AlignVCenter,
                              QString::number(inputs.at(line).ticks));
        }
    }
}

void TrainingHud::paintStatus(QPainter* painter, const Session& session) const
{
    QStringList parts;
    if (session.isPaused()) {
        parts.append(tr("paused, tick %1").arg(session.state().tick));
    }
    if (session.speed() != Session::Speed::Full) {
        parts.append(tr("speed 1/%1").arg(int(session.speed())));
    }
    if (session.dummy().mode() != Dummy::Person) {
        parts.append(tr("the second one %1").arg(tr(dummyNames[session.dummy().mode()])));
    }
    if (session.isEndless()) {
        parts.append(tr("without end"));
    }
    if (parts.isEmpty()) {
        return;
    }
    painter->setFont(m_font);
    const QRectF area(Hud::Width / 2 - 150, 44, 300, 12);
    painter->fillRect(area, Veil);
    painter->setPen(Qt::white);
    painter->drawText(area, Qt::AlignCenter, parts.join(QStringLiteral("  ·  ")));
}

}  // namespace Player
