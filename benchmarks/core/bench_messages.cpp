// A file of many messages: how often the project's list is told, and what an
// edit costs that touches one line.

#include "support/bench.h"
#include "support/testproject.h"

#include "core/messagelist.h"
#include "core/messages.h"

#include <QGuiApplication>
#include <QTemporaryDir>

#include <memory>

using namespace Zorv;

namespace {

std::unique_ptr<Messages> makeMessages(int lines)
{
    auto messages = std::make_unique<Messages>(nullptr);
    messages->beginChange();
    for (int line = 0; line < lines; ++line) {
        messages->insert(Message::Error, QStringLiteral("unknown word"), line, 0);
    }
    messages->endChange();
    return messages;
}

/// Milliseconds of 1,000 edits around one line: a line more, its message, and
/// back; then a message less, and back.
double editNear(Messages& messages, int line)
{
    Message message;
    message.line = line;
    return Bench::median(9, [&messages, message, line] {
        for (int i = 0; i < 250; ++i) {
            messages.moveLines(line, 0, 1);
            messages.replaceLine(line, {message});
            messages.moveLines(line, 1, 0);
            messages.replaceLine(line + 1, {});
        }
    });
}

void countNotifications()
{
    const QTemporaryDir dir;
    TestParent parent(dir.path());
    TestProject* project = parent.open({}, {});
    Messages* messages = project->file(FileID::MainCode)->messages();
    int updates = 0;
    QObject::connect(project->messages(), &MessageList::updated, [&updates] { ++updates; });
    const double time = Bench::once([messages] {
        messages->beginChange();
        for (int line = 0; line < 10000; ++line) {
            messages->insert(Message::Error, QStringLiteral("unknown word"), line, 0);
        }
        messages->endChange();
    });
    Bench::figure("10,000 messages: the project's list is told", updates, "times");
    Bench::figure("10,000 messages: time", time, "ms");
}

}  // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    countNotifications();
    const auto small = makeMessages(10000);
    const auto large = makeMessages(1000000);
    const double first = Bench::once([&large] { large->moveLines(500000, 0, 1); });
    Bench::figure("1,000,000 messages: first edit in the middle", first, "ms");
    large->moveLines(500000, 1, 0);
    Bench::ratio("edits near one line, 1,000,000 to 10,000 messages", editNear(*large, 500000),
                 editNear(*small, 5000), 1.5);
    return 0;
}
