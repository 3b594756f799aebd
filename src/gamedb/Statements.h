#pragma once

#include <QString>

namespace varnhold {

class Settings;

/// Every statement of the program, exact in case and blanks. Values go in as they stand: an apostrophe in one
/// breaks the statement, which is meant.
namespace statements {

QString gameList(const Settings& settings); ///< table, column and order from lblOrder
QString entry(const QString& table, const QString& gameId);
QString table(const QString& table);                         ///< to add records to
QString update(const QString& table, const QString& gameId); ///< of an entry that is to be written over
QString deleteEntry(const QString& table, const QString& gameId);
QString links();
QString link(const QString& address);
QString deleteLink(const QString& address);

} // namespace statements

} // namespace varnhold
