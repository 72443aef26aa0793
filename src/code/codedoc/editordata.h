#pragma once

#include "zorv_export.h"

#include <QObjectUserData>

namespace Zorv {

/// Data that an editor stores with a code document, so that each document
/// remembers the editor's state: cursor, scroll position. See
/// `CodeDocument::editorData()`.
class ZORV_EXPORT EditorData : public QObjectUserData
{
public:
    ~EditorData() override;
};

}  // namespace Zorv
