#pragma once

#include "platform/FileFetch.h"

#include <QString>

namespace varnhold {

class MessageBoxes;
class Settings;
struct Paths;

/// The told length of what the url names: of a plain answer 200 without a redirect, up to 2147483647 bytes.
/// -1 otherwise, and after ten seconds of silence. Pumps events.
qint64 Http_File_Size(FileFetch& fetch, const QString& url);

/// The id list here and on the update host. Only sizes are compared.
struct IdListSizes
{
    qint64 existing = -1; ///< bytes of <Root>/ps3gameids.txt; -1: there is none
    qint64 update = -1;   ///< bytes told by the host; -1: not reached

    /// A list of the same size is none, nor is a smaller one.
    [[nodiscard]] bool isAvailable() const { return update > (existing < 0 ? 0 : existing); }
    [[nodiscard]] QString settingsText() const; ///< txt_Check
    [[nodiscard]] QString boxText() const;      ///< of mnuUpdateDB, without its question
};

/// Asks the url in the tag of lblListUrl. Pumps events.
IdListSizes checkIdList(FileFetch& fetch, const Settings& settings, const Paths& paths);

/// Fetches the id list to <Root>/ps3gameids.txt, with a box on failure. False: no url is set, and nothing is
/// to follow. After a failed download the file that is there is gone on with; meant. Pumps events.
bool downloadIdList(FileFetch& fetch, const Settings& settings, const Paths& paths, MessageBoxes& boxes,
                    const QString& applicationTitle);

} // namespace varnhold
