#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace varnhold {

/// The platform's colour dialog. Modal; events are pumped meanwhile.
class ColorDialog
{
public:
    virtual ~ColorDialog() = default;
    /// Colours are 0x00BBGGRR, red in the low byte; `first` is no system colour. No value: cancelled.
    virtual std::optional<std::uint32_t> chooseColor(const QString& title, std::uint32_t first) = 0;
};

} // namespace varnhold
