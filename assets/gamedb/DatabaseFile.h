#pragma once

#include "TitleList.h"

#include <string>

namespace varnhold::assets {

/// The delivered game database: a plain SQLite file with the tables PS3Games, PS3Personal and an empty
/// PS3Links, the same bytes for the same titles. Throws std::runtime_error for a title whose notes or cover
/// cannot be made.
std::string databaseFile(const std::vector<Title>& titles);

} // namespace varnhold::assets
