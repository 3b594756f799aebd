#include "CoverFiles.h"

#include "CoverArt.h"
#include "host/Titles.h"

#include <QDir>
#include <QImage>
#include <QImageWriter>

#include <atomic>
#include <cstring>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace varnhold::assets {

using namespace Qt::StringLiterals;

namespace {

constexpr int scanHeight = 1376;
constexpr int coverHeight = 344;
constexpr int quality = 82;

QImage imageOf(const Picture& picture)
{
    QImage image(picture.width(), picture.height(), QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            image.setPixel(x, y, picture.at(x, y));
    return image;
}

void write(const QImage& image, const QString& path, bool progressive)
{
    QImageWriter writer(path, "jpeg");
    writer.setQuality(quality);
    writer.setOptimizedWrite(true);
    writer.setProgressiveScanWrite(progressive);
    if (!writer.write(image))
        throw std::runtime_error(path.toStdString() + " cannot be written");
}

void writeOne(const Title& title, const QString& folder)
{
    const QString name = u'/' + title.id + u".jpg"_s;
    const CoverOrder order = title.cover.value_or(coverOrderFor(title.id, title.name));
    const QImage scan = imageOf(drawCover(order, scanHeight));
    write(scan, folder + u"/scans"_s + name, true);
    write(scan.scaledToHeight(coverHeight, Qt::SmoothTransformation), folder + u"/covers"_s + name, false);
}

} // namespace

void writeCoverFiles(const std::vector<Title>& titles, const QString& folder)
{
    QDir().mkpath(folder + u"/covers"_s);
    QDir().mkpath(folder + u"/scans"_s);
    std::atomic<std::size_t> next = 0;
    std::mutex mutex;
    std::exception_ptr failure;
    const auto work = [&] {
        for (std::size_t i = next++; i < titles.size(); i = next++) {
            try {
                if (host::hasCover(titles[i].id))
                    writeOne(titles[i], folder);
            } catch (...) {
                const std::lock_guard lock(mutex);
                failure = std::current_exception();
            }
        }
    };
    std::vector<std::thread> helpers;
    for (unsigned i = 1; i < std::thread::hardware_concurrency(); ++i)
        helpers.emplace_back(work);
    work();
    for (std::thread& helper : helpers)
        helper.join();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace varnhold::assets
