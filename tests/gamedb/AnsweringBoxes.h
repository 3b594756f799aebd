#pragma once

#include "platform/MessageBoxes.h"

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>

namespace varnhold::test {

/// Answers questions in order and keeps what was shown as "title|text", line ends as "/", reports as their
/// first line. A question without an answer and a box that no one asks about fail the test.
class AnsweringBoxes : public MessageBoxes
{
public:
    ~AnsweringBoxes() override
    {
        EXPECT_TRUE(m_shown.isEmpty()) << qPrintable(m_shown.join(u'\n'));
        EXPECT_TRUE(answers.isEmpty());
    }

    BoxAnswer show(const MessageBox& box) override
    {
        const bool isReport = box.icon == BoxIcon::Critical;
        const QString text = isReport ? box.text.section(QStringLiteral("\r\n"), 0, 0) : box.text;
        m_shown << box.title + u'|' + QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("/"));
        if (box.buttons == BoxButtons::Ok)
            return BoxAnswer::Ok;
        EXPECT_EQ(box.icon, BoxIcon::Question);
        EXPECT_FALSE(answers.isEmpty()) << qPrintable(box.text);
        return answers.isEmpty() ? BoxAnswer::No : answers.takeFirst();
    }

    /// What came since the last call.
    QStringList taken() { return std::exchange(m_shown, {}); }
    static QString report(int number)
    {
        return QStringLiteral("ErrorException|Err Number:\t") + QString::number(number);
    }

    QList<BoxAnswer> answers;

private:
    QStringList m_shown;
};

} // namespace varnhold::test
