// Makes what is delivered beside the programs: skins, sounds and the game database.

#include "ContactSheet.h"
#include "CoverFiles.h"
#include "DatabaseFile.h"
#include "Delivery.h"

#include <QString>

#include <charconv>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <stdexcept>

namespace {

namespace fs = std::filesystem;
using namespace varnhold::assets;

int usage()
{
    std::cerr << "usage: varnhold-assets DIR TITLES        writes DIR/skin, DIR/wav and DIR/GameDB.mdb\n"
                 "       varnhold-assets --service DIR TITLES     writes DIR/covers and DIR/scans\n"
                 "       varnhold-assets --sheet FILE.png [ZOOM]     all pictures of the skins on one sheet\n"
                 "       varnhold-assets --covers FILE.png TITLES    all covers on one sheet\n";
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

int save(const QImage& image, const char* path)
{
    if (image.save(QString::fromLocal8Bit(path)))
        return 0;
    std::cerr << "varnhold-assets: cannot write " << path << '\n';
    return 1;
}

int writeSheet(const char* path, const char* zoomText)
{
    int zoom = 0;
    std::from_chars(zoomText, zoomText + std::strlen(zoomText), zoom);
    if (zoom < 1 || zoom > 8)
        return usage();
    return save(contactSheet(zoom), path);
}

std::vector<Title> titlesOf(const char* path)
{
    std::ifstream in(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(in), {}};
    if (!in.is_open())
        throw std::runtime_error("cannot be read");
    return readTitles(QString::fromStdString(text));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && argc <= 4 && std::strcmp(argv[1], "--sheet") == 0)
        return writeSheet(argv[2], argc == 4 ? argv[3] : "1");
    const bool covers = argc == 4 && std::strcmp(argv[1], "--covers") == 0;
    const bool service = argc == 4 && std::strcmp(argv[1], "--service") == 0;
    if (!covers && !service && (argc != 3 || argv[1][0] == '-'))
        return usage();
    const char* target = argc == 4 ? argv[2] : argv[1];
    const char* list = argv[argc - 1];
    const char* at = list;
    try {
        const std::vector<Title> titles = titlesOf(list);
        if (covers)
            return save(coverSheet(titles), target);
        if (service) {
            writeCoverFiles(titles, QString::fromLocal8Bit(target));
            return 0;
        }
        const DeliveredFile database{"GameDB.mdb", databaseFile(titles)};
        at = target;
        for (const SkinDesign& design : skinDesigns())
            write(target, skinFiles(design));
        write(target, soundFiles());
        write(target, {database});
    } catch (const std::exception& error) {
        std::cerr << "varnhold-assets: " << at << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
