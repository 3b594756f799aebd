#include "gamedb/Transfer.h"

#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/MessageBoxes.h"
#include "platform/database/DatabaseErrors.h"
#include "state/Settings.h"

#include <QScopeGuard>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    QString gameId;
    QString name;
    QString notes;
    QByteArray picture;
};

Entry read(SharedDatabase& database, Entry entry)
{
    database.DBKey = entry.gameId;
    database.connect();
    database.select(statements::entry(u"PS3Games"_s, entry.gameId));
    Recordset& records = *database.DBRecords;
    // It came by an import, or its row has gone meanwhile: nothing of it can be copied.
    if (records.atEnd())
        throw databaseError(errors::database::noCurrentRecord);
    const auto take = [&](QString& value, const QString& column) {
        if (const QString stored = records.value(column); !stored.isEmpty())
            value = stored;
    };
    take(entry.gameId, u"GameID"_s);
    take(entry.name, u"GameName"_s);
    take(entry.notes, u"GameNotes"_s);
    if (const qint64 size = records.ActualSize(u"GameImage"_s); size > 0)
        entry.picture = records.GetChunk(u"GameImage"_s, size);
    return entry;
}

void write(SharedDatabase& database, const Entry& entry)
{
    Recordset& records = *database.DBRecords;
    const auto set = [&](const QString& column, const QString& value) {
        if (!value.isEmpty())
            records.setValue(column, value);
    };
    set(u"GameID"_s, entry.gameId);
    set(u"GameName"_s, entry.name);
    set(u"GameNotes"_s, entry.notes);
    if (!entry.picture.isEmpty())
        records.AppendChunk(u"GameImage"_s, entry.picture);
    records.Update();
    records.UpdateBatch();
    database.close();
}

void selectAnew(SharedDatabase& database, const QString& statement)
{
    database.DBRecords = std::make_unique<Recordset>();
    database.select(statement);
}

/// False when the personal table has the entry already; its insert is then dropped.
bool add(SharedDatabase& database, const Entry& entry)
{
    selectAnew(database, statements::table(u"PS3Personal"_s));
    database.DBRecords->AddNew();
    try {
        write(database, entry);
        return true;
    } catch (const RunTimeError& error) {
        if (error.number() != errors::database::duplicate)
            throw;
        return false;
    }
}

} // namespace

Transfer::Transfer(Services services) : m_services(std::move(services)) {}

void Transfer::mnuCopyTo(const QString& gameId, int rows)
{
    if (rows > 0 && m_services.settings.orderText(Order::DBTable) != u"PS3Personal"_s)
        run({gameId, {}, gameId, gameId, false});
}

void Transfer::mnuCpy(const QString& gameId, const QString& name, int rows, const QString& searchTable)
{
    if (rows > 0 && searchTable != u"PS3Personal"_s)
        run({gameId, name, gameId + u"-["_s + name + u']', gameId + u" - "_s + name, true});
}

void Transfer::run(const Wish& wish)
{
    const auto asks = [this](const QString& text, const QString& title) {
        return m_services.boxes.show({text, title, BoxIcon::Question, BoxButtons::YesNo}) == BoxAnswer::Yes;
    };
    if (!asks(u"Transfer Info to Personal DB?\r\n\r\n"_s + wish.label, u"Transferring Entry"_s))
        return;
    SharedDatabase& database = m_services.database;
    const auto busily = [this](auto&& body) {
        m_services.showBusy(true);
        const auto idle = qScopeGuard([this] { m_services.showBusy(false); });
        body();
    };
    Entry entry{.gameId = wish.gameId, .name = wish.name, .notes = {}, .picture = {}};
    bool added = false;
    const auto copied = [&] {
        busily([&] {
            entry = read(database, entry);
            added = add(database, entry);
        });
    };
    if (!database.reporting(copied))
        return;
    if (added) {
        tell(wish, u"Transfer Complete"_s, entry.gameId, entry.name);
        return;
    }
    if (!asks(u"Entry already exist! Update Entry?\r\n\r\n"_s + wish.oldLabel, u"Updating Entry"_s)) {
        database.release();
        return;
    }
    const auto updated = [&] {
        busily([&] {
            // The table's older name, which is meant: only a file that has such a table can be updated.
            selectAnew(database, statements::update(u"Personal"_s, entry.gameId));
            write(database, entry);
        });
    };
    if (database.reporting(updated))
        tell(wish, u"Transfer Updated"_s, entry.gameId, entry.name);
    else
        database.release();
}

void Transfer::tell(const Wish& wish, const QString& title, const QString& gameId, const QString& name)
{
    QString text = u"Personal Database has been updated.\r\n\r\nGameID: "_s + gameId + u"\r\nGameName: "_s +
                   name + u"\r\n"_s;
    if (!wish.offersReload) {
        m_services.boxes.show({text, title, BoxIcon::Information, BoxButtons::Ok});
        return;
    }
    text += u"Would you like to reload Personal Database?"_s;
    // Loads whatever table is the current one, which is meant.
    if (m_services.boxes.show({text, title, BoxIcon::Question, BoxButtons::YesNo}) == BoxAnswer::Yes)
        m_services.reload();
}

} // namespace varnhold
