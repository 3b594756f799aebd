#include "state/SettingsKeys.h"

namespace varnhold::settingsKeys {

using namespace Qt::StringLiterals;

namespace {

struct CheckKey
{
    QStringView key;
    std::optional<int> fallback;
};

// In the order of Check.
const std::array<CheckKey, static_cast<std::size_t>(Check::Count)> checkKeys = {{
    {u"DB Links", 1},
    {u"Show Icons", 1},
    {u"ListText0", 1},
    {u"ListText1", 1},
    {u"ListText2", 1},
    {u"ListText3", 1},
    {u"ListText4", 1},
    {u"ListText5", 1},
    {u"ListText6", 1},
    {u"Edge Detection", {}},
    {u"Over Write", {}},
    {u"Previous", {}},
    {u"Exit", 1},
    {u"Fade Out", 1},
    {u"Remove Unwanted", 1},
    {u"Remove DblSpace", 1},
    {u"Remove Colon", 1},
    {u"Auto SSL 0", {}},
    {u"Auto SSL 1", {}},
    {u"Use DLDir", {}},
    {u"Create GNFolder", {}},
    {u"Click Sounds", {}},
}};

constexpr std::array<QStringView, 3> orderKeys = {u"Asc Desc", u"Search Table", u"DB Table"};
constexpr std::array<QStringView, 5> opacityKeys = {u"Main Opacity", u"Settings Opacity", u"DL Opacity",
                                                    u"Search Opacity", u"DB Opacity"};
constexpr std::array<QStringView, 4> soundWords = {u"Click", u"Menu", u"Open", u"Close"};

} // namespace

QString section()
{
    return u"Settings"_s;
}

QString skinSection()
{
    return u"Skin"_s;
}

QString check(Check check)
{
    return checkKeys.at(static_cast<std::size_t>(check)).key.toString();
}

std::optional<int> checkDefault(Check check)
{
    return checkKeys.at(static_cast<std::size_t>(check)).fallback;
}

QString order(Order which)
{
    return orderKeys.at(static_cast<std::size_t>(which)).toString();
}

QString opacity(OpacityOf window)
{
    return opacityKeys.at(static_cast<std::size_t>(window)).toString();
}

QString certOption(int index)
{
    return u"Opt%1 Cert"_s.arg(index);
}

QString soundFile(int index)
{
    return soundWords.at(index).toString() + u" Sound File"_s;
}

QString soundPath(int index)
{
    return soundWords.at(index).toString() + u" Sound Path"_s;
}

} // namespace varnhold::settingsKeys
