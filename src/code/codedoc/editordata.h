#pragma once

#include "zorv_export.h"

#include <QObjectUserData>

namespace Zorv {

/// What an editor keeps with a code document, so that each document remembers
/// its editor's state: cursor, scroll position. See `CodeDocument::editorData()`.
class ZORV_EXPORT EditorData : public QObjectUserData
{
public:
    ~EditorData() override;
};

}  // namespace Zorv
