#include "state/Settings.h"

#include "platform/RunTimeError.h"
#include "state/SettingsFile.h"
#include "state/SettingsKeys.h"
#include "state/SizeText.h"

#include <QLocale>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<std::array<QStringView, 2>, 3> orderTexts = {{
    {u"Ascending", u"Descending"},
    {u"GameID", u"GameName"},
    {u"PS3Games", u"PS3Personal"},
}};

/// Always "." as the decimal sign and never an exponent, whatever the locale.
QString numberText(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

/// Written in English whatever the locale, so that a file moves between machines.
QString booleanText(bool value)
{
    return value ? u"True"_s : u"False"_s;
}

QString baseName(const QString& path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace

void checkRange(int value, int least, int most)
{
    if (value < least || value > most)
        throw RunTimeError(errors::invalidPropertyValue);
}

Settings::Settings(SettingsFile& file, QObject* parent) : QObject(parent), m_file(file) {}

bool Settings::isChecked(Check check) const
{
    return m_values.checks.at(static_cast<std::size_t>(check));
}

void Settings::setChecked(Check check, bool on)
{
    m_values.checks.at(static_cast<std::size_t>(check)) = on;
    write(settingsKeys::check(check), on ? u"1"_s : u"0"_s);
    if (check == Check::RemoveUnw)
        write(u"Unwanted Strings"_s, QString(m_values.unwantedStrings).remove(u"\r\n"_s));
    Q_EMIT changed();
}

void Settings::setServer(int value)
{
    checkRange(value, 1, 6);
    if (value == m_values.server)
        return;
    m_values.server = value;
    write(u"Server"_s, QString::number(value));
    Q_EMIT changed();
}

QString Settings::downloadMaxText() const
{
    return QString::number(m_values.downloadMax);
}

void Settings::setDownloadMax(int value)
{
    checkRange(value, 1, 5);
    if (value == m_values.downloadMax)
        return;
    m_values.downloadMax = value;
    write(u"DL Max"_s, downloadMaxText());
    Q_EMIT changed();
}

void Settings::setSaveDir(const QString& path)
{
    writeTagged(u"SaveDir Name"_s, u"SaveDir Path"_s, m_values.saveDir, {baseName(path), path});
}

void Settings::setSound(int index, const TaggedText& sound)
{
    writeTagged(settingsKeys::soundFile(index), settingsKeys::soundPath(index), m_values.sounds.at(index),
                sound);
}

void Settings::setCovers(const TaggedText& covers)
{
    writeTagged(u"Cover Name"_s, u"Cover Path"_s, m_values.covers, covers);
}

void Settings::setListUrl(const TaggedText& url)
{
    writeTagged(u"GameID Name"_s, u"GameID Url"_s, m_values.listUrl, url);
}

void Settings::setIdList(const TaggedText& database)
{
    m_values.databaseSize = u"Before: "_s + File_Size_Text(database.tag);
    setIdListOnly(database);
}

void Settings::setIdListOnly(const TaggedText& database)
{
    writeTagged(u"IDList File"_s, u"IDList Path"_s, m_values.idList, database);
}

void Settings::setUnwantedStrings(const QString& text)
{
    if (text == m_values.unwantedStrings)
        return;
    m_values.unwantedStrings = text;
    write(u"Unwanted Strings"_s, text);
    Q_EMIT changed();
}

void Settings::chooseCertOption(int index)
{
    m_values.cert = {index == 0, index == 1};
    for (int i = 0; i < 2; ++i)
        write(settingsKeys::certOption(i), booleanText(certOption(i)));
    Q_EMIT changed();
}

void Settings::chooseAutoSsl(int index)
{
    for (int i = 0; i < 2; ++i) {
        const Check box = i == 0 ? Check::AutoSSL0 : Check::AutoSSL1;
        m_values.checks.at(static_cast<std::size_t>(box)) = i == index;
        write(settingsKeys::check(box), i == index ? u"1"_s : u"0"_s);
    }
    Q_EMIT changed();
}

int Settings::order(Order which) const
{
    return m_values.orders.at(static_cast<std::size_t>(which));
}

QString Settings::orderText(Order which) const
{
    return orderTexts.at(static_cast<std::size_t>(which)).at(order(which) - 1).toString();
}

QString Settings::orderTag(Order which) const
{
    if (which != Order::AscDesc)
        return {};
    return order(which) == 1 ? u"Asc"_s : u"Desc"_s;
}

void Settings::setOrder(Order which, int value)
{
    checkRange(value, 1, 2);
    if (value == order(which))
        return;
    m_values.orders.at(static_cast<std::size_t>(which)) = value;
    write(settingsKeys::order(which), QString::number(value));
    Q_EMIT changed();
}

int Settings::opacity(OpacityOf window) const
{
    return m_values.opacities.at(static_cast<std::size_t>(window));
}

void Settings::setOpacity(OpacityOf window, int value)
{
    checkRange(value, 0, 255);
    if (value == opacity(window))
        return;
    m_values.opacities.at(static_cast<std::size_t>(window)) = value;
    write(settingsKeys::opacity(window), QString::number(value));
    Q_EMIT changed();
}

void Settings::writeLayout(int layout)
{
    write(u"Miximize"_s, QString::number(layout));
}

void Settings::writePosition(double leftTwips, double topTwips)
{
    write(u"Varnhold X"_s, numberText(leftTwips));
    write(u"Varnhold Y"_s, numberText(topTwips));
}

void Settings::writeBarMain(double topTwips)
{
    // Read as "MainBar Top": keys are found without regard to case.
    write(u"Mainbar Top"_s, numberText(topTwips));
}

void Settings::writeBarLeft(double topTwips)
{
    write(u"LeftBar Top"_s, numberText(topTwips));
}

void Settings::writeSkinPath(const QString& path)
{
    m_file.INI_Write(settingsKeys::skinSection(), u"Skin Path"_s, path);
}

void Settings::writeSkinName(const QString& name)
{
    m_file.INI_Write(settingsKeys::skinSection(), u"Skin Name"_s, name);
}

void Settings::write(const QString& key, const QString& value)
{
    m_file.INI_Write(settingsKeys::section(), key, value);
}

void Settings::writeTagged(const QString& textKey, const QString& tagKey, TaggedText& held,
                           const TaggedText& value)
{
    held = value;
    write(textKey, value.text);
    write(tagKey, value.tag);
    Q_EMIT changed();
}

} // namespace varnhold
