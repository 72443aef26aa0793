#pragma once

class QDialog;
class QDialogButtonBox;

namespace Zorv {

/// "OK" and "Cancel", which end the dialog. They go into its layout, and so become its own.
QDialogButtonBox* makeOkCancel(QDialog* dialog);

}  // namespace Zorv
