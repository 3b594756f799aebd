#pragma once

#include "platform/Clipboard.h"

namespace varnhold {

/// The clipboard of the running QGuiApplication.
class QtClipboard : public Clipboard
{
public:
    void setText(const QString& text) override;
};

} // namespace varnhold
