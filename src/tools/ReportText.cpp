#include "tools/ReportText.h"

#include "lookup/UpdateList.h"
#include "state/Settings.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// A package's lines in their order. Column 0 is the row text, the others are sub-items.
struct PackageLine
{
    ReportLines::Line line;
    const char16_t* label;
    int column;
    const char16_t* sample;
};

constexpr PackageLine packageLines[] = {
    {ReportLines::Package, u"Pkg:\t", 0, u"01.01"},
    {ReportLines::System, u"Sys:\t", UpdateList::Version, u"03.4100"},
    {ReportLines::Size, u"Size:\t", UpdateList::Size, u"1.72 MB (1805056 bytes)"},
    {ReportLines::Sha1, u"Sha1:\t", UpdateList::Binary, u"000a000000a00a0aaa0000000aaaa0"},
    {ReportLines::Link, u"Link:\t", UpdateList::Url, u"http://LINK.TO.PKG"},
};

const QString lineEnd = u"\r\n"_s;

void appendTitle(QString& text, const ReportLines& lines, const QString& gameId, const QString& title)
{
    if (lines.has(ReportLines::Title))
        text += gameId + u"-["_s + title + u']' + lineEnd;
}

template <typename ValueOf> void appendPackage(QString& text, const ReportLines& lines, ValueOf valueOf)
{
    for (const PackageLine& line : packageLines) {
        if (!lines.has(line.line))
            continue;
        if (lines.has(ReportLines::Labels))
            text += QStringView(line.label);
        text += valueOf(line);
        text += lineEnd;
    }
}

} // namespace

ReportLines::ReportLines(const Settings& settings)
{
    for (int i = 0; i < Count; ++i) {
        const auto check = static_cast<Check>(static_cast<int>(Check::ListText0) + i);
        m_on.at(static_cast<std::size_t>(i)) = settings.isChecked(check);
    }
}

QString reportText(const ReportLines& lines, const QString& gameId, const QString& title,
                   const UpdateList& list)
{
    QString text;
    appendTitle(text, lines, gameId, title);
    for (int row = 1; row <= list.count(); ++row) {
        appendPackage(text, lines, [&](const PackageLine& line) {
            return line.column == 0 ? list.text(row)
                                    : list.subItem(row, static_cast<UpdateList::SubItem>(line.column));
        });
    }
    return text;
}

QString reportSample(const ReportLines& lines)
{
    QString text;
    appendTitle(text, lines, u"BCUS10001"_s, u"Example Game"_s);
    appendPackage(text, lines, [](const PackageLine& line) { return QStringView(line.sample); });
    if (text.endsWith(lineEnd))
        text.chop(lineEnd.size());
    return text;
}

} // namespace varnhold
