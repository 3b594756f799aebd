#include "DatabaseFile.h"

#include "CoverArt.h"
#include "GifFile.h"
#include "NotesMarkup.h"
#include "platform/richtext/RtfWriter.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>

namespace varnhold::assets {

namespace {

// PS3Links starts empty: an address stays good only with a host that does, and the sample service has a port
// of its own at each start.
constexpr const char* schema = R"(
PRAGMA page_size=4096;
PRAGMA encoding='UTF-8';
CREATE TABLE PS3Games (GameID TEXT UNIQUE COLLATE NOCASE, GameName TEXT, GameNotes TEXT, GameImage BLOB);
CREATE TABLE PS3Personal (GameID TEXT UNIQUE COLLATE NOCASE, GameName TEXT, GameNotes TEXT, GameImage BLOB);
CREATE TABLE PS3Links (GameID TEXT, GameName TEXT, PKG TEXT, FW TEXT, SIZE TEXT, SHA1 TEXT,
                       Link TEXT UNIQUE COLLATE NOCASE);
)";

// Places in the file's header, and what stands there in every delivery.
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t validForAt = 92;
constexpr std::size_t writtenByAt = 96;
constexpr int writtenBy = 3040000; ///< instead of the version of the library that happens to build it

struct Closer
{
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
    void operator()(unsigned char* bytes) const { sqlite3_free(bytes); }
};
template <typename Held> using Owned = std::unique_ptr<Held, Closer>;

class Memory
{
public:
    Memory()
    {
        sqlite3* opened = nullptr;
        const int done = sqlite3_open(":memory:", &opened);
        m_database.reset(opened);
        check(done);
    }

    void run(const char* statements)
    {
        check(sqlite3_exec(m_database.get(), statements, nullptr, nullptr, nullptr));
    }

    void insert(const char* statement, const Title& title, const std::string& notes, const std::string& image)
    {
        sqlite3_stmt* prepared = nullptr;
        check(sqlite3_prepare_v2(m_database.get(), statement, -1, &prepared, nullptr));
        const Owned<sqlite3_stmt> insertion(prepared);
        const auto bind = [&](int place, const std::string& text) {
            if (!text.empty())
                check(sqlite3_bind_text(prepared, place, text.data(), static_cast<int>(text.size()),
                                        SQLITE_TRANSIENT));
        };
        bind(1, title.id.toStdString());
        bind(2, title.name.toStdString());
        bind(3, notes);
        if (!image.empty())
            check(sqlite3_bind_blob(prepared, 4, image.data(), static_cast<int>(image.size()),
                                    SQLITE_TRANSIENT));
        if (sqlite3_step(prepared) != SQLITE_DONE)
            check(sqlite3_errcode(m_database.get()));
    }

    [[nodiscard]] std::string bytes() const
    {
        sqlite3_int64 size = 0;
        const Owned<unsigned char> image(sqlite3_serialize(m_database.get(), "main", &size, 0));
        if (!image)
            throw std::runtime_error("the database cannot be put together");
        return {image.get(), image.get() + size};
    }

private:
    void check(int result) const
    {
        if (result != SQLITE_OK)
            throw std::runtime_error(sqlite3_errmsg(m_database.get()));
    }

    Owned<sqlite3> m_database;
};

std::string stored(const NotesSource& notes)
{
    if (notes.rich)
        return writeRtf(richNotes(notes.lines)).toStdString();
    return notes.lines.join(QStringLiteral("\r\n")).toStdString();
}

void setNumber(std::string& bytes, std::size_t at, int value)
{
    for (int i = 0; i < 4; ++i)
        bytes.at(at + static_cast<std::size_t>(i)) = static_cast<char>(value >> (24 - 8 * i));
}

} // namespace

std::string databaseFile(const std::vector<Title>& titles)
{
    Memory memory;
    memory.run(schema);
    memory.run("BEGIN");
    for (const Title& title : titles) {
        try {
            const std::string notes = stored(title.notes);
            const std::string cover = title.cover ? gifFile(drawCover(*title.cover)) : std::string();
            memory.insert("INSERT INTO PS3Games VALUES (?, ?, ?, ?)", title, notes, cover);
            if (title.personal)
                memory.insert("INSERT INTO PS3Personal VALUES (?, ?, ?, ?)", title,
                              title.ownNotes.lines.isEmpty() ? notes : stored(title.ownNotes), cover);
        } catch (const std::runtime_error& error) {
            throw std::runtime_error(title.id.toStdString() + ": " + error.what());
        }
    }
    memory.run("COMMIT; VACUUM");
    std::string bytes = memory.bytes();
    setNumber(bytes, changeCounterAt, 1);
    setNumber(bytes, validForAt, 1);
    setNumber(bytes, writtenByAt, writtenBy);
    return bytes;
}

} // namespace varnhold::assets
