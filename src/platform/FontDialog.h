#pragma once

#include <QString>

#include <optional>

namespace varnhold {

/// A font as plain values.
struct FontChoice
{
    QString name;
    double points = 0; ///< size in points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeThrough = false;
};

/// The platform's font dialog. Modal; events are pumped meanwhile.
class FontDialog
{
public:
    virtual ~FontDialog() = default;
    /// No value: cancelled.
    virtual std::optional<FontChoice> chooseFont(const FontChoice& first) = 0;
};

} // namespace varnhold
