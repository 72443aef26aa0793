#include "app/changes/comparedialog.h"

#include "app/changes/diffview.h"

#include <QDialogButtonBox>
#include <QVBoxLayout>

namespace App {

CompareDialog::CompareDialog(QWidget* parent, const QString& title, const QString& before,
                             const QString& after)
    : QDialog(parent)
{
    setWindowTitle(title);
    auto* view = new DiffView;
    const QString diff =
        DiffView::comparison(before, after, tr("the file"), tr("what is open here"));
    view->setPlainText(diff.isEmpty() ? tr("There is no difference.") : diff);
    auto* box = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(box, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(view);
    layout->addWidget(box);
    resize(820, 560);
}

}  // namespace App
