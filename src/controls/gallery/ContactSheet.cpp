#include "controls/gallery/ContactSheet.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <iterator>
#include <memory>

namespace varnhold {

namespace {

constexpr int margin = 16;
constexpr int titleHeight = 26;
constexpr int columnCount = 3;

void roundColors(QImage& image)
{
    const auto rounded = [](int channel) { return qMin(255, (channel + 2) / 4 * 4); };
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = qRgb(rounded(qRed(line[x])), rounded(qGreen(line[x])), rounded(qBlue(line[x])));
    }
}

} // namespace

QImage renderPage(const GalleryPage& page)
{
    const std::unique_ptr<QWidget> widget(page.make());
    return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage contactSheet(const GalleryPages& allPages)
{
    GalleryPages pages;
    std::copy_if(allPages.begin(), allPages.end(), std::back_inserter(pages),
                 [](const GalleryPage& page) { return page.onSheet; });
    std::vector<QImage> pictures;
    std::vector<QRect> places;
    int columnWidth = 0;
    for (const GalleryPage& page : pages) {
        pictures.push_back(renderPage(page));
        columnWidth = qMax(columnWidth, pictures.back().deviceIndependentSize().toSize().width());
    }
    std::vector<int> columns(columnCount, margin);
    for (const QImage& picture : pictures) {
        const auto shortest = std::min_element(columns.begin(), columns.end());
        const int column = static_cast<int>(shortest - columns.begin());
        const QPoint corner(margin + column * (columnWidth + margin), *shortest + titleHeight);
        places.emplace_back(corner, picture.deviceIndependentSize().toSize());
        *shortest = places.back().bottom() + 1 + margin;
    }
    const qreal ratio = pictures.empty() ? 1.0 : pictures.front().devicePixelRatio();
    const QSize size(margin + columnCount * (columnWidth + margin),
                     *std::max_element(columns.begin(), columns.end()));
    QImage sheet((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    QFont font = painter.font();
    font.setPixelSize(14);
    font.setBold(true);
    painter.setFont(font);
    for (size_t i = 0; i < pages.size(); ++i) {
        painter.drawText(places.at(i).topLeft() - QPoint(0, 7), pages.at(i).title);
        painter.drawImage(places.at(i).topLeft(), pictures.at(i));
    }
    painter.end();
    roundColors(sheet);
    return sheet;
}

} // namespace varnhold
