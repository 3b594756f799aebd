#pragma once

#include "platform/Clipboard.h"

#include <QStringList>

namespace varnhold::test {

/// Keeps what was put there, the newest last.
class FakeClipboard : public Clipboard
{
public:
    void setText(const QString& text) override { texts.append(text); }

    QStringList texts;
};

} // namespace varnhold::test
