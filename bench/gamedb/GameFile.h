#pragma once

#include <QString>

namespace varnhold::bench {

/// Makes a game database with that many titles of all regions in PS3Games, and nothing but their ids and
/// names; every so many rows have rich notes too, none for 0.
void makeTitles(const QString& path, int count, int noteEvery);

/// The same with notes of some paragraphs, formatted and with links, and a JPEG cover of 200 to 400 KB each.
void makeEntries(const QString& path, int count);

} // namespace varnhold::bench
