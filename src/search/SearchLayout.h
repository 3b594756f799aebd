#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

/// Where the controls of the search window stand, in pixels; within a panel, in the panel's.
namespace varnhold::searchplaces {

inline constexpr QSize window{447, 321};
inline constexpr QRect caption{8, 3, 408, 16};
inline constexpr QRect close{425, 4, 14, 14};
inline constexpr QRect strip{8, 21, 431, 22};
inline constexpr QRect choices{4, 4, 395, 14};
inline constexpr QRect bar{4, 4, 395, 14};
inline constexpr QRect options{407, 4, 20, 14};

inline constexpr QRect searchPanel{8, 46, 431, 24};
inline constexpr QRect text{0, 3, 199, 18};
inline constexpr QRect search{203, 4, 128, 16};
inline constexpr QRect exportList{339, 5, 92, 14};

inline constexpr QRect optionsPanel{8, 72, 431, 38};
inline constexpr int choiceTop = 4;
inline constexpr QSize choiceBar{14, 30};
inline constexpr QRect choiceHeading{20, 0, 84, 14}; ///< from the bar's corner
inline constexpr QRect choiceLabel{20, 14, 84, 16};  ///< from the bar's corner

/// Of Frame2.
inline constexpr int listsLeft = 8;
inline constexpr int listsWidth = 431;
inline constexpr int listsTop = 73;
inline constexpr int listsTopBelowOptions = 113;
inline constexpr int listsBottom = 313;
inline constexpr int importListsTop = 43;
inline constexpr double importListsHeight = 147.667;
inline constexpr double importNamesTwips = 2245; ///< width of List2 when the import panel opens

inline constexpr int splitWidth = 5;
inline constexpr int firstSplit = 96;
inline constexpr double leastSplitTwips = 120;
inline constexpr double splitEndTwips = 75; ///< that much is left at the other end

inline constexpr QRect importPanel{8, 195, 431, 118};
inline constexpr QRect importCaption{0, 0, 331, 16};
inline constexpr QRect file{0, 20, 331, 18};
inline constexpr QRect grab{339, 22, 92, 14};
inline constexpr int marginTop = 50;
inline constexpr int marginStep = 112;
inline constexpr QRect splitHeading{224, 50, 207, 14};
inline constexpr QRect split{224, 64, 207, 18};
inline constexpr QRect importList{339, 96, 92, 14};

} // namespace varnhold::searchplaces
