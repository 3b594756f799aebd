#include "Lettering.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace varnhold::assets {

namespace {

constexpr int capHeight = 12;
constexpr int gap = 4; ///< between letters, pen included
constexpr double penWidth = 1.9;
constexpr int lineStep = 18;
constexpr int highestCaps = 36;  ///< pixels
constexpr int highestBlock = 92; ///< of all lines; the scene begins below
constexpr int markTop = -5;      ///< accents, against the cap line

/// Strokes with "|" between them, each a run of points: x, then y down from the cap line, as hex digits.
struct Letter
{
    char16_t sign;
    int width;
    std::string_view strokes;
};

constexpr std::array<Letter, 31> letters{{
    {u'A', 8, "0c 40 8c|19 79"},
    {u'B', 7, "0c 00 50 61 72 74 65 56 06|56 67 78 7a 6b 5c 0c"},
    {u'C', 8, "82 71 50 30 11 03 09 1b 3c 5c 7b 8a"},
    {u'D', 8, "00 50 71 83 89 7b 5c 0c 00"},
    {u'E', 6, "60 00 0c 6c|06 56"},
    {u'F', 6, "60 00 0c|06 56"},
    {u'G', 8, "82 71 50 30 11 03 09 1b 3c 5c 7b 89 86 56"},
    {u'H', 8, "00 0c|80 8c|06 86"},
    {u'I', 0, "00 0c"},
    {u'J', 6, "60 69 5b 4c 2c 1b 09"},
    {u'K', 7, "00 0c|70 07|34 7c"},
    {u'L', 6, "00 0c 6c"},
    {u'M', 10, "0c 00 58 a0 ac"},
    {u'N', 8, "0c 00 8c 80"},
    {u'O', 9, "30 60 81 93 99 8b 6c 3c 1b 09 03 11 30"},
    {u'P', 7, "0c 00 50 61 72 75 66 57 07"},
    {u'Q', 9, "30 60 81 93 99 8b 6c 3c 1b 09 03 11 30|69 9c"},
    {u'R', 7, "0c 00 50 61 72 75 66 57 07|47 7c"},
    {u'S', 7, "72 61 40 30 11 02 04 15 36 46 67 78 7a 6b 4c 3c 1b 0a"},
    {u'T', 8, "00 80|40 4c"},
    {u'U', 8, "00 09 1b 3c 5c 7b 89 80"},
    {u'V', 8, "00 4c 80"},
    {u'W', 12, "00 3c 63 9c c0"},
    {u'X', 8, "00 8c|80 0c"},
    {u'Y', 8, "00 46 80|46 4c"},
    {u'Z', 8, "00 80 0c 8c"},
    {u'&', 9, "9c 13 11 30 50 61 63 54 16 08 0a 1c 5c 88 87"},
    {u'-', 4, "06 46"},
    {u'\u2019', 1, "10 03"},
    {u' ', 3, ""},
    {u'Ł', 6, "00 0c 6c|08 44"},
}};

/// Over the letter before them; their points count from markTop.
constexpr std::array<Letter, 6> marks{{
    {u'\u0300', 2, "00 22"},
    {u'\u0301', 2, "02 20"},
    {u'\u0302', 4, "02 20 42"},
    {u'\u0303', 4, "02 11 32 41"},
    {u'\u0308', 4, "01 01|41 41"},
    {u'\u0304', 4, "01 41"},
}};

template <std::size_t N> const Letter* letterFor(const std::array<Letter, N>& set, QChar sign)
{
    const auto found =
        std::find_if(set.begin(), set.end(), [&](const Letter& letter) { return letter.sign == sign; });
    return found == set.end() ? nullptr : &*found;
}

struct Placed
{
    const Letter* letter;
    int x;
    int y;
};

/// Where the letters of a line stand, in units of the letters; the line's width beside.
std::pair<std::vector<Placed>, int> spaced(const QString& line)
{
    std::vector<Placed> placed;
    int x = 0;
    int last = 0; // middle of the last letter
    for (const QChar sign : line.normalized(QString::NormalizationForm_D)) {
        if (const Letter* mark = letterFor(marks, sign)) {
            placed.push_back({mark, last - mark->width / 2, markTop});
            continue;
        }
        const Letter* letter = letterFor(letters, sign);
        if (letter == nullptr)
            throw std::runtime_error("no letter is drawn for " + line.toStdString());
        placed.push_back({letter, x, 0});
        last = x + letter->width / 2;
        x += letter->width + gap;
    }
    return {placed, std::max(1, x - gap)};
}

int hexDigit(char digit)
{
    return digit >= 'a' ? digit - 'a' + 10 : digit - '0';
}

} // namespace

QString drawableText(const QString& text)
{
    QString drawable;
    int count = 0;
    bool kept = false; // the letter that a mark would stand over
    for (const QChar sign : text.toUpper().normalized(QString::NormalizationForm_D)) {
        const bool isMark = letterFor(marks, sign) != nullptr;
        if (!isMark)
            kept = letterFor(letters, sign) != nullptr;
        if (kept)
            drawable += sign;
        count += kept && sign.isLetter() ? 1 : 0;
    }
    constexpr int leastLetters = 3;
    return count < leastLetters ? QString() : drawable.normalized(QString::NormalizationForm_C).simplified();
}

int drawLettering(CoverCanvas& canvas, const QStringList& lines, const Area& area, Color color)
{
    std::vector<std::vector<Placed>> rows;
    int widest = 1;
    for (const QString& line : lines) {
        auto [placed, width] = spaced(line);
        rows.push_back(std::move(placed));
        widest = std::max(widest, width);
    }
    const int height = lineStep * (static_cast<int>(rows.size()) - 1) + capHeight;
    const double scale =
        std::min({static_cast<double>(area.width) / widest, static_cast<double>(highestCaps) / capHeight,
                  static_cast<double>(highestBlock) / height});
    double top = area.y;
    for (const std::vector<Placed>& row : rows) {
        for (const Placed& placed : row) {
            const auto place = [&](int x, int y) {
                return Point(area.x + (placed.x + x) * scale, top + (placed.y + y) * scale);
            };
            const std::string_view strokes = placed.letter->strokes;
            // Three signs a point; the third tells whether the pen stays down.
            for (std::size_t at = 0; at + 4 < strokes.size(); at += 3) {
                if (strokes[at + 2] == '|')
                    continue;
                canvas.line(place(hexDigit(strokes[at]), hexDigit(strokes[at + 1])),
                            place(hexDigit(strokes[at + 3]), hexDigit(strokes[at + 4])), penWidth * scale,
                            color);
            }
        }
        top += lineStep * scale;
    }
    return static_cast<int>(top - (lineStep - capHeight) * scale);
}

} // namespace varnhold::assets
