#pragma once

#include "controls/SystemColors.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace varnhold {

class SettingsFile;

/// Typed keys of Skin.ini of the skin in use. A key that is missing or empty has no value; text that is no
/// number throws RunTimeError 13, one that its control refuses 380, one that fits no number 6.
class SkinIni
{
public:
    explicit SkinIni(SettingsFile& file);

    [[nodiscard]] QString text(const QString& key) const;
    /// A colour, red in the low byte; 0 counts as a colour.
    [[nodiscard]] std::optional<ColorValue> color(const QString& key) const;
    [[nodiscard]] std::optional<ColorValue> customColor(const QString& key) const;
    /// A whole number of a control that goes from 0 to `most`.
    [[nodiscard]] std::optional<int> number(const QString& key, int most) const;

    void write(const QString& key, const QString& value);
    void writeCustomColor(const QString& key, ColorValue color);
    void deleteCustomColors();

private:
    SettingsFile& m_file;
};

/// The names of the section's seventeen colours of the list, in their order; each is a property of the list.
const QStringList& customListColors();

/// A colour in decimal as the file has it; a system colour is a negative number.
QString colorText(ColorValue color);

/// Section names.
QString skinSettingsSection();
QString customListSection();

} // namespace varnhold
