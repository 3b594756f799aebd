#pragma once

#include "platform/RunTimeError.h"

namespace varnhold::test {

/// The number of the error that an action ends with; errors::none when it ends well.
template <typename Action> int errorNumberOf(Action&& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return errors::none;
}

} // namespace varnhold::test
