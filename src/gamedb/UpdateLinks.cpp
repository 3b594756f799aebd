#include "gamedb/UpdateLinks.h"

#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "lookup/LookupView.h"
#include "lookup/UpdateList.h"
#include "platform/database/DatabaseErrors.h"

#include <array>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

using Link = std::array<std::pair<QString, QString>, 7>; ///< column, value; the address comes last

bool isFull(const UpdateList& list, int row)
{
    if (list.text(row).isEmpty())
        return false;
    for (const auto item : {UpdateList::Version, UpdateList::Size, UpdateList::Binary, UpdateList::Url}) {
        if (list.subItem(row, item).isEmpty())
            return false;
    }
    return true;
}

void add(SharedDatabase& database, const Link& link)
{
    // After a known link there is no recordset any more.
    if (!database.DBRecords)
        database.select(statements::links());
    Recordset& records = *database.DBRecords;
    records.AddNew();
    for (const auto& [column, value] : link) {
        if (!value.isEmpty())
            records.setValue(column, value);
    }
    records.Update();
    records.UpdateBatch();
}

void refresh(SharedDatabase& database, const Link& link)
{
    database.DBRecords.reset();
    database.select(statements::link(link.back().second));
    Recordset& records = *database.DBRecords;
    for (const auto& [column, value] : link)
        records.setValue(column, value);
    records.Update();
    records.UpdateBatch();
    database.DBRecords.reset();
}

void store(SharedDatabase& database, const Link& link)
{
    try {
        try {
            add(database, link);
        } catch (const RunTimeError& error) {
            if (error.number() != errors::database::duplicate)
                throw;
            refresh(database, link);
        }
    } catch (const RunTimeError& error) {
        if (error.number() != errors::database::noCurrentRecord &&
            error.number() != errors::database::notAllowed)
            throw;
        database.DBRecords.reset(); // with the record that is under way
    }
}

} // namespace

void saveUpdateLinks(SharedDatabase& database, const UpdateList& list, const LookupView& view)
{
    constexpr qsizetype gameIdLength = 9;
    const QString gameId = view.gameIdText().left(gameIdLength);
    const QString gameName = view.info();
    const bool stored = database.reporting([&] {
        database.connect();
        database.select(statements::links());
        for (int row = 1; row <= list.count(); ++row) {
            if (!isFull(list, row))
                continue;
            store(database, {{{u"GameID"_s, gameId},
                              {u"GameName"_s, gameName},
                              {u"PKG"_s, list.text(row)},
                              {u"FW"_s, list.subItem(row, UpdateList::Version)},
                              {u"SIZE"_s, list.subItem(row, UpdateList::Size)},
                              {u"SHA1"_s, list.subItem(row, UpdateList::Binary)},
                              {u"Link"_s, list.subItem(row, UpdateList::Url)}}});
        }
        database.close();
    });
    if (!stored)
        database.release();
}

} // namespace varnhold
