#pragma once

#include "platform/ColorDialog.h"
#include "support/ScriptedAnswers.h"

#include <vector>

namespace varnhold::test {

class FakeColorDialog : public ColorDialog
{
public:
    struct Question
    {
        QString title;
        std::uint32_t first = 0;
    };

    std::optional<std::uint32_t> chooseColor(const QString& title, std::uint32_t first) override
    {
        asked.push_back({title, first});
        return answers.next();
    }

    ScriptedAnswers<std::uint32_t> answers;
    std::vector<Question> asked;
};

} // namespace varnhold::test
