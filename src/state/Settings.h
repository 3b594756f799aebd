#pragma once

#include <QObject>
#include <QString>

#include <array>

namespace varnhold {

class IniFile;

/// The check boxes of the settings window, with the key of each in the table of Settings.cpp.
enum class Check {
    DBLinks, ///< "DB Links", chk_DBLinks
    Icons,   ///< "Show Icons", chk_Icons
    ListText0,
    ListText1,
    ListText2,
    ListText3,
    ListText4,
    ListText5,
    ListText6,
    Edge,      ///< "Edge Detection", chk_Edge
    OWrite,    ///< "Over Write", chk_OWrite
    Previous,  ///< "Previous", chk_Previous
    Exit,      ///< "Exit", chk_Exit
    Fade,      ///< "Fade Out", chk_Fade
    RemoveUnw, ///< "Remove Unwanted", chk_RemoveUnw
    Double,    ///< "Remove DblSpace", chk_Double
    Colon,     ///< "Remove Colon", chk_Colon
    AutoSSL0,
    AutoSSL1,    ///< "Auto SSL 0", "Auto SSL 1"
    UseDLD,      ///< "Use DLDir", chk_UseDLD
    CGNFolder,   ///< "Create GNFolder", chk_CGNFolder
    SoundsClick, ///< "Click Sounds", chk_Sounds_Click
    Count
};

/// A text box or label with a shown text and a hidden tag.
struct TaggedText
{
    QString text;
    QString tag;
    bool operator==(const TaggedText&) const = default;
};

/// Index of vOrder / lblOrder.
enum class Order { AscDesc = 0, SearchTable = 1, DBTable = 2 };

/// Windows whose opacity is a setting; the index of lbl_Opacity and ucSlider1.
enum class OpacityOf { Main = 0, Settings = 1, Download = 2, Search = 3, Database = 4 };

/// The live settings: what the controls of the settings window hold, in front of Settings.ini. Reading is
/// never from the file. A setter that changes the value writes its key at once and then raises changed();
/// failing writes are ignored. Values are what the control would hold, not what the file holds: texts
/// untrimmed and of any length, an opacity of 10.
///
/// Loading is SettingsLoad's; it sets values through Loader, which writes nothing and raises nothing.
class Settings : public QObject
{
    Q_OBJECT

public:
    explicit Settings(IniFile& file, QObject* parent = nullptr);

    [[nodiscard]] bool isChecked(Check check) const;
    /// The box's click: writes also when the state stays. RemoveUnw writes "Unwanted Strings" too, without
    /// its line ends.
    void setChecked(Check check, bool on);

    [[nodiscard]] int server() const { return m_server; }           ///< Vs_Server, 1 to 6
    void setServer(int value);                                      ///< outside 1 to 6: RunTimeError 380
    [[nodiscard]] int downloadMax() const { return m_downloadMax; } ///< VScroll1, 1 to 5
    [[nodiscard]] QString downloadMaxText() const;                  ///< lblDLMax
    void setDownloadMax(int value);                                 ///< outside 1 to 5: RunTimeError 380

    [[nodiscard]] const TaggedText& saveDir() const { return m_saveDir; } ///< txt_SaveDir: base name, path
    void setSaveDir(const QString& path);
    [[nodiscard]] const TaggedText& sound(int index) const; ///< txt_Sound(0..3): file name, path
    void setSound(int index, const QString& path);
    [[nodiscard]] const TaggedText& covers() const { return m_covers; } ///< lblCovers: name, path
    void setCovers(const TaggedText& covers);
    [[nodiscard]] const TaggedText& listUrl() const { return m_listUrl; } ///< lblListUrl: name, url
    void setListUrl(const TaggedText& url);
    [[nodiscard]] const TaggedText& idList() const
    {
        return m_idList;
    } ///< txt_IDList: shown name, database path
    void setIdList(const TaggedText& database);

    [[nodiscard]] const QString& unwantedStrings() const { return m_unwanted; } ///< txtRemove
    void setUnwantedStrings(const QString& text);

    /// optCert(0), optCert(1). Both can be off after a start without keys; a click sets one and clears the
    /// other.
    [[nodiscard]] bool certOption(int index) const { return m_cert.at(index); }
    void chooseCertOption(int index);
    /// The release of chk_AutoSSL(index): that box on, the other off, both keys written.
    void chooseAutoSsl(int index);

    [[nodiscard]] int order(Order which) const;         ///< vOrder, 1 or 2
    [[nodiscard]] QString orderText(Order which) const; ///< lblOrder caption
    [[nodiscard]] QString orderTag(Order which) const;  ///< lblOrder tag: "Asc" or "Desc"
    void setOrder(Order which, int value);

    [[nodiscard]] int opacity(OpacityOf window) const; ///< as stored, 0 to 255
    void setOpacity(OpacityOf window, int value);      ///< outside 0 to 255: RunTimeError 380

    [[nodiscard]] int layout() const { return m_layout; } ///< Miximize: 1 normal, 2 enlarged
    void setLayout(int value);

    /// Keys that are no control's value: written by the main window itself.
    void writePosition(double leftTwips, double topTwips);
    void writeBarMain(double topTwips);
    void writeBarLeft(double topTwips);

    class Loader;

Q_SIGNALS:
    /// After any setter. Listeners read what they show; never raised while settings load.
    void changed();

private:
    friend class Loader;
    void write(const QString& key, const QString& value);

    IniFile& m_file;
    std::array<bool, static_cast<std::size_t>(Check::Count)> m_checks{};
    int m_server = 1;
    int m_downloadMax = 1;
    TaggedText m_saveDir;
    std::array<TaggedText, 4> m_sounds;
    TaggedText m_covers;
    TaggedText m_listUrl;
    TaggedText m_idList;
    QString m_unwanted;
    std::array<bool, 2> m_cert{};
    std::array<int, 3> m_orders{1, 1, 1};
    std::array<QString, 3> m_orderTexts;
    std::array<int, 5> m_opacities{255, 255, 255, 255, 255};
    int m_layout = 1;
};

} // namespace varnhold
