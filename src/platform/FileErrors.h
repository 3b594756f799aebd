#pragma once

#include "platform/RunTimeError.h"

namespace varnhold {

/// The run-time error of a failed file call, from its errno. What ENOENT means depends on the call: a folder
/// of the path for one that makes something (76), the thing itself for one that needs it (53).
RunTimeError errorFromErrno(int code, int whenMissing = errors::pathNotFound);

} // namespace varnhold
