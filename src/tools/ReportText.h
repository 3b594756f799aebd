#pragma once

#include <QString>

#include <array>

namespace varnhold {

class Settings;
class UpdateList;

/// Which lines the report has, and whether labels stand before them; the boxes chk_ListText(0) to (6).
class ReportLines
{
public:
    enum Line { Title, Package, System, Size, Sha1, Link, Labels, Count };

    ReportLines() = default; ///< all off
    explicit ReportLines(const Settings& settings);

    [[nodiscard]] bool has(Line line) const { return m_on.at(line); }
    void set(Line line, bool on) { m_on.at(line) = on; }

private:
    std::array<bool, Count> m_on{};
};

/// The report of an update list: a title line, then each package's lines, each ended by CR LF.
QString reportText(const ReportLines& lines, const QString& gameId, const QString& title,
                   const UpdateList& list);

/// What the settings window shows of it: one made-up package, without a line end at the last line.
QString reportSample(const ReportLines& lines);

} // namespace varnhold
