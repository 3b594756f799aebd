// Shaping a window of 1920 x 1080 with a ragged cut-out, against subtracting run by run and against the bare
// scan; and applying a skin to all windows until they are painted.

#include "app/DesktopWorld.h"
#include "appearance/ToolkitLook.h"
#include "appearance/TransForm.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdlib>
#include <filesystem>

namespace {

using namespace Qt::StringLiterals;
using namespace varnhold;

constexpr QSize windowSize(1920, 1080);

/// Edges that run in and out by up to 40 pixels, another on each row, and a few holes.
const QImage& ragged()
{
    static const QImage picture = [] {
        QImage made(windowSize, QImage::Format_RGB32);
        made.fill(QColor(20, 30, 40));
        QRandomGenerator dice(7);
        for (int y = 0; y < made.height(); ++y) {
            auto* row = reinterpret_cast<QRgb*>(made.scanLine(y));
            const auto cut = [row](int from, int count) { std::fill_n(row + from, count, 0xFFFF00FFU); };
            cut(0, dice.bounded(1, 40));
            cut(600 + dice.bounded(80), dice.bounded(1, 200));
            const int right = dice.bounded(1, 40);
            cut(made.width() - right, right);
        }
        return made;
    }();
    return picture;
}

QRegion subtracted(const QImage& picture)
{
    QRegion region(picture.rect());
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const int first = x;
            while (x < picture.width() && (row[x] & RGB_MASK) == 0xFF00FFU)
                ++x;
            if (x > first)
                region -= QRegion(first, y, x - first, 1);
        }
    }
    return region;
}

void shape(benchmark::State& state)
{
    if (regionLeft(ragged(), windowSize, cutAwayColor) != subtracted(ragged()))
        state.SkipWithError("not the same region");
    for (auto _ : state)
        benchmark::DoNotOptimize(regionLeft(ragged(), windowSize, cutAwayColor));
}
BENCHMARK(shape)->Unit(benchmark::kMillisecond);

void subtractRunByRun(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(subtracted(ragged()));
}
BENCHMARK(subtractRunByRun)->Unit(benchmark::kMillisecond)->Iterations(3);

void bareScan(benchmark::State& state)
{
    for (auto _ : state) {
        int runs = 0;
        for (int y = 0; y < windowSize.height(); ++y) {
            const auto* row = reinterpret_cast<const QRgb*>(ragged().constScanLine(y));
            for (int x = 0; x < windowSize.width(); ++x) {
                const int first = x;
                while (x < windowSize.width() && (row[x] & RGB_MASK) == 0xFF00FFU)
                    ++x;
                runs += x > first ? 1 : 0;
            }
        }
        benchmark::DoNotOptimize(runs);
    }
}
BENCHMARK(bareScan)->Unit(benchmark::kMillisecond);

void applySkin(benchmark::State& state)
{
    const QTemporaryDir root;
    std::filesystem::copy(VARNHOLD_SHARE, root.path().toStdString(),
                          std::filesystem::copy_options::recursive);
    DesktopWorld desktop;
    Program program({root.path()}, desktop.lonelyWorld());
    program.start();
    program.settingsWindow().open({100, 100});
    QCoreApplication::processEvents();
    int turn = 0;
    for (auto _ : state) {
        program.commands().run(QStringLiteral("mnuSkin(%1)").arg(1 + turn++ % 3));
        QCoreApplication::processEvents();
        program.mainWindow().repaint();
        program.settingsWindow().repaint();
    }
}
BENCHMARK(applySkin)->Unit(benchmark::kMillisecond)->Iterations(30);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("SDL_AUDIODRIVER", "dummy");
    QApplication application(argc, argv);
    setUpToolkitLook(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
