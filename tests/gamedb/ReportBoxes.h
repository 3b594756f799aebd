#pragma once

#include "platform/MessageBoxes.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace varnhold::test {

/// Keeps what it showed as "title: first line", since what a description says is the database's own. A box
/// that no one asks about fails the test.
class ReportBoxes : public MessageBoxes
{
public:
    ~ReportBoxes() override
    {
        for (const QString& box : m_shown)
            ADD_FAILURE() << "unexpected box: " << qPrintable(box);
    }

    BoxAnswer show(const MessageBox& box) override
    {
        EXPECT_EQ(box.icon, BoxIcon::Critical);
        EXPECT_EQ(box.buttons, BoxButtons::Ok);
        m_shown.append(box.title + QStringLiteral(": ") + box.text.section(QStringLiteral("\r\n"), 0, 0));
        lastText = box.text;
        return BoxAnswer::Ok;
    }

    /// What came since the last call.
    QStringList taken()
    {
        QStringList all;
        all.swap(m_shown);
        return all;
    }

    static QString report(int number)
    {
        return QStringLiteral("ErrorException: Err Number:\t") + QString::number(number);
    }

    QString lastText;

private:
    QStringList m_shown;
};

} // namespace varnhold::test
