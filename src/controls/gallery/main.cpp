// controls-gallery: every painted control in every state. Without arguments it opens a window with a tab for
// each page. With --png DIR or --sheet FILE it renders them and needs no display.

#include "controls/gallery/ContactSheet.h"
#include "controls/gallery/GalleryPage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QScrollArea>
#include <QTabWidget>

#include <algorithm>
#include <cstdio>
#include <cstring>

using namespace varnhold;
using namespace Qt::StringLiterals;

namespace {

bool save(const QImage& picture, const QString& path)
{
    // Rendered for looking at: the pixels count, not the size in inches that a ratio would imply.
    QImage plain = picture;
    plain.setDevicePixelRatio(1);
    constexpr int smallest = 0; // of the quality, which for this format is how little is packed
    if (plain.save(path, nullptr, smallest))
        return true;
    std::fprintf(stderr, "controls-gallery: cannot write %s\n", qPrintable(path));
    return false;
}

int renderAll(const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        std::fprintf(stderr, "controls-gallery: cannot make the folder %s\n", qPrintable(folder));
        return 1;
    }
    for (const GalleryPage& page : allGalleryPages()) {
        if (!save(renderPage(page), QDir(folder).filePath(page.name + u".png"_s)))
            return 1;
    }
    return 0;
}

int showAll()
{
    QTabWidget tabs;
    tabs.setWindowTitle(u"Controls"_s);
    for (const GalleryPage& page : allGalleryPages()) {
        auto* scroll = new QScrollArea;
        scroll->setWidget(page.make());
        tabs.addTab(scroll, page.title);
    }
    tabs.resize(820, 700);
    tabs.show();
    return QApplication::exec();
}

bool rendersOnly(int argc, char** argv)
{
    return std::any_of(argv, argv + argc, [](const char* argument) {
        return std::strncmp(argument, "--png", 5) == 0 || std::strncmp(argument, "--sheet", 7) == 0;
    });
}

} // namespace

int main(int argc, char** argv)
{
    if (rendersOnly(argc, argv) && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Shows the painted controls in all their states. QT_SCALE_FACTOR sets the device ratio."_s);
    parser.addHelpOption();
    const QCommandLineOption png(u"png"_s, u"Render each page into DIR."_s, u"DIR"_s);
    const QCommandLineOption sheet(u"sheet"_s, u"Render all pages into one picture."_s, u"FILE"_s);
    parser.addOptions({png, sheet});
    parser.process(application);

    if (parser.isSet(sheet) && !save(contactSheet(allGalleryPages()), parser.value(sheet)))
        return 1;
    if (parser.isSet(png))
        return renderAll(parser.value(png));
    return parser.isSet(sheet) ? 0 : showAll();
}
