// The jump to the one problem of a long text, and back: its time over that of a walk over the
// lines that looks at the messages of each.

#include "support/bench.h"
#include "support/codetext.h"
#include "support/document.h"

#include "code/codedoc/codeblockdata.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codeworkspace.h"
#include "family/familydocument.h"
#include "operations/hostinterface.h"

#include <QApplication>
#include <QTextBlock>

namespace {

constexpr int Lines = 1000000;
constexpr int Rounds = 21;

int messagesOf(const QTextDocument& document)
{
    int count = 0;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const auto* data = Zorv::CodeBlockData::testBlockData(block);
        count += data ? data->syntaxMessages().size() : 0;
    }
    return count;
}

template <class Jump>
double timeOf(Zorv::CodeEditor* editor, int from, Jump jump)
{
    return Bench::medianOf(Rounds, [&] {
        editor->setCurrentLine(unsigned(from), Zorv::CodeEditor::NearestLine);
        const double time = Bench::once(jump);
        if (editor->textCursor().blockNumber() != Lines / 2) {
            qFatal("the jump missed");
        }
        return time;
    });
}

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Operations::HostInterface host;
    setGlobalInterface(&host);
    Zorv::CodeWorkspace workspace;
    QStringList lines = CodeText::make(CodeText::Form::Comments, Lines).split(QLatin1Char('\n'));
    lines[Lines / 2] = QStringLiteral("this line has a fault");
    const Bench::Document document = Bench::load(lines.join(QLatin1Char('\n')));
    workspace.setDocument(document.get());
    workspace.widget()->resize(800, 600);
    workspace.widget()->show();

    int count = 0;
    const double walk = Bench::median(Rounds, [&] { count = messagesOf(*document); });
    Bench::figure("messages in 1,000,000 lines", count, "");
    Zorv::CodeEditor* editor = workspace.editor();
    Bench::ratio("next problem, from the top / a walk over the lines",
                 timeOf(editor, 0, [&] { workspace.nextError(); }), walk, 1);
    Bench::ratio("previous problem, from the bottom / a walk over the lines",
                 timeOf(editor, Lines - 1, [&] { workspace.prevError(); }), walk, 1);
    workspace.setDocument(nullptr);
    return 0;
}
