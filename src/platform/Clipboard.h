#pragma once

#include <QString>

namespace varnhold {

/// The desktop's clipboard, as far as the program writes plain text to it.
class Clipboard
{
public:
    virtual ~Clipboard() = default;
    /// The text exactly, line ends included; empty text is put there too.
    virtual void setText(const QString& text) = 0;
};

} // namespace varnhold
