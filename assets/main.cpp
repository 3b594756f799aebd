// Draws the delivered skins and plays the delivered sounds into files.

#include "ContactSheet.h"
#include "Delivery.h"

#include <QString>

#include <charconv>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

namespace fs = std::filesystem;
using namespace varnhold::assets;

int usage()
{
    std::cerr << "usage: varnhold-assets DIR               writes DIR/skin and DIR/wav\n"
                 "       varnhold-assets --sheet FILE.png [ZOOM]   all pictures on one sheet\n";
    return 2;
}

void write(const fs::path& folder, const std::vector<DeliveredFile>& files)
{
    for (const DeliveredFile& file : files) {
        const fs::path path = folder / file.path;
        fs::create_directories(path.parent_path());
        std::ofstream out(path, std::ios::binary);
        out.exceptions(std::ios::failbit | std::ios::badbit);
        out.write(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
        out.close();
    }
}

int writeSheet(const char* path, const char* zoomText)
{
    int zoom = 0;
    std::from_chars(zoomText, zoomText + std::strlen(zoomText), zoom);
    if (zoom < 1 || zoom > 8)
        return usage();
    if (contactSheet(zoom).save(QString::fromLocal8Bit(path)))
        return 0;
    std::cerr << "varnhold-assets: cannot write " << path << '\n';
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && argc <= 4 && std::strcmp(argv[1], "--sheet") == 0)
        return writeSheet(argv[2], argc == 4 ? argv[3] : "1");
    if (argc != 2 || argv[1][0] == '-')
        return usage();
    try {
        for (const SkinDesign& design : skinDesigns())
            write(argv[1], skinFiles(design));
        write(argv[1], soundFiles());
    } catch (const std::exception& error) {
        std::cerr << "varnhold-assets: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
