#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace varnhold {

class SettingsFile;

struct CoverServer
{
    QString name;
    QString url; ///< ends in "/", or its covers are not found
    friend bool operator==(const CoverServer&, const CoverServer&) = default;
};

/// The cover servers of Settings.ini: the rows of the settings page, which wait there for a save, and the
/// entries of the menu, which show what the file holds.
class CoverServers
{
public:
    explicit CoverServers(SettingsFile& file) : m_file(file) {}

    static constexpr int longest = 254; ///< characters of a name or a url that come back whole

    /// The rows anew from the file. Reading ends at an empty name; the name "EMPTY" is passed over, and so is
    /// a row that is there already.
    void readCoverServers();
    /// readCoverServers, unless it ran before: rows of a load that ended early would be lost in a save.
    void readOnce();
    [[nodiscard]] const QList<CoverServer>& rows() const { return m_rows; }

    /// All false without effect where there is no such row, or one as the result is there already.
    bool add(const CoverServer& row);
    bool change(int index, const CoverServer& row);
    bool moveCoverServerRow(int index, int by); ///< 1 down, -1 up
    void remove(QList<int> indexes);

    /// Writes the rows as 1, 2, ... and builds the menu anew. With no rows it does nothing: the last server
    /// cannot be deleted for good. This is meant.
    void saveCoverServers();

    /// The entries of mnuCServs by their index, which is the number in the file, so that there are gaps.
    void buildCoverServerMenu();
    [[nodiscard]] const QMap<int, CoverServer>& menu() const { return m_menu; }

private:
    [[nodiscard]] QMap<int, CoverServer> read() const;

    SettingsFile& m_file;
    QList<CoverServer> m_rows;
    QMap<int, CoverServer> m_menu;
    bool m_isRead = false;
};

/// Where a server has the cover of a game.
QString coverUrl(const QString& serverUrl, const QString& gameId);

} // namespace varnhold
