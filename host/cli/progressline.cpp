#include "cli/progressline.h"

#include "cli/notedsignals.h"
#include "cli/output.h"

#include <cstdio>
#include <unistd.h>

namespace Cli {

namespace {

const int DrawMilliseconds = 100;
const char Wipe[] = "\r\x1b[K";

}  // namespace

ProgressLine::ProgressLine(const QString& title)
    : m_title(title), m_isDrawn(isatty(fileno(stderr)) != 0)
{
}

void ProgressLine::update(int value, int maximum)
{
    if (maximum > 0) {
        m_maximum = maximum;
    }
    if (m_isDrawn && (!m_sinceDrawn.isValid() || m_sinceDrawn.elapsed() > DrawMilliseconds)) {
        draw(value);
        m_sinceDrawn.start();
    }
}

bool ProgressLine::isCanceled() const
{
    return NotedSignals::received() != 0;
}

void ProgressLine::finish()
{
    if (m_isDrawn) {
        fputs(Wipe, stderr);
    }
    delete this;
}

void ProgressLine::draw(int value)
{
    const QString text =
        QStringLiteral("%1 %2/%3").arg(m_title, QString::number(value), QString::number(m_maximum));
    fputs(Wipe, stderr);
    fputs(printable(text).toUtf8().constData(), stderr);
}

}  // namespace Cli
