#include "appearance/SkinIni.h"

#include "platform/Conversion.h"
#include "platform/RunTimeError.h"
#include "state/SettingsFile.h"

#include <cmath>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr double largestColor = 0xFFFFFF;
/// The system colours as signed numbers: 0x80000000 and the index.
constexpr double firstSystemColor = -2147483648.0;
constexpr double lastSystemColor = firstSystemColor + 0x1E;

std::optional<ColorValue> colorFromText(const QString& text)
{
    if (text.isEmpty())
        return std::nullopt;
    const double value = std::nearbyint(doubleFromText(text));
    if (value < -2147483648.0 || value > 2147483647.0)
        throw RunTimeError(errors::overflow);
    const bool isSystem = value >= firstSystemColor && value <= lastSystemColor;
    if (!isSystem && (value < 0 || value > largestColor))
        throw RunTimeError(errors::invalidPropertyValue);
    return static_cast<ColorValue>(static_cast<qint32>(value));
}

} // namespace

QString colorText(ColorValue color)
{
    return QString::number(static_cast<qint32>(color));
}

QString skinSettingsSection()
{
    return u"Settings"_s;
}

QString customListSection()
{
    return u"Custom LstView"_s;
}

const QStringList& customListColors()
{
    static const QStringList names = {u"ArrowDownColor"_s,   u"ArrowUpColor"_s,     u"BackColor1"_s,
                                      u"BackColor2"_s,       u"ButtonColor1"_s,     u"ButtonColor2"_s,
                                      u"SelColor1"_s,        u"SelColor2"_s,        u"HighlightColor"_s,
                                      u"ForeColor"_s,        u"ThumbBorderColor"_s, u"ThumbColor1"_s,
                                      u"ThumbColor2"_s,      u"TrackBarColor1"_s,   u"TrackBarColor2"_s,
                                      u"TrackClickColor1"_s, u"TrackClickColor2"_s};
    return names;
}

SkinIni::SkinIni(SettingsFile& file) : m_file(file) {}

QString SkinIni::text(const QString& key) const
{
    return m_file.Skin_Read(skinSettingsSection(), key, {});
}

std::optional<ColorValue> SkinIni::color(const QString& key) const
{
    return colorFromText(text(key));
}

std::optional<ColorValue> SkinIni::customColor(const QString& key) const
{
    return colorFromText(m_file.Skin_Read(customListSection(), key, {}));
}

void SkinIni::writeCustomColor(const QString& key, ColorValue color)
{
    m_file.Skin_Write(customListSection(), key, colorText(color));
}

void SkinIni::deleteCustomColors()
{
    m_file.Skin_Delete_Section(customListSection());
}

std::optional<int> SkinIni::number(const QString& key, int most) const
{
    const QString held = text(key);
    if (held.isEmpty())
        return std::nullopt;
    const int value = integerFromText(held);
    if (value < 0 || value > most)
        throw RunTimeError(errors::invalidPropertyValue);
    return value;
}

void SkinIni::write(const QString& key, const QString& value)
{
    // A value that stands there already needs no slow write: the bars write what they were just given.
    if (text(key) == value)
        return;
    m_file.Skin_Write(skinSettingsSection(), key, value);
}

} // namespace varnhold
