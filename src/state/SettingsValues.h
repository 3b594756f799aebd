#pragma once

#include <QString>

#include <array>

namespace varnhold {

/// The check boxes of the settings window, with the key of each as SettingsKeys names it.
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

/// What the controls of the settings window hold. The initial values are those of their design: they stay
/// where a key without a default is missing.
struct SettingsValues
{
    SettingsValues()
    {
        checks.at(static_cast<std::size_t>(Check::SoundsClick)) = true;
        idList.text = QStringLiteral(u"\u00A7elect Database >>>");
    }

    std::array<bool, static_cast<std::size_t>(Check::Count)> checks{};
    int server = 1;                                        ///< Vs_Server, 1 to 6
    int downloadMax = 1;                                   ///< VScroll1, 1 to 5
    TaggedText saveDir;                                    ///< txt_SaveDir: base name, path
    std::array<TaggedText, 4> sounds;                      ///< txt_Sound: file name, path
    TaggedText covers;                                     ///< lblCovers: name, path
    TaggedText listUrl;                                    ///< lblListUrl: name, url
    TaggedText idList;                                     ///< txt_IDList: shown name, database path
    QString databaseSize;                                  ///< lblFSize
    QString unwantedStrings;                               ///< txtRemove
    std::array<bool, 2> cert{};                            ///< optCert; at most one is set
    std::array<int, 3> orders{1, 1, 2};                    ///< vOrder, 1 or 2
    std::array<int, 5> opacities{255, 255, 255, 255, 255}; ///< ucSlider1 and lbl_Opacity, 0 to 255
};

} // namespace varnhold
