#include "gamedb/LinkDelete.h"

#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/MessageBoxes.h"

namespace varnhold {

using namespace Qt::StringLiterals;

void mnuLinkDel(const SavedLink& link, SharedDatabase& database, MessageBoxes& boxes,
                const std::function<void()>& removeRow)
{
    const QString lines = u"GameID:\t"_s + link.gameId + u"\r\nName:\t"_s + link.name + u"\r\nLink:\t"_s +
                          link.address + u"\r\n"_s;
    const QString question =
        u"This will permanently delete the selected row\r\n\r\n"_s + lines + u"\r\nDo you want to proceed?"_s;
    if (boxes.show({question, u"Delete Record"_s, BoxIcon::Question, BoxButtons::YesNo}) != BoxAnswer::Yes)
        return;
    const bool deleted = database.reporting([&] {
        database.connect();
        database.remove(statements::deleteLink(link.address));
        database.DBConn.Close();
    });
    if (!deleted) {
        database.release();
        return;
    }
    removeRow();
    boxes.show({u"Command completed successfully!\r\n\r\n"_s + lines, u"Record Deleted!"_s,
                BoxIcon::Information, BoxButtons::Ok});
}

} // namespace varnhold
