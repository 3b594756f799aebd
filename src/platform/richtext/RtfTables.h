#pragma once

#include "platform/richtext/RichText.h"
#include "platform/richtext/RtfCharsets.h"

#include <QByteArray>
#include <QString>

#include <limits>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace varnhold {

constexpr int rtfNoFont = std::numeric_limits<int>::min();

struct RtfFont
{
    QString name;
    int charset = 1;  ///< 1: none in particular
    int codePage = 0; ///< 0: the document's
    bool operator==(const RtfFont&) const = default;
};

using RtfFonts = std::map<int, RtfFont>;               ///< by number
using RtfColors = std::vector<std::optional<quint32>>; ///< 0x00BBGGRR; none: automatic

/// A whole group {\fonttbl...}; `codePage` is the document's. Adds to what is there.
void readRtfFonts(QByteArrayView group, int codePage, RtfCodePages& pages, RtfFonts& fonts);
/// A whole group {\colortbl...}.
RtfColors readRtfColors(QByteArrayView group);

/// One entry each, as the tables hold them. The name goes without what ends it: semicolon and line ends.
QByteArray rtfFontEntry(int number, const RtfFont& font);
QByteArray rtfColorEntry(const std::optional<quint32>& color);

/// Which list levels have bullets.
class RtfLists
{
public:
    void readTable(QByteArrayView group);     ///< a whole group {\listtable...}
    void readOverrides(QByteArrayView group); ///< a whole group {\listoverridetable...}

    /// Whether \lsN\ilvlN is a bullet; no value when the tables do not say.
    [[nodiscard]] std::optional<bool> isBullet(int list, int level) const;

private:
    std::map<int, std::vector<bool>> m_levels; // by \listid
    std::map<int, int> m_ids;                  // \listid by \ls
};

/// What kept groups name by its number in a table, so that the number must stay.
struct RtfReferences
{
    std::set<int> fonts;
    std::set<int> colors;
    bool codePage = false; ///< bytes of the document's code page

    void add(QByteArrayView group);
    void add(const RichText::Paragraph& paragraph); ///< the groups that it holds
};

/// What the header says.
struct RtfTables
{
    RtfFonts fonts;
    RtfColors colors;
    RtfLists lists;
    int defaultFont = rtfNoFont;
};

/// What the kept groups of the text refer to in tables, as groups that keep its numbers: {\ansicpg...} unless
/// the page is Windows-1252, {\fonttbl...} and {\colortbl...} with these entries alone.
std::vector<QByteArray> rtfKeptTables(const RichText& text, const RtfTables& tables, int codePage);

} // namespace varnhold
