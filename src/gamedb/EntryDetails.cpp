#include "gamedb/EntryDetails.h"

#include "covers/CoverFolder.h"
#include "gamedb/EntryView.h"
#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/BusyPointer.h"
#include "state/Settings.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The stored picture whole; empty when there is none.
QByteArray storedPicture(Recordset& records)
{
    const QString column = u"GameImage"_s;
    const qint64 size = records.ActualSize(column);
    return size >= 1 ? records.GetChunk(column, size) : QByteArray();
}

void showCover(const CoverFolder& covers, const QString& gameId, EntryView& view)
{
    const QString file = covers.find(gameId);
    if (file.isEmpty())
        view.showBlankPicture();
    else
        view.showCoverFile(file);
}

} // namespace

void loadGameDetails(SharedDatabase& database, const Settings& settings, const CoverFolder& covers,
                     EntryView& view)
{
    if (view.gameCount() == 0)
        return;
    database.reporting([&] {
        const auto busy = busyPointer(view); // gone before a report shows
        database.DBKey = view.gameIdText();
        database.connect();
        database.select(statements::entry(settings.orderText(Order::DBTable), database.DBKey));
        // All is read before any of it shows. A game that the table does not know has no notes.
        Recordset& records = *database.DBRecords;
        const bool found = !records.atEnd();
        const QString notes = found ? records.value(u"GameNotes"_s) : QString();
        const QByteArray picture = found ? storedPicture(records) : QByteArray();
        database.loadedKey = database.DBKey;
        view.showNotes(notes);
        if (!picture.isEmpty())
            view.showStoredPicture(picture);
        else
            showCover(covers, database.DBKey, view);
        database.close();
        view.Make_Links();
    });
}

std::optional<QString> readGameNotes(SharedDatabase& database, const Settings& settings,
                                     const QString& gameId)
{
    QString notes;
    const bool isRead = database.reporting([&] {
        database.connect();
        database.select(statements::entry(settings.orderText(Order::DBTable), gameId));
        if (!database.DBRecords->atEnd())
            notes = database.DBRecords->value(u"GameNotes"_s);
        database.close();
    });
    return isRead ? std::optional(notes) : std::nullopt;
}

} // namespace varnhold
