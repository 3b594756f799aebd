#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <optional>
#include <utility>

namespace varnhold::test {

/// Answers of a modal question, in order; no value is a cancel. A question without an answer is cancelled and
/// fails the test, as does an answer that was never used.
template <typename Value> class ScriptedAnswers
{
public:
    ScriptedAnswers() = default;
    ScriptedAnswers(const ScriptedAnswers&) = delete;
    ScriptedAnswers& operator=(const ScriptedAnswers&) = delete;
    ~ScriptedAnswers()
    {
        if (!m_answers.empty())
            ADD_FAILURE() << m_answers.size() << " answers were never used";
    }

    void add(std::optional<Value> answer) { m_answers.push_back(std::move(answer)); }
    std::optional<Value> next()
    {
        if (m_answers.empty()) {
            ADD_FAILURE() << "an unexpected question";
            return std::nullopt;
        }
        std::optional<Value> answer = std::move(m_answers.front());
        m_answers.pop_front();
        return answer;
    }

private:
    std::deque<std::optional<Value>> m_answers;
};

} // namespace varnhold::test
