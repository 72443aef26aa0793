#include "app/start/lessonview.h"

#include "app/look/language.h"

#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace App {

namespace {

constexpr QSize UsualSize(680, 760);
constexpr int Margin = 16;

}  // namespace

LessonView::LessonView(QWidget* parent) : QDialog(parent), m_text(new QTextBrowser)
{
    m_text->setOpenExternalLinks(true);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->document()->setDocumentMargin(Margin);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_text);
    resize(UsualSize);
    followLanguage(this, [this] {
        setWindowTitle(tr("First lesson"));
        m_text->setAccessibleName(tr("First lesson"));
    });
}

void LessonView::showPage(const QString& fileName)
{
    const QUrl page = QUrl::fromLocalFile(fileName);
    if (m_text->source() != page) {
        m_text->setSource(page, QTextDocument::MarkdownResource);
    }
}

}  // namespace App
