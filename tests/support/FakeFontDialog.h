#pragma once

#include "platform/FontDialog.h"
#include "support/ScriptedAnswers.h"

#include <vector>

namespace varnhold::test {

class FakeFontDialog : public FontDialog
{
public:
    std::optional<FontChoice> chooseFont(const FontChoice& first) override
    {
        asked.push_back(first);
        return answers.next();
    }

    ScriptedAnswers<FontChoice> answers;
    std::vector<FontChoice> asked;
};

} // namespace varnhold::test
