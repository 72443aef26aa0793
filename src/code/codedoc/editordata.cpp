#include "code/codedoc/editordata.h"

namespace Zorv {

EditorData::~EditorData() = default;

}  // namespace Zorv
