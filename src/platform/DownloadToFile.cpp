#include "platform/DownloadToFile.h"

#include "platform/NavigationCodes.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"

#include <memory>

namespace varnhold {

bool Download_To_File(FileFetch& fetch, const QString& url, const QString& target, const FetchLimits& limits,
                      const std::function<bool(const QString& temporaryPath)>& check, FetchResult* result)
{
    FetchResult own;
    FetchResult& ended = result == nullptr ? own : *result;
    ended = {};
    try {
        std::unique_ptr<FileReplacement> file;
        ended = fetch.fetch(url, limits, [&](QByteArrayView piece) {
            if (!file)
                file = std::make_unique<FileReplacement>(target);
            file->write(piece);
            return true;
        });
        if (!ended.isOk())
            return false;
        if (!file) // an empty body
            file = std::make_unique<FileReplacement>(target);
        if (check && !check(file->temporaryPath()))
            return false;
        file->commit(FileReplacement::Flush::OverOld);
        return true;
    } catch (const RunTimeError&) {
        ended.error = navigation::downloadFailed;
        return false;
    }
}

} // namespace varnhold
