#pragma once

#include "cli/Command.h"

#include <vector>

namespace varnhold::cli {

/// All commands, in the order of the help text. A new one is a function here and its row in the table.
const std::vector<Command>& commands();

/// Prints the packages of a title as a table or as JSON.
Command lookupCommand();
/// Downloads packages of a title one after another, and compares their sums with the document's.
Command downloadCommand();
/// Fetches covers from the cover servers.
Command coverCommand();
/// Prints the report of a title's packages, or writes it to a file.
Command reportCommand();
/// Downloads the packages of a list of ids and addresses, several at once.
Command batchCommand();
/// Prints the marks that the window's list would have.
Command marksCommand();
/// Prints whether the update host has a newer version or a longer id list.
Command checkCommand();
/// Takes the unwanted texts out of the names of folders, or shows what it would do; asks no host.
Command renameCommand();
/// Prints which hosts are configured; starts nothing.
Command hostsCommand();
/// Print what a table holds under a text, and which tables there are.
Command searchCommand();
Command tablesCommand();
/// Write a table's ids and titles to a list, and read one into it.
Command exportCommand();
Command importCommand();
/// Copy the database, and write it anew without its holes.
Command backupCommand();
Command compactCommand();

} // namespace varnhold::cli
