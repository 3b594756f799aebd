#pragma once

#include <QString>

#include <functional>

namespace varnhold {

class MessageBoxes;
class SharedDatabase;

/// A row of the list of saved links, as far as its deletion needs it.
struct SavedLink
{
    QString gameId;
    QString name;
    QString address; ///< the row's key in PS3Links
};

/// Asks, then deletes the link from PS3Links. `removeRow` takes the row out of the list once it is gone from
/// the table. A failure is reported and closes the connection; the row stays.
void mnuLinkDel(const SavedLink& link, SharedDatabase& database, MessageBoxes& boxes,
                const std::function<void()>& removeRow);

} // namespace varnhold
