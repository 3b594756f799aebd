#pragma once

#include "platform/MessageBoxes.h"

#include <QList>

namespace varnhold::test {

/// Answers from a script. A box that no script entry announced, one that differs from its entry, and an entry
/// that was never used fail the test.
class FakeMessageBoxes : public MessageBoxes
{
public:
    ~FakeMessageBoxes() override;

    /// Announces one box by its exact text (and title, unless that is left out), in order of appearance.
    void expect(const QString& text, BoxAnswer answer = BoxAnswer::Ok);
    void expect(const QString& text, const QString& title, BoxAnswer answer = BoxAnswer::Ok);

    BoxAnswer show(const MessageBox& box) override;

    QList<MessageBox> shown; ///< every box in order, for a closer look at icons and buttons

private:
    struct Entry
    {
        QString text;
        QString title; ///< null: any
        BoxAnswer answer;
    };
    QList<Entry> m_script;
};

} // namespace varnhold::test
