#include "animation/dialogs/animedittxt.h"

#include "core/dialogs/dialogs.h"
#include "core/interface.h"
#include "editors/code/codeeditor.h"
#include "editors/code/codefont.h"
#include "editors/code/codeformatting.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

using Zorv::CodeEditor;
using Zorv::Dialogs;

namespace {

const QLatin1String GeometryKey("anim_editcode_geometry");

/// False if the screen is gone, and for nonsense written by hand into the settings.
bool isOnScreen(const QRect& geometry)
{
    const QScreen* screen = QGuiApplication::screenAt(geometry.center());
    return screen && !(screen->availableGeometry() & geometry).isEmpty();
}

}  // namespace

AnimEditTxt::AnimEditTxt(Zorv::Interface* host, QWidget* parent)
    : QDialog(parent), m_host(host), m_code(new CodeEditor), m_name(new QLabel),
      m_apply(new QPushButton(tr("Apply")))
{
    setWindowTitle(tr("Edit animation code"));
    m_code->setObjectName(QStringLiteral("code"));
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setTextFormat(Qt::PlainText);
    m_apply->setObjectName(QStringLiteral("applyButton"));
    auto* close = new QPushButton(tr("Close"));
    close->setObjectName(QStringLiteral("closeButton"));
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(m_apply, QDialogButtonBox::ApplyRole);
    buttons->addButton(close, QDialogButtonBox::RejectRole);
    for (QPushButton* button : {m_apply, close}) {
        button->setAutoDefault(false);
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_name);
    layout->addWidget(m_code);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::rejected, this, &AnimEditTxt::reject);
    connect(m_apply, &QPushButton::clicked, this, [this] { emit applyRequested(text()); });
    connect(m_code, &QPlainTextEdit::textChanged, this, &AnimEditTxt::updateButtons);
    resize(480, 360);
    reconfig();
    updateButtons();
}

AnimEditTxt::~AnimEditTxt() = default;

void AnimEditTxt::setText(const QString& text, const QString& name)
{
    m_name->setText(name);
    m_firstText = text;
    if (text != this->text()) {
        m_code->setPlainText(text);
    }
    updateButtons();
}

QString AnimEditTxt::text() const
{
    // Unlike `toPlainText()`, this keeps non-breaking spaces.
    return m_code->document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

bool AnimEditTxt::isModified() const
{
    return text() != m_firstText;
}

void AnimEditTxt::updateButtons()
{
    m_apply->setEnabled(isModified());
}

bool AnimEditTxt::mayDrop()
{
    if (!isModified()) {
        return true;
    }
    const Dialogs::Button answer = Dialogs::instance()->question(
        windowTitle(), tr("The code has been changed and not applied. Apply it?"),
        Dialogs::Yes | Dialogs::No | Dialogs::Cancel, Dialogs::Yes);
    if (answer == Dialogs::Yes) {
        emit applyRequested(text());
    } else if (answer == Dialogs::No) {
        setText(m_firstText, m_name->text());
    }
    return !isModified();
}

void AnimEditTxt::reconfig()
{
    if (!m_host) {
        return;
    }
    m_code->setSyntaxFormatting(Zorv::formattingOf(m_host));
    m_code->setFont(Zorv::codeFont(m_host->option(QStringLiteral("font_name")).toString(),
                                   m_host->option(QStringLiteral("font_size")).toInt()));
}

void AnimEditTxt::reject()
{
    if (mayDrop()) {
        QDialog::reject();
    }
}

void AnimEditTxt::showEvent(QShowEvent* event)
{
    const QRect geometry = m_host ? m_host->option(QLatin1String(GeometryKey)).toRect() : QRect();
    if (isOnScreen(geometry)) {
        setGeometry(geometry);
    }
    QDialog::showEvent(event);
    emit visibilityChanged(true);
}

void AnimEditTxt::hideEvent(QHideEvent* event)
{
    if (m_host) {
        m_host->setOption(QLatin1String(GeometryKey), geometry());
    }
    QDialog::hideEvent(event);
    emit visibilityChanged(false);
}
