#include "state/SettingsLoad.h"

#include "platform/Conversion.h"
#include "platform/Files.h"
#include "state/ApplicationState.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/SettingsKeys.h"
#include "state/SizeText.h"

#include <QFileInfo>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QString defaultUnwantedStrings()
{
    return u"000,:, Game Data, game gata, Additional Content, (GAMEID),GAMEID, DLC, and Patches,\u2122, "
           "(v01.01), (v01.02), (v01.03), (v01.04), (v01.05), (v01.06), (v01.07), (v01.08), (v01.09), "
           "(v01.10)"_s;
}

/// One read of the file, kept as the last value read.
const QString& readKey(const SettingsFile& file, ApplicationState& state, const QString& key)
{
    state.IniValue = file.INI_Read(settingsKeys::section(), key, {});
    return state.IniValue;
}

class Load
{
public:
    Load(SettingsValues& values, SettingsFile& file, ApplicationState& state, const Paths& paths,
         SettingsLoadHost& host)
        : m_values(values), m_file(file), m_state(state), m_paths(paths), m_host(host)
    {
    }

    void run(const QString& updateListUrl);

private:
    const QString& read(const QString& key) { return readKey(m_file, m_state, key); }
    QString readText(const QString& key, const QString& fallback);
    void readKept(const QString& key, QString& value);
    int readNumber(const QString& key, int fallback, int least, int most);

    void loadOrder(Order which, int fallback);
    template <typename... Checks> void loadChecks(Checks... checks) { (loadCheck(checks), ...); }
    void loadCheck(Check check);
    void loadDatabase();
    void takeDatabase(const QString& path, const QString& file);
    void loadUnwantedStrings();
    void loadCertOption(int index);
    void loadSound(int index);
    void loadOpacities();
    void loadBars();

    SettingsValues& m_values;
    SettingsFile& m_file;
    ApplicationState& m_state;
    const Paths& m_paths;
    SettingsLoadHost& m_host;
};

void Load::run(const QString& updateListUrl)
{
    m_host.showStatus(u"Applying: Settings"_s);
    loadOrder(Order::DBTable, 1);
    loadOrder(Order::AscDesc, 1);
    loadOrder(Order::SearchTable, 2);
    loadChecks(Check::DBLinks, Check::Icons);
    m_values.covers.text = readText(u"Cover Name"_s, {});
    m_values.covers.tag = readText(u"Cover Path"_s, {});
    m_values.listUrl.text = readText(u"GameID Name"_s, u"ps3gameids.txt"_s);
    m_values.listUrl.tag = readText(u"GameID Url"_s, updateListUrl);
    loadChecks(Check::ListText0, Check::ListText1, Check::ListText2, Check::ListText3, Check::ListText4,
               Check::ListText5, Check::ListText6);
    loadDatabase();
    m_values.downloadMax = readNumber(u"DL Max"_s, 1, 1, 5);
    m_values.server = readNumber(u"Server"_s, 1, 1, 6);
    loadChecks(Check::Edge, Check::OWrite, Check::Previous, Check::Exit, Check::Fade);
    loadUnwantedStrings();
    loadChecks(Check::RemoveUnw, Check::Double, Check::Colon, Check::AutoSSL0, Check::AutoSSL1);
    const auto isChecked = [this](Check check) {
        return m_values.checks.at(static_cast<std::size_t>(check));
    };
    if (isChecked(Check::AutoSSL0) || isChecked(Check::AutoSSL1))
        m_host.startCertificateWatch();
    loadCertOption(0);
    loadCertOption(1);
    loadChecks(Check::UseDLD, Check::CGNFolder);
    readKept(u"SaveDir Name"_s, m_values.saveDir.text);
    readKept(u"SaveDir Path"_s, m_values.saveDir.tag);
    // Read a second time: the default that counts is this one.
    m_values.downloadMax = readNumber(u"DL Max"_s, 2, 1, 5);
    loadChecks(Check::SoundsClick);
    for (int i = 0; i < 4; ++i)
        loadSound(i);
    loadOpacities();
    loadBars();
    for (const OpacityOf window :
         {OpacityOf::Main, OpacityOf::Settings, OpacityOf::Search, OpacityOf::Database})
        m_host.applyOpacity(window, m_values.opacities.at(static_cast<std::size_t>(window)));
    m_host.loadCoverServers();
}

QString Load::readText(const QString& key, const QString& fallback)
{
    const QString& value = read(key);
    return value.isEmpty() ? fallback : value;
}

/// An empty key leaves the value as it was designed.
void Load::readKept(const QString& key, QString& value)
{
    value = readText(key, value);
}

int Load::readNumber(const QString& key, int fallback, int least, int most)
{
    const QString& text = read(key);
    if (text.isEmpty())
        return fallback;
    const int value = integerFromText(text);
    checkRange(value, least, most);
    return value;
}

/// A value that is no choice keeps the choice as it was designed, and is no error.
void Load::loadOrder(Order which, int fallback)
{
    const QString& text = read(settingsKeys::order(which));
    const int value = text.isEmpty() ? fallback : integerFromText(text);
    if (value == 1 || value == 2)
        m_values.orders.at(static_cast<std::size_t>(which)) = value;
}

void Load::loadCheck(Check check)
{
    constexpr int grayed = 2; // a box takes it, and is not checked
    const std::optional<int> fallback = settingsKeys::checkDefault(check);
    bool& box = m_values.checks.at(static_cast<std::size_t>(check));
    box = readNumber(settingsKeys::check(check), fallback.value_or(box ? 1 : 0), 0, grayed) == 1;
}

void Load::loadDatabase()
{
    const QString path = read(u"IDList Path"_s);
    if (!path.isEmpty()) {
        // A database that is gone changes nothing here; loading the game list finds out.
        if (FileExists(path)) {
            const QString file = readText(u"IDList File"_s, QFileInfo(path).completeBaseName());
            m_state.DBFile = file;
            takeDatabase(path, file);
        }
        return;
    }
    const QString found = m_paths.gameDatabase();
    if (!FileExists(found)) {
        m_values.idList.text = u"\u00A7elect Database >>>"_s;
        return;
    }
    m_host.showMessage(u"Found Default Database\r\nGameDB.mdb"_s);
    m_state.DBFile = QFileInfo(found).completeBaseName();
    takeDatabase(found, m_state.DBFile + u".mdb"_s);
    m_file.INI_Write(settingsKeys::section(), u"IDList Path"_s, m_values.idList.tag);
    m_file.INI_Write(settingsKeys::section(), u"IDList File"_s, m_values.idList.text);
}

void Load::takeDatabase(const QString& path, const QString& file)
{
    m_state.DBPath = path;
    m_values.idList = {file, path};
    m_values.databaseSize = u"Before: "_s + File_Size_Text(path);
}

void Load::loadUnwantedStrings()
{
    m_state.IniValue = m_file.INI_Read_Long(settingsKeys::section(), u"Unwanted Strings"_s, {});
    m_values.unwantedStrings = m_state.IniValue.isEmpty() ? defaultUnwantedStrings() : m_state.IniValue;
}

void Load::loadCertOption(int index)
{
    const QString& text = read(settingsKeys::certOption(index));
    if (text.isEmpty())
        return;
    const bool on = booleanFromText(text);
    // Setting one option button clears its fellow.
    if (on)
        m_values.cert = {};
    m_values.cert.at(index) = on;
}

void Load::loadSound(int index)
{
    TaggedText& sound = m_values.sounds.at(index);
    const QString path = m_paths.sound(index);
    const bool exists = FileExists(path);
    // A set key is taken untested.
    sound.tag = readText(settingsKeys::soundPath(index), exists ? path : sound.tag);
    sound.text = readText(settingsKeys::soundFile(index), exists ? QFileInfo(path).fileName() : sound.text);
}

void Load::loadOpacities()
{
    constexpr int fallback = 220;
    for (std::size_t i = 0; i < m_values.opacities.size(); ++i)
        m_values.opacities.at(i) =
            readNumber(settingsKeys::opacity(static_cast<OpacityOf>(i)), fallback, 0, 255);
}

void Load::loadBars()
{
    constexpr double fallback = 3285;
    const auto top = [this](const QString& key) {
        const QString& text = read(key);
        return text.isEmpty() ? fallback : doubleFromText(text);
    };
    m_host.setBarMainTop(top(u"MainBar Top"_s));
    m_host.setBarLeftTop(top(u"LeftBar Top"_s));
}

std::optional<double> readTwips(const SettingsFile& file, ApplicationState& state, const QString& key)
{
    const QString& text = readKey(file, state, key);
    return text.isEmpty() ? std::nullopt : std::optional(doubleFromText(text));
}

} // namespace

void loadSettings(Settings& settings, SettingsFile& file, ApplicationState& state, const Paths& paths,
                  const QString& updateListUrl, SettingsLoadHost& host)
{
    Load(settings.unwrittenValues(), file, state, paths, host).run(updateListUrl);
}

StoredPosition readPosition(SettingsFile& file, ApplicationState& state)
{
    return {readTwips(file, state, u"Varnhold X"_s), readTwips(file, state, u"Varnhold Y"_s)};
}

int readLayout(SettingsFile& file, ApplicationState& state)
{
    return readKey(file, state, u"Miximize"_s) == u"2" ? 2 : 1;
}

} // namespace varnhold
