#include "support/FakeMessageBoxes.h"

#include <gtest/gtest.h>

namespace varnhold::test {

FakeMessageBoxes::~FakeMessageBoxes()
{
    for (const Entry& entry : m_script)
        ADD_FAILURE() << "announced box never came: " << qPrintable(entry.text);
}

void FakeMessageBoxes::expect(const QString& text, BoxAnswer answer)
{
    m_script.append({text, QString(), answer});
}

void FakeMessageBoxes::expect(const QString& text, const QString& title, BoxAnswer answer)
{
    m_script.append({text, title, answer});
}

BoxAnswer FakeMessageBoxes::show(const MessageBox& box)
{
    shown.append(box);
    if (m_script.isEmpty()) {
        ADD_FAILURE() << "unexpected box: " << qPrintable(box.title) << ": " << qPrintable(box.text);
        return box.buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
    }
    const Entry entry = m_script.takeFirst();
    EXPECT_EQ(entry.text.toStdString(), box.text.toStdString());
    if (!entry.title.isNull()) {
        EXPECT_EQ(entry.title.toStdString(), box.title.toStdString());
    }
    EXPECT_EQ(box.buttons == BoxButtons::Ok, entry.answer == BoxAnswer::Ok)
        << "the answer does not fit the buttons of: " << qPrintable(box.text);
    return entry.answer;
}

} // namespace varnhold::test
