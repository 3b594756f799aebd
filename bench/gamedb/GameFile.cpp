#include "GameFile.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>

#include <array>
#include <cstdio>
#include <cstdlib>

#include <sqlite3.h>

namespace varnhold::bench {

using namespace Qt::StringLiterals;

namespace {

void demand(bool done, sqlite3* file)
{
    if (done)
        return;
    std::fprintf(stderr, "making the database: %s\n", sqlite3_errmsg(file));
    std::exit(1);
}

/// A database under way: one transaction, one row a call.
class GameFile
{
public:
    explicit GameFile(const QString& path)
    {
        demand(sqlite3_open(path.toUtf8().constData(), &m_file) == SQLITE_OK, m_file);
        for (const char* const table : {"PS3Games", "PS3Personal"}) {
            execute(u"CREATE TABLE %1 (GameID TEXT COLLATE NOCASE UNIQUE, GameName TEXT COLLATE NOCASE, "
                    "GameNotes TEXT COLLATE NOCASE, GameImage BLOB)"_s.arg(QLatin1StringView(table)));
        }
        execute(u"CREATE TABLE PS3Links (GameID TEXT, GameName TEXT, PKG TEXT, FW TEXT, SIZE TEXT, "
                "SHA1 TEXT, Link TEXT COLLATE NOCASE UNIQUE)"_s);
        execute(u"BEGIN"_s);
        demand(sqlite3_prepare_v2(m_file, "INSERT INTO PS3Games VALUES (?, ?, ?, ?)", -1, &m_insert,
                                  nullptr) == SQLITE_OK,
               m_file);
    }
    GameFile(const GameFile&) = delete;
    GameFile& operator=(const GameFile&) = delete;
    ~GameFile()
    {
        sqlite3_finalize(m_insert);
        execute(u"COMMIT"_s);
        sqlite3_close(m_file);
    }

    void add(const QString& id, const QString& name, const QString& notes = {}, const QByteArray& image = {})
    {
        sqlite3_reset(m_insert);
        sqlite3_clear_bindings(m_insert);
        bindText(1, id);
        bindText(2, name);
        if (!notes.isEmpty())
            bindText(3, notes);
        if (!image.isEmpty())
            sqlite3_bind_blob(m_insert, 4, image.constData(), static_cast<int>(image.size()),
                              SQLITE_TRANSIENT);
        demand(sqlite3_step(m_insert) == SQLITE_DONE, m_file);
    }

private:
    void execute(const QString& sql)
    {
        demand(sqlite3_exec(m_file, sql.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK,
               m_file);
    }
    void bindText(int column, const QString& text)
    {
        const QByteArray bytes = text.toUtf8();
        sqlite3_bind_text(m_insert, column, bytes.constData(), static_cast<int>(bytes.size()),
                          SQLITE_TRANSIENT);
    }

    sqlite3* m_file = nullptr;
    sqlite3_stmt* m_insert = nullptr;
};

QString idOf(int index)
{
    static constexpr std::array regions{"BCUS", "BLUS", "BCES", "BLES", "BCJS", "BLJM", "BCAS", "NPUB"};
    const int region = index % static_cast<int>(regions.size());
    return QLatin1StringView(regions.at(static_cast<std::size_t>(region))) +
           u"%1"_s.arg(10000 + index / static_cast<int>(regions.size()));
}

QString nameOf(int index)
{
    return u"Title number %1 of the Ashgrove Circuit"_s.arg(index);
}

QString notesOf(int index)
{
    QString notes = u"{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss DejaVu Sans;}{\\f1\\froman "
                    "DejaVu Serif;}}{\\colortbl ;\\red200\\green40\\blue40;\\red0\\green0\\blue160;}\r\n"_s;
    notes += u"\\pard\\qc\\b\\fs28 %1\\b0\\fs20\\par\r\n"_s.arg(nameOf(index));
    for (int paragraph = 0; paragraph < 12; ++paragraph) {
        notes +=
            u"\\pard\\li360\\fi-180\\bullet\\tab Level %1: the \\cf1 red door\\cf0  opens \\i after\\i0  "
            "the \\ul second\\ulnone  bell; keep \\f1 both lamps\\f0  lit. See "
            "http://guides.example/%2/%1.html, and www.maps.example.\\par\r\n"_s.arg(paragraph)
                .arg(index);
    }
    return notes + u"}"_s;
}

QByteArray coverOf(int index)
{
    QImage cover(1000, 1150, QImage::Format_RGB32);
    QPainter painter(&cover);
    QLinearGradient ground(0, 0, 1000, 1150);
    ground.setColorAt(0, QColor::fromHsv(index * 37 % 360, 180, 220));
    ground.setColorAt(1, QColor::fromHsv((index * 37 + 90) % 360, 200, 60));
    painter.fillRect(cover.rect(), ground);
    QRandomGenerator random(static_cast<quint32>(index));
    for (int i = 0; i < 9000; ++i) {
        painter.setPen(QColor::fromRgb(random.generate()));
        const QPoint from(random.bounded(1000), random.bounded(1150));
        painter.drawLine(from, from + QPoint(random.bounded(24), random.bounded(24)));
    }
    painter.end();
    for (int quality = 95; quality > 20; quality -= 5) {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        cover.save(&buffer, "jpg", quality);
        constexpr qsizetype most = 400'000;
        if (bytes.size() <= most - index % 100 * 1000)
            return bytes;
    }
    return {};
}

} // namespace

void makeTitles(const QString& path, int count, int noteEvery)
{
    GameFile file(path);
    for (int i = 0; i < count; ++i)
        file.add(idOf(i), nameOf(i), noteEvery > 0 && i % noteEvery == 0 ? notesOf(i) : QString());
}

void makeEntries(const QString& path, int count)
{
    GameFile file(path);
    for (int i = 0; i < count; ++i)
        file.add(idOf(i), nameOf(i), notesOf(i), coverOf(i));
}

} // namespace varnhold::bench
