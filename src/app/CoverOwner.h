#pragma once

#include "app/Common.h"
#include "covers/CoverCommands.h"

namespace varnhold {

/// Covers of games and what is done with them.
class CoverOwner
{
public:
    explicit CoverOwner(const Common& common);

private:
    CoverCommands m_commands;
};

} // namespace varnhold
