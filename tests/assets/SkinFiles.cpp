#include "SkinFiles.h"

#include "Delivery.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

double luminance(const QColor& color)
{
    static const std::array<double, 256> linear = [] {
        std::array<double, 256> table{};
        for (std::size_t i = 0; i < table.size(); ++i) {
            const double part = static_cast<double>(i) / 255;
            table.at(i) = part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
        }
        return table;
    }();
    const auto at = [](int value) { return linear.at(static_cast<std::size_t>(value)); };
    return 0.2126 * at(color.red()) + 0.7152 * at(color.green()) + 0.0722 * at(color.blue());
}

} // namespace

QStringList skinNames()
{
    return {u"default"_s, u"paper"_s, u"copper"_s};
}

const SkinFiles& SkinFiles::of(const QString& skin)
{
    static QMap<QString, SkinFiles> drawn;
    auto found = drawn.find(skin);
    if (found == drawn.end())
        found = drawn.insert(skin, SkinFiles(skin));
    return *found;
}

SkinFiles::SkinFiles(const QString& skin)
{
    for (const assets::SkinDesign& design : assets::skinDesigns()) {
        if (QLatin1StringView(design.name) != skin)
            continue;
        for (const assets::DeliveredFile& file : assets::skinFiles(design)) {
            const QString path = QString::fromStdString(file.path);
            m_files.insert(path.mid(u"skin//"_s.size() + skin.size()), QByteArray::fromStdString(file.bytes));
        }
    }
    for (const QString& line : QString::fromLatin1(bytes(u"Skin.ini"_s)).split(u"\r\n"_s))
        m_ini.insert(line.section(u'=', 0, 0), line.section(u'=', 1));
}

QImage SkinFiles::picture(const QString& name) const
{
    return QImage::fromData(m_files.value(name));
}

QColor SkinFiles::color(const QString& key) const
{
    const int value = m_ini.value(key, u"-1"_s).toInt();
    return value < 0 ? QColor() : QColor(value & 0xFF, value >> 8 & 0xFF, value >> 16 & 0xFF);
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

double leastContrast(const QColor& ink, const QImage& picture, const QRect& area)
{
    if (!ink.isValid() || !picture.rect().contains(area))
        return 0;
    double least = 21;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            least = std::min(least, contrast(ink, picture.pixelColor(x, y)));
    }
    return least;
}

} // namespace varnhold::test
