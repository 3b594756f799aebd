#pragma once

#include "platform/FileFetch.h"

#include <QString>

#include <functional>

namespace varnhold {

/// Fetches the url to the target file and puts it there in one step, only when the answer was 200 and all
/// told bytes came; otherwise the target stays as it was. True on success.
///
/// `check`, where given, looks at the whole file under its temporary path between the last byte and the step
/// onto the target, and refuses it with false. `result`, where given, tells how the fetch ended; a file that
/// could not be written counts as a failure during the download.
///
/// Nothing is written before the first byte of a body came. What a kill leaves beside the target is for
/// clearLeftovers().
bool Download_To_File(FileFetch& fetch, const QString& url, const QString& target, const FetchLimits& limits,
                      const std::function<bool(const QString& temporaryPath)>& check = {},
                      FetchResult* result = nullptr);

} // namespace varnhold
