#include "editors/snipman/snipdlg.h"

class SnipDlgPrivate
{
};

SnipDlg::SnipDlg(const Zorv::Interface*, const QString&, QWidget* parent) : QDialog(parent) {}

SnipDlg::~SnipDlg() = default;

QString SnipDlg::toString() const
{
    return {};
}
