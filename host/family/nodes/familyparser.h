#pragma once

#include "family/grammar/linereader.h"

#include <zorv/code/codedoc/codeparser.h>

namespace Family {

/// The grammar in the form that documents of the library call. Stateless: all documents share one
/// object.
class FamilyParser final : public Zorv::CodeParser
{
public:
    static FamilyParser* instance();

    Zorv::CodeNode* parse(const QString& text, Zorv::CodeNode* oldNode, Zorv::CodeNode* previous,
                          Zorv::RootCode* root, Zorv::CodeParserSyntax* syntax) override;
};

/// The context of a line; `previous` is the last node before it.
LineHead headAbove(const Zorv::CodeNode* previous);

}  // namespace Family
