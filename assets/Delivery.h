#pragma once

#include "SkinDesign.h"

#include <string>
#include <vector>

namespace varnhold::assets {

struct DeliveredFile
{
    std::string path; ///< under the folder that it is delivered to, with slashes
    std::string bytes;
};

/// All files of a skin, below "skin/" and its name.
std::vector<DeliveredFile> skinFiles(const SkinDesign& design);
/// The sounds, below "wav/".
std::vector<DeliveredFile> soundFiles();

} // namespace varnhold::assets
