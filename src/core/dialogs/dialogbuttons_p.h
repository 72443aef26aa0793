#pragma once

class QDialog;
class QDialogButtonBox;

namespace Zorv {

/// "OK" and "Cancel", which close the dialog. Adding them to its layout also makes it their parent.
QDialogButtonBox* makeOkCancel(QDialog* dialog);

}  // namespace Zorv
