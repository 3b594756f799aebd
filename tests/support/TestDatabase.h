#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

namespace varnhold::test {

/// A row of a game table; a null member stays NULL in the file.
struct GameRow
{
    QString id;
    QString name;
    QString notes = {};
    QByteArray image = {};
};

/// A database file of the known schema, made and looked at with the engine itself, never through the layer
/// under test. It is closed between calls, so that nothing of it stands in the layer's way. What fails here
/// fails the test.
class TestDatabase
{
public:
    /// Makes a new file with PS3Games, PS3Personal and PS3Links, all empty.
    explicit TestDatabase(QString path);
    /// One that is there already, of any schema.
    static TestDatabase opened(QString path) { return {std::move(path), Opened()}; }

    [[nodiscard]] const QString& path() const { return m_path; }

    void addGames(const QString& table, const QList<GameRow>& rows) const; ///< in one transaction
    void execute(const QString& sql) const;                                ///< one or more statements
    /// First column of every row, as text; NULL as the null string.
    [[nodiscard]] QStringList column(const QString& sql) const;
    /// First column of the first row as its bytes.
    [[nodiscard]] QByteArray bytes(const QString& sql) const;
    /// Whether the file passes the engine's own check.
    [[nodiscard]] bool isSound() const;

private:
    struct Opened
    {
    };
    TestDatabase(QString path, Opened) : m_path(std::move(path)) {}

    QString m_path;
};

} // namespace varnhold::test
